// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/installed_file.h"

namespace tallyforge {

std::filesystem::path installedFile(const Platform& platform, std::string_view folder, std::string_view name) {
    const std::filesystem::path beside = platform.installedFolder();
    const std::filesystem::path shared = beside.parent_path() / "share" / "tallyforge" / folder / name;
    std::error_code error;
    return std::filesystem::is_regular_file(shared, error) &&
                   !std::filesystem::is_regular_file(beside / folder / name, error)
               ? shared
               : beside / folder / name;
}

}  // namespace tallyforge
