// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

namespace tallyforge {

namespace {

/// An open file that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool ok() const { return number_ >= 0; }
    [[nodiscard]] int give() { return std::exchange(number_, -1); }
    bool close() {
        const int open = give();
        return open < 0 || ::close(open) == 0;
    }

private:
    int number_;
};

FileProblem problemOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return FileProblem::NotFound;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return FileProblem::DiskFull;
        default:
            return FileProblem::NoAccess;
    }
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0) {
            // Nothing was taken, and nothing says that it ever will be.
            errno = ENOSPC;
            return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

void flushFolder(const std::filesystem::path& folder) {
    const Descriptor open{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (open.ok()) {
        // Some file systems cannot flush a folder; the file itself is safe by then.
        static_cast<void>(::fsync(open.number()));
    }
}

/// What a temporary's name ends with, before the six letters that make it unique.
constexpr std::string_view kTemporary = ".writing-";

/// Where `path` leads to in the end: a file is replaced, the links that name it stay.
std::filesystem::path behindLinks(std::filesystem::path path) {
    constexpr int kMostLinks = 40;
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error || links == kMostLinks) {
            throw FileError{FileProblem::NoAccess};
        }
        path = path.parent_path() / target;
    }
    return path;
}

/// Permissions of the file to be replaced, or those of a new one. What is no plain file, a folder
/// or a device, is not replaced.
mode_t permissionsFor(const std::filesystem::path& path) {
    constexpr mode_t kPermissions = 0777;
    constexpr mode_t kNewFile = 0666;
    struct stat old {};
    if (::stat(path.c_str(), &old) == 0) {
        if (!S_ISREG(old.st_mode)) {
            throw FileError{FileProblem::NoAccess};
        }
        return old.st_mode & kPermissions;
    }
    // The mask can only be read by setting it.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return kNewFile & ~mask;
}

/// A plain file, open for reading. Without waiting: a pipe in the place of a file would keep the calculator for ever.
int openToRead(const std::filesystem::path& path) {
    Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    if (!file.ok()) {
        throw FileError{problemOf(errno)};
    }
    struct stat opened {};
    if (::fstat(file.number(), &opened) != 0 || !S_ISREG(opened.st_mode)) {
        throw FileError{FileProblem::NoAccess};
    }
    return file.give();
}

}  // namespace

std::size_t TextBytes::read(std::uint64_t at, std::span<char> into) const {
    return at < text_.size() ? text_.copy(into.data(), into.size(), at) : 0;
}

FileBytes::FileBytes(const std::filesystem::path& path) : file_(openToRead(path)) {}

FileBytes::~FileBytes() {
    ::close(file_);
}

std::size_t FileBytes::read(std::uint64_t at, std::span<char> into) const {
    for (;;) {
        const ssize_t got = ::pread(file_, into.data(), into.size(), static_cast<off_t>(at));
        if (got >= 0) {
            return static_cast<std::size_t>(got);
        }
        if (errno != EINTR) {
            throw FileError{problemOf(errno)};
        }
    }
}

WholeFile::WholeFile(const std::filesystem::path& path) : target_(behindLinks(path)) {
    const mode_t permissions = permissionsFor(target_);
    temporary_ = target_.string() + std::string(kTemporary) + "XXXXXX";
    file_ = ::mkostemp(temporary_.data(), O_CLOEXEC);
    if (file_ < 0) {
        throw FileError{problemOf(errno)};
    }
    // A file system without permissions refuses, and the bytes count for more.
    static_cast<void>(::fchmod(file_, permissions));
}

WholeFile::~WholeFile() {
    if (file_ >= 0) {
        ::close(file_);
    }
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

void WholeFile::write(std::string_view bytes) {
    constexpr std::size_t kPiece = std::size_t{256} * 1024;
    pending_ += bytes;
    if (pending_.size() >= kPiece) {
        flushPending();
    }
}

void WholeFile::flushPending() {
    if (!writeAll(file_, pending_)) {
        throw FileError{problemOf(errno)};
    }
    pending_.clear();
}

FileBytes WholeFile::written() {
    flushPending();
    return FileBytes{temporary_};
}

void WholeFile::replace() {
    flushPending();
    Descriptor file{std::exchange(file_, -1)};
    if (::fsync(file.number()) != 0 || !file.close() || std::rename(temporary_.c_str(), target_.c_str()) != 0) {
        throw FileError{problemOf(errno)};
    }
    temporary_.clear();
    flushFolder(target_.has_parent_path() ? target_.parent_path() : std::filesystem::path("."));
}

void writeWhole(const std::filesystem::path& path, std::string_view bytes) {
    WholeFile file(path);
    file.write(bytes);
    file.replace();
}

GrowingFile::GrowingFile(const std::filesystem::path& path) {
    constexpr mode_t kNewFile = 0666;
    file_ = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, kNewFile);
    struct stat opened {};
    if (file_ < 0 || ::fstat(file_, &opened) != 0) {
        throw FileError{problemOf(errno)};
    }
    if (!S_ISREG(opened.st_mode)) {
        ::close(file_);
        throw FileError{FileProblem::NoAccess};
    }
}

GrowingFile::~GrowingFile() {
    ::close(file_);
}

void GrowingFile::write(std::string_view bytes) {
    if (!writeAll(file_, bytes)) {
        throw FileError{problemOf(errno)};
    }
}

void sweepTemporaries(const std::filesystem::path& folder) {
    using namespace std::chrono_literals;
    constexpr std::size_t kUniqueLetters = 6;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const auto mark = name.rfind(kTemporary);
        std::error_code ignored;
        if (mark != name.npos && name.size() == mark + kTemporary.size() + kUniqueLetters &&
            entry->is_regular_file(ignored) &&
            entry->last_write_time(ignored) < std::filesystem::file_time_type::clock::now() - 1min) {
            std::filesystem::remove(entry->path(), ignored);
        }
    }
}

FileLock::FileLock(const std::filesystem::path& path) {
    constexpr mode_t kOwn = 0600;
    file_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, kOwn);
    if (file_ >= 0) {
        while (::flock(file_, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
}

FileLock::~FileLock() {
    if (file_ >= 0) {
        ::close(file_);
    }
}

std::string readWhole(const std::filesystem::path& path, std::size_t limit) {
    const Descriptor file{openToRead(path)};
    constexpr std::size_t kBlock = 65536;
    std::string bytes;
    for (;;) {
        const std::size_t used = bytes.size();
        bytes.resize(used + kBlock);
        const ssize_t got = ::read(file.number(), bytes.data() + used, kBlock);
        const int problem = got < 0 ? errno : 0;
        bytes.resize(used + (got > 0 ? static_cast<std::size_t>(got) : 0));
        if (problem != 0 && problem != EINTR) {
            throw FileError{problemOf(problem)};
        }
        if (bytes.size() > limit) {
            throw FileError{FileProblem::TooLarge};
        }
        if (got == 0) {
            return bytes;
        }
    }
}

}  // namespace tallyforge
