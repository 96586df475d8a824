// SPDX-License-Identifier: GPL-3.0-or-later
//
// Loaded in front of the C library, it lets one system call fail that concerns a file of the folder
// FAULT_FOLDER: call number FAULT_AT, counted from 1, with the error number FAULT_ERROR; with 0 a write
// takes nothing, and any other call goes well. How many such calls there were goes to the file
// FAULT_COUNT at the end. A call on any other file is handed on uncounted.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kMostFiles = 1024;

const char* setting(const char* name) {
    const char* const held = std::getenv(name);
    return held == nullptr ? "" : held;
}

/// The calls of one process, which is single-threaded while it saves.
struct Calls {
    const char* folder = setting("FAULT_FOLDER");
    int failing = std::atoi(setting("FAULT_AT"));
    int error = std::atoi(setting("FAULT_ERROR"));
    int made = 0;
    std::array<bool, kMostFiles> watched{};

    ~Calls() {
        if (std::FILE* const out = std::fopen(setting("FAULT_COUNT"), "w")) {
            std::fprintf(out, "%d\n", made);
            std::fclose(out);
        }
    }
    /// Counts a call; true where it is the one that fails.
    bool fails(bool writes) {
        if (++made != failing || (error == 0 && !writes)) {
            return false;
        }
        errno = error;
        return true;
    }
    bool failsOn(const char* path) {
        return *folder != '\0' && std::strncmp(path, folder, std::strlen(folder)) == 0 && fails(false);
    }
    bool failsOn(int file, bool writes = false) {
        return file >= 0 && file < kMostFiles && watched.at(static_cast<unsigned>(file)) && fails(writes);
    }
    int watch(int file, const char* path) {
        if (file >= 0 && file < kMostFiles) {
            watched.at(static_cast<unsigned>(file)) = std::strncmp(path, folder, std::strlen(folder)) == 0;
        }
        return file;
    }
};

Calls& calls() {
    static Calls all;
    return all;
}

/// The function of that name behind this library.
template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int openThrough(const char* name, const char* path, int flags, mode_t mode) {
    if (calls().failsOn(path)) {
        return -1;
    }
    return calls().watch(next<int (*)(const char*, int, mode_t)>(name)(path, flags, mode), path);
}

/// The mode of an open that makes a file.
mode_t modeOf(int flags, va_list rest) {
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

template <typename... Arguments>
int onPath(const char* name, const char* path, Arguments... arguments) {
    return calls().failsOn(path) ? -1 : next<int (*)(const char*, Arguments...)>(name)(path, arguments...);
}

template <typename... Arguments>
int onFile(const char* name, int file, Arguments... arguments) {
    return calls().failsOn(file) ? -1 : next<int (*)(int, Arguments...)>(name)(file, arguments...);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openThrough("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openThrough("open64", path, flags, mode);
}

int mkostemp(char* pattern, int flags) {
    if (calls().failsOn(pattern)) {
        return -1;
    }
    return calls().watch(next<int (*)(char*, int)>("mkostemp")(pattern, flags), pattern);
}

ssize_t write(int file, const void* bytes, size_t count) {
    if (calls().failsOn(file, true)) {
        return errno == 0 ? 0 : -1;
    }
    return next<ssize_t (*)(int, const void*, size_t)>("write")(file, bytes, count);
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
    if (calls().failsOn(file)) {
        return -1;
    }
    return next<ssize_t (*)(int, void*, size_t, off_t)>("pread")(file, bytes, count, at);
}

ssize_t pread64(int file, void* bytes, size_t count, off_t at) {
    return pread(file, bytes, count, at);
}

ssize_t read(int file, void* bytes, size_t count) {
    if (calls().failsOn(file)) {
        return -1;
    }
    return next<ssize_t (*)(int, void*, size_t)>("read")(file, bytes, count);
}

int close(int file) {
    const bool fails = calls().failsOn(file);
    calls().watch(file, "");
    const int error = errno;
    // The file is closed all the same, as the system does it.
    const int result = next<int (*)(int)>("close")(file);
    if (fails) {
        errno = error;
    }
    return fails ? -1 : result;
}

int fsync(int file) {
    return onFile("fsync", file);
}
int fchmod(int file, mode_t mode) {
    return onFile("fchmod", file, mode);
}
int flock(int file, int operation) {
    return onFile("flock", file, operation);
}
int fstat(int file, struct stat* found) {
    return onFile("fstat", file, found);
}
int stat(const char* path, struct stat* found) {
    return onPath("stat", path, found);
}
int lstat(const char* path, struct stat* found) {
    return onPath("lstat", path, found);
}
int unlink(const char* path) {
    return onPath("unlink", path);
}
int mkdir(const char* path, mode_t mode) {
    return onPath("mkdir", path, mode);
}
int rename(const char* from, const char* to) {
    return onPath("rename", from, to);
}

}  // extern "C"
