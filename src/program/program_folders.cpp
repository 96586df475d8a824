// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_folders.h"

namespace tallyforge {

namespace {

constexpr const char* kPrograms = "programs";

}  // namespace

std::filesystem::path userPrograms(const Engine& calc) {
    return calc.AppDataDir / kPrograms;
}

std::filesystem::path tracesFolder(const Engine& calc) {
    return calc.AppDataDir / "Traces";
}

std::optional<std::filesystem::path> folderOfProgram(const Engine& calc, const std::string& name) {
    if (name.empty()) {
        return std::nullopt;
    }
    const std::filesystem::path beside = calc.platform.installedFolder();
    const std::filesystem::path folders[] = {userPrograms(calc), beside / kPrograms,
                                             beside.parent_path() / "share" / "tallyforge" / kPrograms};
    for (const std::filesystem::path& folder : folders) {
        std::error_code error;
        if (std::filesystem::is_regular_file(folder / name, error)) {
            return folder;
        }
    }
    return std::nullopt;
}

}  // namespace tallyforge
