// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where programs and traces lie: the user's own in the data folder, those that came with the
// calculator beside the executable or where it was installed.
#pragma once

#include "engine/engine.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

/// The user's own programs.
[[nodiscard]] std::filesystem::path userPrograms(const Engine& calc);
[[nodiscard]] std::filesystem::path tracesFolder(const Engine& calc);

/// The file of program `name` in the first folder that has it: the user's own, "programs" beside
/// the executable, the installed one. Where none has exactly this name, capitals and small letters
/// are the same. None for an empty name.
[[nodiscard]] std::optional<std::filesystem::path> findProgram(const Engine& calc, const std::string& name);

/// Names of all programs in those folders, in order, each once; UTF-8.
[[nodiscard]] std::vector<std::string> programNames(const Engine& calc);

}  // namespace tallyforge
