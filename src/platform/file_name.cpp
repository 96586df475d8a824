// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_name.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tallyforge {

std::vector<std::string> filesIn(const std::filesystem::path& folder, const std::filesystem::path& extension) {
    std::vector<std::string> names;
    std::error_code ended;
    for (std::filesystem::directory_iterator at(folder, ended), end; !ended && at != end; at.increment(ended)) {
        std::error_code unread;
        std::string name = at->path().filename().string();
        if (!name.starts_with('.') && at->path().extension() == extension && at->is_regular_file(unread)) {
            names.push_back(std::move(name));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace tallyforge
