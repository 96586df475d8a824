// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/file_lines.h"

#include "records/file_failure.h"

namespace tallyforge {

std::optional<std::string_view> FileLines::next() {
    std::size_t searched = used_;
    std::size_t end = buffer_.find('\n', searched);
    while (end == buffer_.npos) {
        searched = buffer_.size() - used_;
        if (searched > kLongestLine) {
            throw Failure{FailureNumber::DamagedFile};
        }
        if (!readMore()) {
            if (searched == 0) {
                return std::nullopt;
            }
            throw Failure{FailureNumber::DamagedFile};
        }
        end = buffer_.find('\n', searched);
    }
    std::string_view line = std::string_view(buffer_).substr(used_, end - used_);
    place_ += line.size() + 1;
    used_ = end + 1;
    // A file that was turned into "\r\n" more than once has several of them.
    while (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    if (line.size() > kLongestLine) {
        throw Failure{FailureNumber::DamagedFile};
    }
    return line;
}

std::string_view FileLines::need() {
    const auto line = next();
    if (!line) {
        throw Failure{FailureNumber::DamagedFile};
    }
    return *line;
}

bool FileLines::readMore() {
    constexpr std::size_t kPiece = std::size_t{64} * 1024;
    buffer_.erase(0, used_);
    used_ = 0;
    const std::size_t held = buffer_.size();
    buffer_.resize(held + kPiece);
    const std::size_t got = onFile([&] { return bytes_->read(read_, std::span(buffer_.data() + held, kPiece)); });
    buffer_.resize(held + got);
    read_ += got;
    return got != 0;
}

}  // namespace tallyforge
