// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/data_files.h"

#include "engine/engine.h"
#include "platform/file_name.h"
#include "records/file_failure.h"
#include "records/settings_file.h"

namespace tallyforge {

namespace {

constexpr std::size_t kNameLength = 25;
constexpr std::size_t kTapeNameAt = 3;
constexpr std::size_t kRegisterNameAt = 28;

/// A file of the data folder by the name that was entered, without any folder in it.
std::optional<std::filesystem::path> inDataFolder(const Engine& calc, const std::string& entered) {
    const std::string name = bareName(entered.substr(0, kNameLength));
    return name.empty() ? std::nullopt : std::optional{calc.AppDataDir / pathOf(name)};
}

}  // namespace

std::optional<std::filesystem::path> askWhereToSave(Engine& calc, std::string_view title, const std::string& preset) {
    for (;;) {
        const std::string entered = calc.platform.inputBox(
            {.title = std::string(title),
             .prompt = "Please enter a file name (only 25 characters are used), or Click OK to accept the default.The "
                       "file is saved in the Oakhollow Application Data Folder. ",
             .preset = preset});
        auto path = inDataFolder(calc, entered);
        if (path && nameOf(*path).starts_with('.')) {
            calc.message(BoxKind::Stop, title,
                         "Names that begin with a point are the calculator's own, please choose another one.");
            continue;
        }
        std::error_code ignored;
        if (!path || !std::filesystem::exists(*path, ignored) ||
            calc.question("File Exists!", nameOf(*path) + " exists, do you want to overwrite it?")) {
            return path;
        }
    }
}

std::optional<std::filesystem::path> askWhatToRetrieve(Engine& calc, std::string_view title,
                                                       const std::string& preset) {
    return inDataFolder(calc, calc.platform.inputBox({.title = std::string(title),
                                                      .prompt = "Please enter a file name, or Click OK to accept the "
                                                                "default. (Do not enter the Folder name).",
                                                      .preset = preset}));
}

bool askForDefaultName(Engine& calc, const std::filesystem::path& path) {
    return calc.question("Save File Name?", "Do you want to save " + nameOf(path) + " as the default file name?");
}

void rememberFileName(Engine& calc, SettingsFile& settings, DefaultName which, const std::filesystem::path& path) {
    const std::string name = nameOf(path);
    const bool tape = which == DefaultName::Tape;
    (tape ? calc.s.files.TapeFileName : calc.s.files.MemoryFileName) = name;
    const std::string_view procedure = tape ? "mnuSaveTape_Click" : "mnuSaveMem_Click";
    const auto report = [&](const Failure& failure) {
        calc.reportIn(procedure, failure.code(), description(failure.number()));
    };
    goOn(report, [&] {
        settings.change(1, [&](SettingsRecord& record) {
            record.setTextB(tape ? kTapeNameAt : kRegisterNameAt, kNameLength, name);
        });
    });
}

bool saveOrReport(Engine& calc, std::string_view procedure, const std::filesystem::path& path, std::string_view text) {
    const auto report = [&](const Failure& failure) {
        calc.reportIn(procedure, failure.code(), description(failure.number()));
    };
    return goOn(report, [&] { onFile([&] { writeWhole(path, text); }); });
}

std::string retrievalMessage(const Failure& failure) {
    return failure.number() == FailureNumber::FileNotFound ? "File not found!"
                                                           : "File error #" + std::to_string(failure.code());
}

}  // namespace tallyforge
