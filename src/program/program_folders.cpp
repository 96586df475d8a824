// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_folders.h"

#include "platform/file_name.h"
#include "program/program_text.h"

#include <array>
#include <set>

namespace tallyforge {

namespace {

constexpr const char* kPrograms = "programs";

/// The file whose name differs from `name` in capitals at most.
std::optional<std::filesystem::path> sameLetters(const std::filesystem::path& folder, const std::string& name) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (smallLetters(nameOf(entry.path())) == smallLetters(name) && entry.is_regular_file(error)) {
            return entry.path();
        }
    }
    return std::nullopt;
}

std::array<std::filesystem::path, 3> programFolders(const Engine& calc) {
    const std::filesystem::path beside = calc.platform.installedFolder();
    return {userPrograms(calc), beside / kPrograms, beside.parent_path() / "share" / "tallyforge" / kPrograms};
}

}  // namespace

std::filesystem::path userPrograms(const Engine& calc) {
    return calc.AppDataDir / kPrograms;
}

std::filesystem::path tracesFolder(const Engine& calc) {
    return calc.AppDataDir / "Traces";
}

std::optional<std::filesystem::path> findProgram(const Engine& calc, const std::string& name) {
    if (name.empty()) {
        return std::nullopt;
    }
    const auto folders = programFolders(calc);
    for (const std::filesystem::path& folder : folders) {
        std::error_code error;
        if (std::filesystem::is_regular_file(folder / pathOf(name), error)) {
            return folder / pathOf(name);
        }
    }
    for (const std::filesystem::path& folder : folders) {
        if (auto found = sameLetters(folder, name)) {
            return found;
        }
    }
    return std::nullopt;
}

std::vector<std::string> programNames(const Engine& calc) {
    std::set<std::string> names;
    for (const std::filesystem::path& folder : programFolders(calc)) {
        const std::vector<std::string> there = filesIn(folder, ".rec");
        names.insert(there.begin(), there.end());
    }
    return {names.begin(), names.end()};
}

}  // namespace tallyforge
