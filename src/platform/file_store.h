// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files are written whole or not at all, and read with a limit. Whoever writes a file of the user's
// goes through here.
#pragma once

#include <cstddef>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace tallyforge {

enum class FileProblem { NotFound, NoAccess, DiskFull, TooLarge };

class FileError : public std::exception {
public:
    explicit FileError(FileProblem fileProblem) : problem_(fileProblem) {}
    [[nodiscard]] FileProblem problem() const { return problem_; }
    [[nodiscard]] const char* what() const noexcept override { return "file error"; }

private:
    FileProblem problem_;
};

/// Largest file that readWhole takes, bytes.
inline constexpr std::size_t kLargestFile = std::size_t{512} * 1024 * 1024;

/// Writes `bytes` to a temporary beside `path`, flushes it and renames it over `path`; the folder
/// is flushed, too. The file keeps the permissions of the old one, and a link to it stays. On
/// failure the old file is whole and the temporary gone. Raises FileError.
void writeWhole(const std::filesystem::path& path, std::string_view bytes);

/// All bytes of the file. Raises FileError: NotFound, NoAccess, or TooLarge beyond `limit`.
[[nodiscard]] std::string readWhole(const std::filesystem::path& path, std::size_t limit = kLargestFile);

}  // namespace tallyforge
