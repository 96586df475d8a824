// SPDX-License-Identifier: GPL-3.0-or-later
//
// The statements of a run, each in a function.
#include "engine/engine.h"
#include "program/message_text.h"
#include "program/program_run.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

/// What stands in `text` from character `first` on, counted from 1.
std::string from(const std::string& text, std::size_t first) {
    return text.size() < first ? std::string{} : text.substr(first - 1);
}

/// The statement goes to another line and leaves the calculator as it is.
bool movesOnly(Statement statement) {
    return statement == Statement::Gsb || statement == Statement::Glb || statement == Statement::End ||
           statement == Statement::EndIf || statement == Statement::If || statement == Statement::X ||
           statement == Statement::Y;
}

}  // namespace

void ProgramRun::executeStatement(const ProgramWord& word) {
    if (word.statement == Statement::Trac) {
        trac(word);
    }
    if (state.TraceOn) {
        trace_.write(lineNumber_, word.text);
    }
    if (!movesOnly(word.statement)) {
        calc.commit.wake();
    }
    switch (word.statement) {
        case Statement::Stop:
            return stop();
        case Statement::Cbld:
        case Statement::Bold:
            return mark(word, word.statement == Statement::Bold);
        case Statement::Umsg:
            return showMessage();
        case Statement::Gsb:
        case Statement::Glb:
            return jump(word, word.statement == Statement::Gsb);
        case Statement::SetFlag:
        case Statement::ClearFlag:
        case Statement::TestFlag:
            return flag(word);
        case Statement::Pause:
            return pause(word);
        case Statement::Format:
            if (!formatBefore_) {
                formatBefore_ = calc.s.format.Mode;
            }
            return pressFunction(*word.function);
        case Statement::Dsp:
            return digits(word);
        case Statement::Name:
            return rename(word);
        case Statement::Reset:
        case Statement::Aset:
            return reset(word);
        case Statement::End:
            return endOfSection();
        case Statement::If:
            return compare(word);
        case Statement::Sto:
        case Statement::Rcl:
            return memory(word);
        case Statement::X:
            return pushCopy(ValueCell(calc.s.stack.Xreg));
        case Statement::Y:
            return pushCopy(ValueCell(calc.s.stack.Yreg));
        case Statement::Seed:
            return pushSeconds();
        case Statement::Kill:
            killed_ = true;
            return pressFunction(*word.function);
        case Statement::Trac:
        case Statement::EndIf:
        case Statement::None:
            break;
    }
}

void ProgramRun::compare(const ProgramWord& word) {
    if (word.text.find(' ') == std::string::npos) {
        // As a word of another line it has nothing to compare.
        throw ProgramFault(ProgramFaultNumber::Overflow);
    }
    runIf(text->prepared(position_, state.variables));
}

void ProgramRun::pushSeconds() {
    const LocalTime now = calc.platform.now();
    pushNumber((now.hour * 60.0 + now.minute) * 60.0 + now.second);
}

void ProgramRun::trac(const ProgramWord& word) {
    if (word.text == "trac") {
        tools.mode.toggleTrace(KeyColour::PaleYellow);
    } else if (withoutBlanks(from(word.text, 6)) == "1") {
        listVariables();
    } else {
        throw ProgramFault(ProgramFaultNumber::IllegalCharacter, " illegal character" + nearLine());
    }
}

// Kept as it always was: the number of the line counts the variables, and stays changed.
void ProgramRun::listVariables() {
    for (lineNumber_ = 0; lineNumber_ <= state.variables.ProgramVarCount; ++lineNumber_) {
        tools.mode.listVariable(lineNumber_);
    }
}

void ProgramRun::mark(const ProgramWord& word, bool bold) {
    std::string caption{withoutBlanks(from(word.text, 5))};
    if (!bold && caption.size() == 1) {
        caption = capitals(caption);
    }
    if (const int key = tools.mode.keyWithCaption(caption); key >= 0) {
        tools.mode.setBold(key, bold);
    }
}

void ProgramRun::showMessage() {
    constexpr std::string_view kGoesOn = "#_";
    std::string last{nextLine().asWritten};
    if (!last.starts_with('\\')) {
        throw ProgramFault(ProgramFaultNumber::MessageWithoutBackslash,
                           "; First character not \"\\\"! In program" + nearLine());
    }
    std::string whole = last;
    while (whole.ends_with(kGoesOn)) {
        whole.resize(whole.size() - kGoesOn.size());
        last = nextLine().asWritten;
        whole += last;
    }
    calc.message(BoxKind::Info, "Attention!",
                 messageText(
                     whole, last, [&] { return shown(calc.s.stack.Xreg); }, [&] { return shown(calc.s.stack.Yreg); }));
    breathe();
}

void ProgramRun::jump(const ProgramWord& word, bool returns) {
    if (returns) {
        if (returns_.size() == kDeepest) {
            throw ProgramFault(ProgramFaultNumber::NestedTooDeep);
        }
        returns_.push_back({position_, lineNumber_});
    }
    constexpr std::string_view kInit = "init";
    if (word.target > 0 && !word.text.ends_with(kInit)) {
        position_ = word.target;
        lineNumber_ = word.target;
    } else {
        findLabel(from(word.text, 5));
    }
}

void ProgramRun::findLabel(const std::string& label) {
    if (const auto line = text->label(label)) {
        position_ = *line;
        lineNumber_ = *line;
        if (label == "init") {
            state.ProgramFlags.fill(false);
            tools.mode.ClearKeyBold(0, kBankKeys - 1);
        }
        return;
    }
    lineNumber_ = text->count();
    if (label == "init") {
        ended_ = true;
        return;
    }
    throw ProgramFault(ProgramFaultNumber::LabelNotAssigned, "; Label " + capitals(label) + " not assigned!");
}

void ProgramRun::endOfSection() {
    if (returns_.empty()) {
        ended_ = true;
        return;
    }
    position_ = returns_.back().position;
    lineNumber_ = returns_.back().lineNumber;
    returns_.pop_back();
}

int ProgramRun::operand(const ProgramWord& word) const {
    constexpr double kMost = 32767.0;
    if (word.failure != 0) {
        throw ProgramFault(word.failure);
    }
    if (std::abs(word.number) > kMost) {
        throw ProgramFault(ProgramFaultNumber::Overflow);
    }
    return static_cast<int>(std::nearbyint(word.number));
}

void ProgramRun::flag(const ProgramWord& word) {
    const int number = operand(word);
    if (word.statement == Statement::TestFlag) {
        testFlag(number);
    } else if (number >= 0 && number < kProgramFlags) {
        state.ProgramFlags.at(static_cast<std::size_t>(number)) = word.statement == Statement::SetFlag;
    }
}

// A flag that there is not counts as set.
void ProgramRun::testFlag(int number) {
    if (number < 0 || number >= kProgramFlags) {
        return;
    }
    bool& held = state.ProgramFlags.at(static_cast<std::size_t>(number));
    if (!held) {
        static_cast<void>(nextLine());
        return;
    }
    if (number >= kFirstOneShotFlag) {
        held = false;
    }
    if (number == kDigitFlag) {
        calc.s.entry.DigitTyped = false;
    }
}

void ProgramRun::pause(const ProgramWord& word) {
    // A day is the most that a clock of seconds since midnight can count to.
    constexpr double kLongest = 86400.0;
    constexpr double kSlice = 0.05;
    if (word.failure != 0) {
        throw ProgramFault(word.failure);
    }
    calc.showPending();
    for (double left = std::min(word.number, kLongest); left > 0.0 && !over(); left -= kSlice) {
        calc.platform.sleep(std::chrono::milliseconds(std::lround(std::min(left, kSlice) * 1000.0)));
        breathe();
    }
}

void ProgramRun::digits(const ProgramWord& word) {
    if (!digitsBefore_) {
        digitsBefore_ = calc.s.format.DisplayDigits;
    }
    calc.setEntry(withoutBlanks(from(word.text, 5)));
    calc.display.cmdDigits_Click();
}

void ProgramRun::rename(const ProgramWord& word) {
    const std::string caption = from(word.text, 8);
    if (caption.empty()) {
        throw ProgramFault(static_cast<int>(FailureNumber::InvalidArgument));
    }
    constexpr unsigned char kLastBeforeSmallLetters = 96;
    if (caption.size() < 2 && static_cast<unsigned char>(caption.front()) > kLastBeforeSmallLetters) {
        throw ProgramFault(ProgramFaultNumber::ShortButtonName,
                           "; PKP button names beginning with a letter must be greater than 1 character long! \n\n\"" +
                               word.text + "\"" + nearLine());
    }
    tools.mode.rename(capitals(word.text.substr(5, 1)), caption);
}

// Inside "init" a reset runs once: what the Reset key has begun is not begun again.
void ProgramRun::reset(const ProgramWord& word) {
    const bool leaves = word.statement == Statement::Reset && word.text.back() == '1';
    if ((init_ && std::exchange(state.resetLatch, false)) || (leaves && state.resetting)) {
        return;
    }
    pressFunction(*findFunction(word.statement == Statement::Reset ? "reset" : "aset"), leaves ? 1 : 0);
}

void ProgramRun::memory(const ProgramWord& word) {
    const FunctionWord& key = *findFunction(word.statement == Statement::Sto ? "sto" : "rcl");
    if (word.text == "rcl" && row_ != nullptr && at_ + 1 < row_->size()) {
        const ProgramWord& number = (*row_)[++at_];
        if (number.kind != ProgramWord::Kind::Number) {
            throw ProgramFault(static_cast<int>(FailureNumber::TypeMismatch));
        }
        return pressFunction(key, operand(number));
    }
    pressFunction(key, operand(word));
}

}  // namespace tallyforge
