// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/data_files.h"

#include "engine/engine.h"
#include "platform/file_name.h"
#include "records/file_failure.h"
#include "records/settings_file.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr std::size_t kNameLength = rowOf(Setting::TapeFile).width;
static_assert(rowOf(Setting::RegisterFile).width == kNameLength);

/// The first `most` characters of a UTF-8 text.
std::string firstCharacters(const std::string& text, std::size_t most) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool begins = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U;
        characters += begins ? 1 : 0;
        if (characters > most) {
            return text.substr(0, i);
        }
    }
    return text;
}

bool isName(const std::string& name) {
    const bool blank = name.find_first_not_of(' ') == name.npos;
    const bool control = std::any_of(name.begin(), name.end(), [](char c) {
        constexpr unsigned char kDelete = 127;
        return static_cast<unsigned char>(c) < ' ' || static_cast<unsigned char>(c) == kDelete;
    });
    return !blank && !control && name != "." && name != "..";
}

/// A file of the data folder by the name that was entered (UTF-8), without any folder in it; empty
/// where that leaves no name.
std::optional<std::filesystem::path> inDataFolder(const Engine& calc, const std::string& entered) {
    const std::string name = std::filesystem::path(firstCharacters(entered, kNameLength)).filename().string();
    return isName(name) ? std::optional{calc.AppDataDir / name} : std::nullopt;
}

/// The files of the data folder that are named as the default one is.
std::vector<std::string> offersLike(const Engine& calc, const std::string& preset) {
    std::vector<std::string> names = filesIn(calc.AppDataDir, pathOf(preset).extension());
    std::erase(names, kUndoFile);
    return names;
}

/// Asks until the answer is a name, or none was given.
template <typename Refused>
std::optional<std::filesystem::path> askForName(Engine& calc, const InputBox& box, const Refused& refused) {
    for (;;) {
        const std::string entered = calc.platform.inputBox(box);
        if (entered.empty()) {
            return std::nullopt;
        }
        auto path = inDataFolder(calc, entered);
        const std::string_view complaint = path ? refused(*path) : kNoFileName;
        if (complaint.empty()) {
            return path;
        }
        calc.message(BoxKind::Stop, box.title, complaint);
    }
}

}  // namespace

std::string_view complaintAboutName(const std::filesystem::path& path) {
    const std::string name = path.filename().string();
    if (!isName(name)) {
        return kNoFileName;
    }
    if (name == kUndoFile) {
        return "Reset keeps what it clears under this name, please choose another one.";
    }
    return name.starts_with('.') ? "Names that begin with a point are the calculator's own, please choose another one."
                                 : "";
}

bool mayOverwrite(Engine& calc, const std::filesystem::path& path) {
    return calc.question("File Exists!", nameOf(path) + " exists, do you want to overwrite it?");
}

std::optional<std::filesystem::path> askWhereToSave(Engine& calc, std::string_view title, const std::string& preset) {
    const InputBox box{
        .title = std::string(title),
        .prompt =
            "Please enter a file name (only 25 characters are used), or Click OK to accept the default.The "
            "file is saved in the Oakhollow Application Data Folder. ",
        .preset = preset,
        .fileName = true,
        .offers = offersLike(calc, preset)};
    for (;;) {
        auto path = askForName(calc, box, complaintAboutName);
        std::error_code ignored;
        if (!path || !std::filesystem::exists(*path, ignored) || mayOverwrite(calc, *path)) {
            return path;
        }
    }
}

std::optional<std::filesystem::path> askWhatToRetrieve(Engine& calc, std::string_view title,
                                                       const std::string& preset) {
    const InputBox box{.title = std::string(title),
                       .prompt =
                           "Please enter a file name, or Click OK to accept the default. (Do not enter the "
                           "Folder name).",
                       .preset = preset,
                       .fileName = true,
                       .offers = offersLike(calc, preset)};
    return askForName(calc, box, [](const std::filesystem::path&) { return std::string_view{}; });
}

bool askForDefaultName(Engine& calc, const std::filesystem::path& path) {
    // The record holds a name a byte a character, so one of another script cannot be kept there.
    const bool recordHolds = pathOf(nameOf(path)) == path.filename();
    return recordHolds &&
           calc.question("Save File Name?", "Do you want to save " + nameOf(path) + " as the default file name?");
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
        settings.change(
            [&](SettingsRecords& records) { records.setText(tape ? Setting::TapeFile : Setting::RegisterFile, name); });
    });
}

void tellLeftOut(Engine& calc, std::string_view title, const std::vector<std::string>& places) {
    if (places.empty()) {
        return;
    }
    constexpr std::size_t kNamed = 5;
    std::string text = "A file cannot hold the text in ";
    for (std::size_t i = 0; i < places.size() && i < kNamed; ++i) {
        text += (i == 0 ? "" : ", ") + places[i];
    }
    text += places.size() > kNamed ? " and " + std::to_string(places.size() - kNamed) + " more" : "";
    calc.message(BoxKind::Notice, title, text + ".\nIt is saved as 0, everything else as it is.");
}

bool saveOrReport(Engine& calc, std::string_view procedure, const std::filesystem::path& path,
                  const std::function<void(WholeFile&)>& fill) {
    const auto report = [&](const Failure& failure) {
        calc.reportIn(procedure, failure.code(), description(failure.number()));
    };
    const auto write = [&] {
        WholeFile file(path);
        fill(file);
        file.replace();
    };
    return goOn(report, [&] { onFile(write); });
}

std::string retrievalMessage(const Failure& failure) {
    return failure.number() == FailureNumber::FileNotFound ? "File not found!"
                                                           : "File error #" + std::to_string(failure.code());
}

}  // namespace tallyforge
