// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/programs.h"

#include "engine/engine.h"
#include "platform/file_store.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kOutOfMemory = 7;
// Far beyond what a hand writes; a larger file is hardly a program.
constexpr std::size_t kLargestProgram = std::size_t{4} << 20U;
constexpr std::ptrdiff_t kMostLines = 300'000;

/// Keys that run a section, "init" apart.
bool runsSection(int index) {
    return index > kProgramExplorerKey && index != kInitKey;
}

/// Keeps what a run needs set while it lasts, and one that runs inside it.
class Running {
public:
    Running(Engine& calculator, RunControl& runControl)
        : calc(calculator), control(runControl), watched_(std::exchange(calculator.unwatched, true)) {
        if (control.running++ == 0) {
            control.interrupted = false;
            control.asked = std::chrono::steady_clock::now();
        }
    }
    ~Running() {
        --control.running;
        calc.commit.wake();
        calc.unwatched = watched_;
        if (!calc.unwatched) {
            try {
                calc.showPending();
            } catch (const std::bad_alloc&) {
                // The marks and fields come with the next key.
            }
        }
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    Engine& calc;
    RunControl& control;
    bool watched_;
};

}  // namespace

void Programs::fail(const std::string& text, const std::string& title) {
    calc.message(BoxKind::Stop, title, text);
}

void Programs::pressLetter(int letter) {
    if (const int index = keyOfProgramLetter(letter); index >= 0) {
        RunProgramKey(index);
    }
}

void Programs::RunProgramKey(int index) {
    if (!calc.entryText().empty()) {
        calc.commit.cmdEnter_Click();
    }
    const std::string label = mode.label(index);
    if (!mayStart(index, label)) {
        return;
    }
    begin(index, label);
    if (label == "init" && state.resetLatch) {
        return;
    }
    if (mode.specialKey(label)) {
        return;
    }
    if (calc.s.entry.DigitTyped) {
        state.ProgramFlags.at(kDigitFlag) = true;
    }
    runSection(index, label);
}

bool Programs::mayStart(int index, const std::string& label) {
    if (calc.s.modifiers.ModifierMask == 0 || (!runsSection(index) && label != "init")) {
        return true;
    }
    calc.ClearOptKeys();
    return false;
}

void Programs::begin(int index, const std::string& label) {
    if (runsSection(index)) {
        mode.setBold(index, true);
    }
    if (label == "init") {
        state.ProgramFlags.fill(false);
        state.variables.clearValues();
        mode.ClearKeyBold(0, kBankKeys - 1);
    }
}

// Read anew for each run, so that a file that was changed counts at once; taken apart anew only
// where it was changed.
std::shared_ptr<ProgramText> Programs::readProgram() {
    if (state.ProgramFile.empty()) {
        throw ProgramFault(ProgramFaultNumber::NoProgram);
    }
    try {
        std::string bytes = readWhole(state.programPath(), kLargestProgram);
        if (std::max(std::count(bytes.begin(), bytes.end(), '\n'), std::count(bytes.begin(), bytes.end(), '\r')) >=
            kMostLines) {
            throw ProgramFault(kOutOfMemory);
        }
        if (!text_ || bytes != bytes_) {
            bytes_ = std::move(bytes);
            text_ = std::make_shared<ProgramText>(bytes_);
        }
        return text_;
    } catch (const FileError& error) {
        if (error.problem() == FileProblem::TooLarge) {
            throw ProgramFault(kOutOfMemory);
        }
        if (error.problem() == FileProblem::NotFound) {
            throw ProgramFault(ProgramFaultNumber::NoProgram);
        }
        throw Failure{FailureNumber::PathAccess};
    }
}

bool Programs::countsFit(const ProgramText& text) {
    const ProgramCounts counts = text.counts();
    if (counts.ifs > counts.endifs) {
        fail("There is a missing endif statement!", "If without endif");
        return false;
    }
    if (counts.labels > counts.ends) {
        fail("There is more lbl statements then end statements!", "lbl without end");
        return false;
    }
    return true;
}

void Programs::runSection(int index, const std::string& label) {
    const Running running(calc, control_);
    std::shared_ptr<ProgramText> text;
    std::unique_ptr<ProgramRun> run;
    const auto line = [&] { return run ? run->lineNumber() : 0; };
    try {
        text = readProgram();
        if (!countsFit(*text)) {
            return;
        }
        run = std::make_unique<ProgramRun>(ProgramRun::Tools{calc, state, mode, keys, control_}, text, label == "init");
        run->run(label);
    } catch (const ProgramFault& fault) {
        report(index, fault.number, fault.text, line());
    } catch (const Failure& failure) {
        report(index, failure.code(), {}, line());
    } catch (const std::bad_alloc&) {
        calc.s.delivery = {};
        calc.closeEmptyEntry();
        report(index, kOutOfMemory, {}, line());
    }
    if (run) {
        run->restoreFormat();
        if (calc.s.stack.depth() > 0) {
            // The keys' own commits leave them alone while a program presses.
            calc.commit.enableStackKeys();
        }
        if (!run->killed()) {
            mode.RefreshProgramKeyTips();
        }
    }
    if (!loadingAtStart_) {
        calc.focusEntry();
    }
}

void Programs::report(int index, int number, const std::string& own, int line) {
    if (number == static_cast<int>(ProgramFaultNumber::LabelNotAssigned) && runsSection(index)) {
        mode.setBold(index, false);
    }
    fail(faultText(number, own, line));
}

void Programs::resetProgram() {
    calc.setEntry({});
    if (!state.ProgramFile.empty()) {
        const bool before = std::exchange(state.resetting, true);
        RunProgramKey(kInitKey);
        state.resetting = before;
    }
    if (calc.s.modes.ProgramMode) {
        mode.ToggleProgramMode();
    }
}

}  // namespace tallyforge
