// SPDX-License-Identifier: GPL-3.0-or-later
//
// What saving and retrieving a file of the user's have in common: the questions about its name,
// and the messages when it fails.
#pragma once

#include "numbers/failure.h"
#include "platform/file_store.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;
class SettingsFile;

/// Where Reset keeps what it clears; no file of the user's has this name.
inline constexpr const char* kUndoFile = "undo.rec";

/// Which default file name is meant.
enum class DefaultName { Tape, Registers };

inline constexpr std::string_view kNoFileName = "That is no name for a file, please enter another one.";
/// What speaks against saving a file of the user's at `path`: a control character in its name, or a
/// name that the calculator keeps for itself. Empty for a name that will do.
[[nodiscard]] std::string_view complaintAboutName(const std::filesystem::path& path);
/// Asks whether the file that is there may be replaced.
[[nodiscard]] bool mayOverwrite(Engine& calc, const std::filesystem::path& path);

/// Asks for the name of a file to save in the data folder, and whether one that exists may be
/// overwritten. Empty where the user gave none.
[[nodiscard]] std::optional<std::filesystem::path> askWhereToSave(Engine& calc, std::string_view title,
                                                                  const std::string& preset);
/// Asks for the name of a file of the data folder.
[[nodiscard]] std::optional<std::filesystem::path> askWhatToRetrieve(Engine& calc, std::string_view title,
                                                                     const std::string& preset);
/// Asks whether the name is to be the default from now on.
[[nodiscard]] bool askForDefaultName(Engine& calc, const std::filesystem::path& path);
/// Keeps the name as the default, in the state and in the settings record.
void rememberFileName(Engine& calc, SettingsFile& settings, DefaultName which, const std::filesystem::path& path);

/// Tells the user what a file that is about to be written cannot hold; nothing for an empty list.
void tellLeftOut(Engine& calc, std::string_view title, const std::vector<std::string>& places);

/// Writes what `fill` puts into the file, which may raise as well; a failure is reported as one of
/// `procedure`, and the old file stands. Returns whether the file was written.
bool saveOrReport(Engine& calc, std::string_view procedure, const std::filesystem::path& path,
                  const std::function<void(WholeFile&)>& fill);

/// "File not found!" or "File error #" and the number.
[[nodiscard]] std::string retrievalMessage(const Failure& failure);

}  // namespace tallyforge
