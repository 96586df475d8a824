// SPDX-License-Identifier: GPL-3.0-or-later
//
// A disk on which writing fails, for as long as an object of these classes lives.
#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

namespace tallyforge {

/// Every file is full after the first few bytes. Whatever the process writes meanwhile, a test's
/// complaints too, may be cut, so that nothing is asserted before the disk has room again.
class FullDisk {
public:
    FullDisk() : reaction_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        constexpr rlim_t kRoom = 40;
        const rlimit full{.rlim_cur = kRoom, .rlim_max = before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, reaction_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*reaction_)(int);
    rlimit before_{};
};

/// A folder whose files can be read but not replaced. Root may write anywhere, and is another user
/// meanwhile.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(std::filesystem::path folder) : folder_(std::move(folder)), user_(geteuid()) {
        using std::filesystem::perms;
        std::filesystem::permissions(folder_, perms::owner_read | perms::owner_exec | perms::group_read |
                                                  perms::group_exec | perms::others_read | perms::others_exec);
        constexpr uid_t kNobody = 65534;
        holds_ = user_ != 0 || seteuid(kNobody) == 0;
    }
    ~ReadOnlyFolder() {
        if (user_ == 0) {
            holds_ = seteuid(user_) == 0;
        }
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

    /// False for a root that cannot be another user.
    [[nodiscard]] bool holds() const { return holds_; }

private:
    std::filesystem::path folder_;
    uid_t user_;
    bool holds_ = false;
};

}  // namespace tallyforge
