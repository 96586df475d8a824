// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_store.h"

#include "support/failing_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>

namespace tallyforge {
namespace {

using std::filesystem::perms;

class FileStore : public ::testing::Test {
protected:
    void put(const std::string& name, std::string_view bytes) const {
        std::ofstream(disk.path / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream in(disk.path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    [[nodiscard]] std::optional<FileProblem> problemOfWriting(const std::string& name, std::string_view bytes) const {
        try {
            writeWhole(disk.path / name, bytes);
        } catch (const FileError& error) {
            return error.problem();
        }
        return std::nullopt;
    }
    [[nodiscard]] perms permissions(const std::string& name) const {
        return std::filesystem::status(disk.path / name).permissions();
    }
    [[nodiscard]] std::ptrdiff_t entries() const {
        return std::distance(std::filesystem::directory_iterator(disk.path), {});
    }

    TemporaryFolder disk;
    const std::string longText = std::string(5000, 'n');
};

constexpr perms kReadByAll = perms::owner_read | perms::owner_write | perms::group_read | perms::others_read;

TEST_F(FileStore, AFileIsWrittenAndReplacedWhole) {
    writeWhole(disk.path / "t.txt", longText);
    EXPECT_EQ(readWhole(disk.path / "t.txt"), longText);
    writeWhole(disk.path / "t.txt", "short");
    EXPECT_EQ(readWhole(disk.path / "t.txt"), "short");
    EXPECT_EQ(entries(), 1) << "no temporary is left";
}

TEST_F(FileStore, AFileBeyondTheLimitIsNotRead) {
    put("t.txt", longText);
    EXPECT_EQ(readWhole(disk.path / "t.txt", longText.size()), longText);
    try {
        static_cast<void>(readWhole(disk.path / "t.txt", longText.size() - 1));
        ADD_FAILURE() << "it was read";
    } catch (const FileError& error) {
        EXPECT_EQ(error.problem(), FileProblem::TooLarge);
    }
}

TEST_F(FileStore, AFullDiskCostsTheNewFileAlone) {
    put("t.txt", "the old one, of more bytes than the disk has room for");
    std::optional<FileProblem> problem;
    std::optional<FileProblem> problemOfNew;
    {
        const FullDisk full;
        problem = problemOfWriting("t.txt", longText);
        problemOfNew = problemOfWriting("new.txt", longText);
    }
    EXPECT_EQ(problem, FileProblem::DiskFull);
    EXPECT_EQ(problemOfNew, FileProblem::DiskFull);
    EXPECT_EQ(read("t.txt"), "the old one, of more bytes than the disk has room for");
    EXPECT_EQ(entries(), 1) << "neither a temporary nor half a file is left";
}

TEST_F(FileStore, AReadOnlyFolderKeepsItsFile) {
    put("t.txt", "old");
    std::optional<FileProblem> problem;
    {
        const ReadOnlyFolder folder{disk.path};
        if (!folder.holds()) {
            GTEST_SKIP() << "root writes anywhere";
        }
        problem = problemOfWriting("t.txt", "new");
    }
    EXPECT_EQ(problem, FileProblem::NoAccess);
    EXPECT_EQ(read("t.txt"), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(FileStore, AFolderThatIsMissingOrAFileIsNotFound) {
    put("t.txt", "old");
    EXPECT_EQ(problemOfWriting("nowhere/t.txt", "new"), FileProblem::NotFound);
    EXPECT_EQ(problemOfWriting("t.txt/t.txt", "new"), FileProblem::NotFound);
}

TEST_F(FileStore, WhatIsNoPlainFileIsNotRead) {
    ASSERT_EQ(::mkfifo((disk.path / "pipe").c_str(), 0600), 0);
    for (const std::filesystem::path& path : {disk.path / "pipe", disk.path, std::filesystem::path("/dev/zero")}) {
        try {
            static_cast<void>(readWhole(path, 1000));
            ADD_FAILURE() << path;
        } catch (const FileError& error) {
            EXPECT_EQ(error.problem(), FileProblem::NoAccess) << path;
        }
    }
}

TEST_F(FileStore, WhatIsNoPlainFileIsNotReplaced) {
    std::filesystem::create_directory(disk.path / "folder");
    ASSERT_EQ(::mkfifo((disk.path / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink(disk.path / "pipe", disk.path / "link");
    for (const char* name : {"folder", "pipe", "link"}) {
        EXPECT_EQ(problemOfWriting(name, "new"), FileProblem::NoAccess) << name;
    }
    EXPECT_TRUE(std::filesystem::is_directory(disk.path / "folder"));
    EXPECT_TRUE(std::filesystem::is_fifo(disk.path / "pipe"));
    EXPECT_TRUE(std::filesystem::is_symlink(disk.path / "link"));
    EXPECT_EQ(entries(), 3);
}

TEST_F(FileStore, TheOldPermissionsAreKept) {
    for (const perms kept : {perms::owner_read | perms::owner_write, kReadByAll,
                             kReadByAll | perms::group_write | perms::others_write, kReadByAll | perms::owner_exec}) {
        put("t.txt", "old");
        std::filesystem::permissions(disk.path / "t.txt", kept);
        writeWhole(disk.path / "t.txt", "new");
        EXPECT_EQ(permissions("t.txt"), kept);
        EXPECT_EQ(read("t.txt"), "new");
    }
}

TEST_F(FileStore, ANewFileHasThePermissionsThatTheUserGivesNewFiles) {
    const mode_t before = ::umask(0);
    for (const mode_t mask : {0U, 022U, 027U, 077U}) {
        ::umask(mask);
        const std::string name = "mask" + std::to_string(mask);
        writeWhole(disk.path / name, "new");
        EXPECT_EQ(static_cast<unsigned>(permissions(name)), 0666U & ~mask);
        EXPECT_EQ(::umask(mask), mask) << "the mask itself stays";
    }
    ::umask(before);
}

TEST_F(FileStore, ALinkStaysAndItsFileIsReplaced) {
    std::filesystem::create_directory(disk.path / "real");
    put("real/t.txt", "old");
    std::filesystem::permissions(disk.path / "real/t.txt", kReadByAll);
    std::filesystem::create_symlink("real/t.txt", disk.path / "near");
    std::filesystem::create_symlink(disk.path / "near", disk.path / "far");
    writeWhole(disk.path / "far", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(disk.path / "near"));
    EXPECT_TRUE(std::filesystem::is_symlink(disk.path / "far"));
    EXPECT_EQ(read("real/t.txt"), "new");
    EXPECT_EQ(permissions("real/t.txt"), kReadByAll);
}

TEST_F(FileStore, ALinkToNothingYetGetsItsFile) {
    std::filesystem::create_symlink("t.txt", disk.path / "link");
    writeWhole(disk.path / "link", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(disk.path / "link"));
    EXPECT_EQ(read("t.txt"), "new");
}

TEST_F(FileStore, LinksInACircleEnd) {
    std::filesystem::create_symlink("b", disk.path / "a");
    std::filesystem::create_symlink("a", disk.path / "b");
    EXPECT_EQ(problemOfWriting("a", "new"), FileProblem::NoAccess);
    EXPECT_EQ(entries(), 2);
}

TEST_F(FileStore, AGrowingFileKeepsWhatItHas) {
    put("trace.txt", "old\n");
    {
        GrowingFile file(disk.path / "trace.txt");
        file.write("one\n");
        EXPECT_EQ(read("trace.txt"), "old\none\n") << "each piece is there at once";
        file.write("two\n");
    }
    EXPECT_EQ(read("trace.txt"), "old\none\ntwo\n");
    GrowingFile fresh(disk.path / "new.txt");
    fresh.write("x");
    EXPECT_EQ(read("new.txt"), "x");
}

TEST_F(FileStore, AGrowingFileHasThePermissionsThatTheUserGivesNewFiles) {
    const mode_t before = ::umask(0);
    GrowingFile open(disk.path / "open.txt");
    ::umask(027);
    GrowingFile closed(disk.path / "closed.txt");
    ::umask(before);
    EXPECT_EQ(std::filesystem::status(disk.path / "open.txt").permissions(), perms{0666});
    EXPECT_EQ(std::filesystem::status(disk.path / "closed.txt").permissions(), perms{0640});
}

TEST_F(FileStore, NothingGrowsInThePlaceOfAPipeAFolderOrADevice) {
    ASSERT_EQ(mkfifo((disk.path / "pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(disk.path / "folder");
    std::filesystem::create_symlink("circle", disk.path / "circle");
    for (const std::filesystem::path& place :
         {disk.path / "pipe", disk.path / "folder", disk.path / "circle", std::filesystem::path("/dev/null")}) {
        EXPECT_THROW(GrowingFile{place}, FileError) << place;
    }
}

TEST_F(FileStore, WhatAKilledProgramLeftIsSweptAndNothingElse) {
    for (const char* name : {"a.txt.writing-Ab12Cd", "a.txt", "a.txt.writing-", "mine.writing-Ab12Cdx"}) {
        put(name, "x");
        std::filesystem::last_write_time(disk.path / name,
                                         std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
    put("b.txt.writing-Ab12Cd", "another calculator writes this now");
    sweepTemporaries(disk.path);
    EXPECT_FALSE(std::filesystem::exists(disk.path / "a.txt.writing-Ab12Cd"));
    for (const char* name : {"a.txt", "a.txt.writing-", "mine.writing-Ab12Cdx", "b.txt.writing-Ab12Cd"}) {
        EXPECT_TRUE(std::filesystem::exists(disk.path / name)) << name;
    }
    sweepTemporaries(disk.path / "no such folder");
}

TEST_F(FileStore, ALockKeepsTheOtherWaiting) {
    std::optional<FileLock> first{std::in_place, disk.path / "lock"};
    std::atomic<bool> second = false;
    std::thread other([&] {
        const FileLock own(disk.path / "lock");
        second = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(second);
    first.reset();
    other.join();
    EXPECT_TRUE(second);
    const FileLock nowhere(disk.path / "no such folder" / "lock");
}

}  // namespace
}  // namespace tallyforge
