// SPDX-License-Identifier: GPL-3.0-or-later
//
// A folder of a test's own, removed with all that is in it at the end of the test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace tallyforge {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tallyforge-test-XXXXXX").string();
        path = mkdtemp(pattern.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path path;
};

}  // namespace tallyforge
