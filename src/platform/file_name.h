// SPDX-License-Identifier: GPL-3.0-or-later
//
// A file's name is eight-bit text inside, like any other, and UTF-8 on disk.
#pragma once

#include "platform/text.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// The path that a name stands for.
[[nodiscard]] inline std::filesystem::path pathOf(std::string_view name) {
    return toUnicode(name, Face::Arial);
}

/// The last part of a path as text.
[[nodiscard]] inline std::string nameOf(const std::filesystem::path& path) {
    return fromUnicode(path.filename().string());
}

/// The last part of what a user has entered, so that it leads to no other folder; empty for none.
[[nodiscard]] inline std::string bareName(std::string_view entered) {
    const std::string name = nameOf(pathOf(entered));
    return name == "." || name == ".." ? std::string{} : name;
}

/// Names of the plain files in `folder` that end in `extension` and are not hidden, in order, UTF-8;
/// none where the folder cannot be read.
[[nodiscard]] std::vector<std::string> filesIn(const std::filesystem::path& folder,
                                               const std::filesystem::path& extension);

}  // namespace tallyforge
