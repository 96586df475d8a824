// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_run.h"

#include "engine/engine.h"
#include "numbers/number_format.h"
#include "program/comparison.h"

#include <cmath>

namespace tallyforge {

void ProgramRun::run(const std::string& label) {
    findLabel(label);
    while (!over()) {
        goOneLineOn();
        tick();
        const ProgramLine* line = text->known(position_);
        if (line == nullptr) {
            if (text->line(position_).skipped()) {
                continue;
            }
            line = &takenApart();
        }
        if (std::exchange(behindIf_, false)) {
            runBehindIf(*line);
        } else {
            runLine(*line);
        }
    }
}

const ProgramLine& ProgramRun::takenApart() {
    if (text->full() && tools.control.running == 1) {
        // No line is under way, here or in a run around this one.
        text->forgetPrepared();
    }
    return text->prepared(position_, state.variables);
}

void ProgramRun::goOneLineOn() {
    if (position_ >= text->count()) {
        throw ProgramFault(ProgramFaultNumber::PastEndOfFile);
    }
    ++position_;
    ++lineNumber_;
}

WrittenLine ProgramRun::nextLine() {
    goOneLineOn();
    return text->line(position_);
}

void ProgramRun::runLine(const ProgramLine& line) {
    Variables& variables = state.variables;
    if (line.isName) {
        executeWord(line.whole);
        return;
    }
    if (line.assigns) {
        variables.ProgramVarScan = kNoScan;
    }
    const bool several = line.words.size() > 2;
    if (several && variables.ProgramVarScan != kNoScan) {
        // Kept as it always was: from a load to the first line with "=" an expression keeps its result.
        if (line.variable >= 0) {
            executeAll(line.joined, 0, line.variable);
            return;
        }
        variables.ProgramVarScan = kNoScan;
    } else if (several && !line.isIf) {
        expressionOrAssignment(line);
        return;
    }
    if (line.isIf) {
        runIf(line);
    } else {
        executeWord(line.whole);
    }
}

// The line behind an "if" is told apart by its first word alone.
void ProgramRun::runBehindIf(const ProgramLine& line) {
    const bool named = state.variables.ProgramVarCount > 0 && line.variable >= 0;
    if (!named) {
        executeWord(line.whole);
    } else if (tokensOfIf_ > 2) {
        expressionOrAssignment(line);
    }
}

void ProgramRun::expressionOrAssignment(const ProgramLine& line) {
    if (line.isAssignment) {
        assign(line);
        return;
    }
    if (line.variable < 0) {
        // Kept as it always was: the search for the name runs off its counter.
        throw ProgramFault(ProgramFaultNumber::Overflow);
    }
    executeAll(line.words, 0);
}

void ProgramRun::assign(const ProgramLine& line) {
    if (line.variable < 0 || line.words.size() < 3) {
        state.variableMissing = true;
        throw ProgramFault(ProgramFaultNumber::VariableNotDeclared,
                           " Variable \"" + line.words.front().text + "\" not declared" + nearLine());
    }
    executeAll(line.words, 2, line.variable);
}

void ProgramRun::executeAll(const Words& words, std::size_t from, int storeTo) {
    const Words* const row = std::exchange(row_, &words);
    const std::size_t at = at_;
    for (at_ = from; at_ < words.size() && !over(); ++at_) {
        executeWord(words[at_]);
        if (storeTo >= 0) {
            state.variables.ProgramVarValues[static_cast<std::size_t>(storeTo)] = numberInX();
        }
    }
    row_ = row;
    at_ = at;
}

void ProgramRun::runIf(const ProgramLine& line) {
    const int here = position_;
    executeAll(line.test.left, 0);
    const double left = numberInX();
    tools.keys.drop();
    executeAll(line.test.right, 0);
    const double right = numberInX();
    tools.keys.drop();
    if (!comparisonHolds(left, line.test.op, right)) {
        const int endif = text->endifOf(here);
        if (endif == 0) {
            lineNumber_ += text->count() - here;
            throw ProgramFault(ProgramFaultNumber::PastEndOfFile);
        }
        lineNumber_ += endif - here;
        position_ = endif;
    }
    behindIf_ = true;
    tokensOfIf_ = line.words.size();
}

// An X that a key has left empty counts as 0.
double ProgramRun::numberInX() const {
    const ValueCell& x = calc.s.stack.Xreg;
    if (const double* const number = x.asDouble()) {
        return *number;
    }
    return x.isEmptyText() ? 0.0 : calc.xNumber();
}

void ProgramRun::executeWord(const ProgramWord& word) {
    tick();
    if (word.kind == ProgramWord::Kind::Statement) {
        executeStatement(word);
        return;
    }
    if (!calc.commit.quiet()) {
        calc.commit.settle();
    }
    if (state.TraceOn) {
        trace_.write(lineNumber_, word.text);
    }
    switch (word.kind) {
        case ProgramWord::Kind::Number:
            pushNumber(word.number);
            break;
        case ProgramWord::Kind::NoNumber:
            throw ProgramFault(word.failure);
        case ProgramWord::Kind::Function:
            pressFunction(*word.function);
            break;
        case ProgramWord::Kind::Variable:
            pushVariable(state.variables.ProgramVarValues[static_cast<std::size_t>(word.index)]);
            break;
        default:
            pushVariable(0.0);
            break;
    }
}

void ProgramRun::pushNumber(double number) {
    calc.commit.enterStored(number);
    // A number of fifteen digits needs no trip; a copy of X that has more does.
    if (const double* const x = calc.s.stack.Xreg.asDouble(); x == nullptr || *x != number) {
        roundTrip();
    }
}

void ProgramRun::pushVariable(double value) {
    calc.commit.pushCopy(value);
}

// A number of a base stays one.
void ProgramRun::pushCopy(const ValueCell& cell) {
    if (const auto number = cell.tryNumber(calc.s.format.DecimalChar); number && !cell.isEmptyText()) {
        pushNumber(fifteenDigits(*number));
    } else if (cell.isEmpty() || cell.isEmptyText()) {
        pushVariable(0.0);
    } else {
        calc.s.stack.LastX = calc.s.stack.Xreg;
        calc.commit.deliver({.value = cell, .place = OnStack::Pushes});
    }
}

void ProgramRun::pressFunction(const FunctionWord& word, int registerNumber) {
    tools.keys.DoProgramWord(word, registerNumber);
    roundTrip();
}

// X carries the fifteen digits of its text; the element on the stack keeps them all.
void ProgramRun::roundTrip() {
    ValueCell& x = calc.s.stack.Xreg;
    if (const double* const held = x.asDouble()) {
        x = fifteenDigits(*held);
        return;
    }
    if (x.isEmptyText()) {
        return;
    }
    if (const auto number = x.tryNumber(calc.s.format.DecimalChar)) {
        x = fifteenDigits(*number);
    }
}

void ProgramRun::restoreFormat() {
    EngineState& s = calc.s;
    if (s.modes.BaseMode) {
        // The run has brought the Binary keypad back, under which the format lies aside.
        s.format.SavedMode = formatBefore_.value_or(s.format.SavedMode);
        s.format.SavedDigits = digitsBefore_.value_or(s.format.SavedDigits);
        return;
    }
    if (formatBefore_ || digitsBefore_) {
        calc.display.useFormat(formatBefore_.value_or(s.format.Mode), digitsBefore_.value_or(s.format.DisplayDigits));
    }
}

void ProgramRun::tick() {
    constexpr int kWordsBetween = 256;
    if (++tools.control.words >= kWordsBetween) {
        tools.control.words = 0;
        constexpr std::chrono::milliseconds kOften{50};
        const auto now = std::chrono::steady_clock::now();
        if (now - tools.control.asked >= kOften) {
            breathe();
            tools.control.asked = std::chrono::steady_clock::now();
        }
    }
}

void ProgramRun::breathe() {
    calc.commit.wake();
    const Interruption wish = calc.platform.breathe();
    if (wish == Interruption::None) {
        return;
    }
    if (wish == Interruption::Break || calc.question("Program", "A program is running. Do you want to end it?")) {
        tools.control.interrupted = true;
        stop();
    }
}

void ProgramRun::stop() {
    ended_ = true;
    calc.message(BoxKind::Info, "Attention!", "Stop Statement encountered at Line " + std::to_string(lineNumber_));
}

std::string ProgramRun::nearLine() const {
    return " near line " + std::to_string(lineNumber_);
}

std::string ProgramRun::shown(const ValueCell& cell) const {
    const auto number = cell.tryNumber(calc.s.format.DecimalChar);
    return number && !cell.isEmptyText() ? calc.display.numDisplay(cell) : calc.text(cell);
}

}  // namespace tallyforge
