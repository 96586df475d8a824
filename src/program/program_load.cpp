// SPDX-License-Identifier: GPL-3.0-or-later
//
// Loading a program: the question for its name, the file, its declaration and its "init".
#include "desk/memory_registers.h"
#include "engine/engine.h"
#include "platform/file_name.h"
#include "program/program_folders.h"
#include "program/programs.h"
#include "records/file_failure.h"
#include "records/settings_file.h"

#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kExtension = ".rec";
constexpr std::string_view kPrompt =
    "Please enter a file name, or\nClick OK to accept the default.\n\n(Do not enter the Folder name.)";

std::string withExtension(std::string name) {
    constexpr std::size_t kShortest = 5;
    if (name.size() < kShortest) {
        name += kExtension;
    }
    if (name[name.size() - kExtension.size()] != '.') {
        name += kExtension;
    }
    return name;
}

bool startsWithLetter(char first) {
    return first >= 'A' && first <= 'Z';
}

/// The complaint about a declared name; empty for a valid one.
std::string_view complaint(const std::string& name) {
    const std::string upper = capitals(name);
    const char first = upper.empty() ? '\0' : upper.front();
    if (startsWithLetter(first)) {
        return upper.size() > 1 || first == 'X' || first == 'Y' ? "" : "Letter Variables must be 2 characters long!";
    }
    return first >= '0' && first <= '9' ? "" : "Variables must begin with a letter or number only!";
}

}  // namespace

void Programs::mnuProgram_Click() {
    calc.s.modifiers.ModifierMask = 0;
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    if (running()) {
        return;
    }
    const bool atStart = std::exchange(calc.s.files.AutoLoadProgram, false);
    std::string name = calc.s.files.DefaultProgram;
    if (!atStart) {
        const std::string answer = calc.platform.inputBox({.title = "Load Program",
                                                           .prompt = std::string(kPrompt),
                                                           .preset = calc.s.files.DefaultProgram,
                                                           .offers = programNames(calc)});
        if (answer.empty()) {
            return calc.focusEntry();
        }
        // Programs lie in their folders only, whatever was entered.
        name = withExtension(bareName(answer));
    }
    const auto file = findProgram(calc, name);
    if (!file) {
        fail("File not found!");
    }
    name = file ? nameOf(*file) : "";
    if (!name.ends_with(kExtension)) {
        fail("Please rename your program with the \".rec\" extension.", "Illegal File Extension!");
        return calc.focusEntry();
    }
    if (!agreed(name)) {
        return calc.focusEntry();
    }
    calc.s.files.DefaultProgram = name;
    loadingAtStart_ = atStart;
    load(file->parent_path(), name);
    loadingAtStart_ = false;
}

bool Programs::agreed(const std::string& name) {
    const auto ask = [&](const char* title, const char* text) {
        return calc.platform.messageBox(
                   {.kind = BoxKind::Info, .title = title, .text = text, .buttons = BoxButtons::YesNo}) == Answer::Yes;
    };
    if (state.ProgramLoaded && !ask("Overwrite?", "This will overwrite your current program, continue?")) {
        return false;
    }
    if (calc.s.files.DefaultProgram != name &&
        ask("Replace file?", "Do you want to replace the default file with this?")) {
        rememberDefault(name);
    }
    return true;
}

void Programs::rememberDefault(const std::string& name) {
    const auto onFailure = [&](const Failure& failure) { fail(loadFaultText(failure.code())); };
    goOn(onFailure,
         [&] { parts.settings.change([&](SettingsRecords& all) { all.setText(Setting::DefaultProgram, name); }); });
}

void Programs::openFile(const std::filesystem::path& file) {
    if (running()) {
        return;
    }
    const std::string name = nameOf(file);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        fail("File not found!");
    } else if (pathOf(name) != file.filename()) {
        fail("Please rename your program, its name has letters that cannot be kept.");
    } else if (agreed(name)) {
        calc.s.files.DefaultProgram = name;
        load(file.parent_path(), name);
    }
    calc.focusEntry();
}

void Programs::loadBuiltIn(const std::string& name) {
    if (running()) {
        return;
    }
    if (const auto file = findProgram(calc, name)) {
        load(file->parent_path(), nameOf(*file));
    } else {
        fail("File not found!");
    }
}

void Programs::load(const std::filesystem::path& folder, const std::string& name) {
    const std::string fileBefore = std::exchange(state.ProgramFile, name);
    const std::filesystem::path folderBefore = std::exchange(state.ProgramFolder, folder);
    text_.reset();
    std::shared_ptr<ProgramText> text;
    try {
        text = readProgram();
    } catch (const ProgramFault& fault) {
        fail(loadFaultText(fault.number));
    } catch (const Failure& failure) {
        fail(loadFaultText(failure.code()));
    }
    if (!text) {
        state.ProgramFile = fileBefore;
        state.ProgramFolder = folderBefore;
        return calc.focusEntry();
    }
    state.TraceHeaderDone = false;
    state.variableMissing = false;
    state.ProgramLoaded = true;
    state.ProgramKeyNames.fill({});
    state.variables.forgetNames();
    if (calc.s.modes.MemoryArrayMode) {
        parts.registers.MemoryArray();
    } else if (calc.s.modes.ProgramMode) {
        mode.ToggleProgramMode();
    }
    mode.ToggleProgramMode();
    readDeclarations(*text);
    calc.focusEntry();
}

// Free text may stand before the first label; only declarations are looked at there.
void Programs::readDeclarations(const ProgramText& text) {
    bool runInit = false;
    for (int number = 1;; ++number) {
        if (std::exchange(runInit, false)) {
            RunProgramKey(kInitKey);
            if (state.variableMissing || !calc.s.modes.ProgramMode) {
                return;
            }
        }
        if (number > text.count()) {
            fail(loadFaultText(static_cast<int>(ProgramFaultNumber::PastEndOfFile)));
            break;
        }
        const std::string_view line = text.line(number).text;
        if (line.starts_with("lbl")) {
            break;
        }
        if (line.starts_with('#')) {
            declare(line);
            runInit = true;
        }
    }
    if (!state.variables.initialized()) {
        fail("Program not initialized, first unignored character has to be \"#\" !");
    }
}

void Programs::declare(std::string_view line) {
    // What was taken apart knows the names of an earlier declaration.
    text_.reset();
    constexpr std::size_t kFirstName = 2;
    const std::string_view names = line.size() > kFirstName ? line.substr(kFirstName) : std::string_view{};
    state.variables.declare(names, [&](const std::string& name) {
        if (const std::string_view text = complaint(name); !text.empty()) {
            fail(std::string(text));
        }
    });
}

}  // namespace tallyforge
