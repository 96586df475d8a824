// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files are written whole or not at all, and read with a limit. Whoever writes a file of the user's
// goes through here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <utility>

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

/// Bytes at their places, of a file or a text that may be larger than what is kept of it in memory.
class Bytes {
public:
    virtual ~Bytes() = default;
    /// Reads from place `at` on, as many as there are and fit; how many, 0 at the end. Raises FileError.
    [[nodiscard]] virtual std::size_t read(std::uint64_t at, std::span<char> into) const = 0;
};

class TextBytes : public Bytes {
public:
    explicit TextBytes(std::string_view text) : text_(text) {}
    [[nodiscard]] std::size_t read(std::uint64_t at, std::span<char> into) const override;

private:
    std::string_view text_;
};

/// An open file. What is no plain file is refused, and a pipe is not waited for.
class FileBytes : public Bytes {
public:
    /// Raises FileError.
    explicit FileBytes(const std::filesystem::path& path);
    ~FileBytes() override;
    FileBytes(FileBytes&& other) noexcept : file_(std::exchange(other.file_, -1)) {}
    FileBytes(const FileBytes&) = delete;
    FileBytes& operator=(const FileBytes&) = delete;
    [[nodiscard]] std::size_t read(std::uint64_t at, std::span<char> into) const override;

private:
    int file_;
};

/// A file that is written piece by piece to a temporary beside `path`, and takes the place of the
/// old file when it is whole. Until then, and where it never is, the old file stands; the temporary
/// goes with this object. The file keeps the permissions of the old one, and a link to it stays.
class WholeFile {
public:
    /// Raises FileError.
    explicit WholeFile(const std::filesystem::path& path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    /// Raises FileError.
    void write(std::string_view bytes);
    /// What has been written, to be read back. Raises FileError.
    [[nodiscard]] FileBytes written();
    /// Flushes the file and renames it over `path`; the folder is flushed, too. Raises FileError.
    void replace();

private:
    void flushPending();

    std::filesystem::path target_;
    std::string temporary_;
    std::string pending_;
    int file_ = -1;
};

/// Writes `bytes` as a WholeFile. Raises FileError.
void writeWhole(const std::filesystem::path& path, std::string_view bytes);

/// A file that grows by what is written, each piece handed to the system at once. What is no plain
/// file is left alone, and a pipe is not waited for.
class GrowingFile {
public:
    /// Opens the file or begins it. Raises FileError.
    explicit GrowingFile(const std::filesystem::path& path);
    ~GrowingFile();
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;
    /// Raises FileError.
    void write(std::string_view bytes);

private:
    int file_;
};

/// Removes what writeWhole left in `folder` when its program was killed: temporaries that are older
/// than a minute. Raises nothing.
void sweepTemporaries(const std::filesystem::path& folder);

/// Keeps other programs that lock the same file waiting as long as it lives. Where the file cannot
/// be made, as in a folder that is read-only, nothing is locked. Raises nothing.
class FileLock {
public:
    explicit FileLock(const std::filesystem::path& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int file_ = -1;
};

/// All bytes of the file. Raises FileError: NotFound, NoAccess, or TooLarge beyond `limit`.
[[nodiscard]] std::string readWhole(const std::filesystem::path& path, std::size_t limit = kLargestFile);

}  // namespace tallyforge
