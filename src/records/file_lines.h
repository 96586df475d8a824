// SPDX-License-Identifier: GPL-3.0-or-later
//
// The lines of a text file, one after the other, with no more of the file in memory than the line
// that is read.
#pragma once

#include "platform/file_store.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

/// Characters that a line of a file has at most.
inline constexpr std::size_t kLongestLine = std::size_t{1} << 13;

class FileLines {
public:
    /// Lines of `bytes`, which must outlive this, from place `from` on.
    explicit FileLines(const Bytes& bytes, std::uint64_t from = 0) : bytes_(&bytes), place_(from), read_(from) {}

    /// The next line without its end; every '\r' before the end counts to it. Empty behind the last
    /// one. It stands until the next call. Raises 54 for a line that is longer than kLongestLine or has
    /// no end, as the last one of a file that was cut, and what onFile() raises.
    [[nodiscard]] std::optional<std::string_view> next();
    /// The same where a line must be: none is damage.
    [[nodiscard]] std::string_view need();
    /// Where the next line begins.
    [[nodiscard]] std::uint64_t place() const { return place_; }

private:
    bool readMore();

    const Bytes* bytes_;
    std::uint64_t place_;
    std::uint64_t read_;    ///< what lies before has been read
    std::string buffer_;    ///< ends at read_
    std::size_t used_ = 0;  ///< of the buffer
};

}  // namespace tallyforge
