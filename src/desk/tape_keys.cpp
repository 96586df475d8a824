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
#include <memory>
#include <string>
#include <string_view>
#include <utility>

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

TapeKeys::TapeKeys(Engine& calculator, SettingsFile& settingsFile, MemoryRegisters& memory, MachineReset& machine)
    : calc(calculator), settings(settingsFile), registers(memory), reset(machine) {
    calc.tape.beforeGrowing([this](std::size_t bytes) { makeRoom(bytes); });
}

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
    content.tape = calc.tape;
    return content;
}

void TapeKeys::saveTo(const std::filesystem::path& path) {
    const char decimal = calc.s.format.DecimalChar;
    TapeFileContent content = present(calc.s.files.UndoKind);
    const bool byUser = content.kind == TapeFileKind::SavedByUser;
    if (!byUser) {
        undoFile_.reset();
        cleared_ = content;
        hasReset_ = true;
    }
    const auto leftOut = leaveOutUnheld(content, decimal);
    if (byUser) {
        tellLeftOut(calc, "Save Running Tape", leftOut);
    }
    std::optional<FileBytes> written;
    const bool saved = saveOrReport(calc, "mnuSaveTape_Click", path, [&](WholeFile& file) {
        writeTapeFile(content, decimal, [&](std::string_view line) { file.write(line); });
        written.emplace(file.written());
        checkReadsBack(content, *written, decimal);
    });
    if (!byUser && saved && written) {
        // Stays open, so that it is this file that is read, whatever another calculator puts in its place.
        undoFile_.emplace(std::move(*written));
    }
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

// What Reset clears is kept in memory, so that no full disk comes between. Where the tapes that follow,
// of `bytes`, leave no room for it, it lies in its file alone; without a file its oldest lines give way.
void TapeKeys::makeRoom(std::size_t bytes) {
    constexpr std::size_t kAllTapes = Tape::kMostBytes + (std::size_t{40} << 20U);
    if (!cleared_ || cleared_->tape.bytes() + bytes <= kAllTapes) {
        return;
    }
    if (undoFile_) {
        cleared_.reset();
    } else {
        cleared_->tape.shrinkTo(kAllTapes - std::min(bytes, kAllTapes));
    }
}

void TapeKeys::noteUndoFile() {
    undoFileAtStart_ = changeOf(calc.AppDataDir / kUndoFile);
}

void TapeKeys::undo() {
    const std::filesystem::path path = calc.AppDataDir / kUndoFile;
    if (cleared_) {
        restore(*cleared_);
    } else if (undoFile_) {
        restore(read(*undoFile_));
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
    const auto file = onFile([&] { return std::make_unique<FileBytes>(path); });
    restore(read(*file));
}

TapeFileContent TapeKeys::read(const Bytes& file) {
    return readTapeFile(file, calc.s.format.DecimalChar,
                        [this](std::size_t bytes) { makeRoom(calc.tape.bytes() + bytes); });
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
    calc.tape.take(content.tape);
    const bool full = calc.tape.fillers() == 0 && calc.tape.count() > static_cast<std::size_t>(s.window.TapeRows);
    calc.form.lstDisplayReg.place.width = full ? kWideTape : kNarrowTape;
    calc.stackList.refresh();
    calc.commit.ShowSmallRegs();
}

}  // namespace tallyforge
