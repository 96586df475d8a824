// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_folders.h"

#include "platform/file_name.h"
#include "program/program_text.h"

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
    const std::filesystem::path beside = calc.platform.installedFolder();
    const std::filesystem::path folders[] = {userPrograms(calc), beside / kPrograms,
                                             beside.parent_path() / "share" / "tallyforge" / kPrograms};
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

}  // namespace tallyforge
