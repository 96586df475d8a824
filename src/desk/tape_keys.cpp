// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/tape_keys.h"

#include "desk/machine_reset.h"
#include "desk/memory_registers.h"
#include "engine/engine.h"
#include "engine/tape_width.h"
#include "records/data_files.h"
#include "records/file_check.h"
#include "records/file_failure.h"
#include "records/settings_file.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

bool endsInBaseLetter(std::string_view text) {
    return !text.empty() && std::string_view{"bdho"}.find(text.back()) != std::string_view::npos;
}

std::optional<std::filesystem::file_time_type> changeOf(const std::filesystem::path& path) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(path, error);
    return error ? std::nullopt : std::optional{time};
}

}  // namespace

void TapeKeys::lstDisplayReg_DblClick() {
    EngineState& s = calc.s;
    const std::size_t row = calc.tape.selected();
    const std::size_t fillersBefore = static_cast<std::size_t>(calc.tape.fillers());
    std::string text = calc.tape.row(row);
    ValueCell value = calc.tape.value(row);
    s.CurrentProc = "lstDisplayReg";
    if (row < fillersBefore || row >= calc.tape.count()) {
        return;
    }
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    while (s.modes.BaseMode && text.starts_with('#') && !endsInBaseLetter(text) && text.ends_with(' ')) {
        text.pop_back();
    }
    const auto blanks = text.rfind("  ");
    s.stack.Xreg = std::move(value);
    s.delivery.FnLabel = blanks == std::string::npos ? "Rtrv" : text.substr(blanks);
    calc.commit.pushRecalled();
}

void TapeKeys::lstStack_Click() {
    EngineState& s = calc.s;
    const std::size_t row = calc.stackList.selected();
    if (row >= calc.stackList.count()) {
        return;
    }
    const ValueCell value = s.stack.slot(calc.stackList.element(row));
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    s.stack.Xreg = value;
    s.delivery.FnLabel = "Rtrv";
    calc.commit.pushRecalled();
}

TapeFileContent TapeKeys::present(TapeFileKind kind) const {
    const EngineState& s = calc.s;
    TapeFileContent content;
    content.kind = kind;
    content.registers = registers.lines();
    content.LastX = s.stack.LastX;
    content.Yreg = s.stack.Yreg;
    content.StackPtr = s.stack.StackPtr;
    content.Xreg = s.stack.Xreg;
    for (int element = 1; element < s.stack.StackPtr; ++element) {
        content.stack.push_back(s.stack.slot(element));
    }
    content.fillers = calc.tape.fillers();
    for (std::size_t row = 0; row < calc.tape.count(); ++row) {
        content.lines.push_back(calc.tape.row(row));
        if (row >= static_cast<std::size_t>(content.fillers)) {
            content.values.push_back(calc.tape.value(row));
        }
    }
    return content;
}

void TapeKeys::saveTo(const std::filesystem::path& path) {
    const char decimal = calc.s.format.DecimalChar;
    TapeFileContent content = present(calc.s.files.UndoKind);
    if (calc.s.files.UndoKind != TapeFileKind::SavedByUser) {
        keepForUndo(content);
    }
    const auto leftOut = leaveOutUnheld(content, decimal);
    if (calc.s.files.UndoKind == TapeFileKind::SavedByUser) {
        tellLeftOut(calc, "Save Running Tape", leftOut);
    }
    saveOrReport(calc, "mnuSaveTape_Click", path, [&] {
        std::string text = formatTapeFile(content, decimal);
        checkReadsBack(content, text, decimal);
        return text;
    });
}

void TapeKeys::mnuSaveTape_Click() {
    EngineState& s = calc.s;
    if (s.files.UndoKind != TapeFileKind::None) {
        saveTo(calc.AppDataDir / kUndoFile);
    } else {
        s.files.UndoKind = TapeFileKind::SavedByUser;
        calc.keypads().RepaintKeypad();
        calc.ClearOptKeys();
        if (const auto path = askWhereToSave(calc, "Save Running Tape", s.files.TapeFileName)) {
            if (askForDefaultName(calc, *path)) {
                rememberFileName(calc, settings, DefaultName::Tape, *path);
            }
            saveTo(*path);
        }
    }
    s.files.UndoKind = TapeFileKind::None;
}

// What Reset clears is kept in memory, too, so that no full disk and no file of another calculator
// comes between; the file serves the next start. A tape too long to be kept twice lies in the file.
void TapeKeys::keepForUndo(const TapeFileContent& content) {
    constexpr std::size_t kMostLines = 1'000'000;
    cleared_.reset();
    if (content.lines.size() <= kMostLines) {
        cleared_ = content;
    }
    hasReset_ = true;
}

void TapeKeys::noteUndoFile() {
    undoFileAtStart_ = changeOf(calc.AppDataDir / kUndoFile);
}

void TapeKeys::undo() {
    const std::filesystem::path path = calc.AppDataDir / kUndoFile;
    if (cleared_) {
        restore(*cleared_);
    } else if (!hasReset_ && changeOf(path) != undoFileAtStart_) {
        // Another calculator has reset since this one was started; that is its undo.
        throw Failure{FailureNumber::FileNotFound};
    } else {
        retrieve(path);
    }
}

std::optional<std::filesystem::path> TapeKeys::askForTape() {
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    const auto path = askWhatToRetrieve(calc, "Retrieve Running Tape", calc.s.files.TapeFileName);
    return path && mayReplaceAll() ? path : std::nullopt;
}

bool TapeKeys::mayReplaceAll() {
    return calc.question("Overwrite?", "This will overwrite all your current information, continue?");
}

void TapeKeys::retrieveOrReport(const std::filesystem::path& path) {
    const auto report = [&](const Failure& failure) { calc.errorBox(BoxKind::Notice, retrievalMessage(failure)); };
    goOn(report, [&] { retrieve(path); });
}

void TapeKeys::openFile(const std::filesystem::path& path) {
    calc.s.CurrentProc = "mnuTape";
    if (mayReplaceAll()) {
        retrieveOrReport(path);
    }
    calc.s.CurrentProc = "";
}

void TapeKeys::mnuTape_Click() {
    EngineState& s = calc.s;
    s.CurrentProc = "mnuTape";
    const bool undoes = s.files.UndoKind == TapeFileKind::Undo;
    const auto path = undoes ? std::nullopt : askForTape();
    s.CurrentProc = "mnuTape";
    const auto report = [&](const Failure& failure) { calc.errorBox(BoxKind::Notice, retrievalMessage(failure)); };
    if (undoes) {
        goOn(report, [&] { undo(); });
    } else if (path) {
        retrieveOrReport(*path);
    }
    s.files.UndoKind = TapeFileKind::None;
    s.CurrentProc = "";
    calc.focusEntry();
}

void TapeKeys::retrieve(const std::filesystem::path& path) {
    const std::string text = onFile([&] { return readWhole(path); });
    restore(parseTapeFile(text, calc.s.format.DecimalChar));
}

void TapeKeys::restore(const TapeFileContent& content) {
    if (content.hasStack()) {
        reset.clearStackAndTape();
    }
    if (content.hasRegisters()) {
        reset.clearRegisters();
        registers.take(content.registers);
    }
    if (content.hasStack()) {
        take(content);
    }
    for (Control* key : {&calc.form.cmdSTO, &calc.form.cmdDown, &calc.form.cmdXchgY, &calc.form.cmdLastx}) {
        key->enabled = true;
    }
}

void TapeKeys::take(const TapeFileContent& content) {
    EngineState& s = calc.s;
    const auto orZero = [](const ValueCell& value) {
        return value.isEmpty() || value.isEmptyText() ? ValueCell::zero() : value;
    };
    s.stack.LastX = orZero(content.LastX);
    s.stack.Yreg = orZero(content.Yreg);
    s.stack.Xreg = orZero(content.Xreg);
    s.stack.StackPtr = content.StackPtr;
    s.stack.Stack.resize(static_cast<std::size_t>(s.stack.StackPtr) + 2);
    std::transform(content.stack.begin(), content.stack.end(), s.stack.Stack.begin() + 1, orZero);
    // What was left below an empty stack is still the Y that is shown, and what Y is for every key.
    const ValueCell& below = s.stack.depth() == 0 ? s.stack.Xreg : s.stack.Yreg;
    s.stack.Stack.front() = s.stack.depth() > 1 || below == ValueCell::zero() ? ValueCell{} : below;
    calc.tape.clear(0);
    for (std::size_t row = 0; row < content.lines.size(); ++row) {
        const auto fillers = static_cast<std::size_t>(content.fillers);
        calc.tape.add(content.lines[row], row < fillers ? ValueCell{} : content.values[row - fillers]);
    }
    calc.tape.setFillers(content.fillers);
    const bool full = content.fillers == 0 && content.lines.size() > static_cast<std::size_t>(s.window.TapeRows);
    calc.form.lstDisplayReg.place.width = full ? kWideTape : kNarrowTape;
    calc.stackList.refresh();
    calc.commit.ShowSmallRegs();
}

}  // namespace tallyforge
