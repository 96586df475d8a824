// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/quiz.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kAwaitsMaximum = 10;
constexpr int kQuestions = 10;
constexpr double kLargestMaximum = 99.0;

enum Operation { kAdd = 2, kSubtract = 3, kMultiply = 4, kDivide = 5 };

struct OperationTexts {
    std::string_view name;
    std::string_view sign;
};
/// In the order of Operation.
constexpr std::array<OperationTexts, 4> kTexts{
    {{"Addition (+)", "+ "}, {"Subtraction (-)", "- "}, {"Mutiplication (x)", "x "}, {"Division (ö)"_t, "ö "_t}}};

const OperationTexts& textsOf(int operation) {
    return kTexts.at(static_cast<std::size_t>(operation - kAdd));
}

/// `left`, and `right` behind the point: 12 and 7 are 12.7, 12 and 10 are 12.10, which is 12.1.
double bothNumbers(int left, int right) {
    double behind = right;
    while (behind >= 1.0) {
        behind /= 10.0;
    }
    return left + behind;
}

std::vector<Control*> disturbing(MainForm& form) {
    std::vector<Control*> controls{
        &form.cmdF11,     &form.cmdF12,      &form.cmdDown,    &form.cmdXchgY, &form.cmdLastx,
        &form.cmdChs,     &form.cmdSTO,      &form.cmdDigits,  &form.cmdEex,   &form.cmdNumPad[key::kPadDecimal],
        &form.mnuSave,    &form.mnuSaveTape, &form.mnuSaveMem, &form.mnuTape,  &form.mnuRetMem,
        &form.mnuProgram, &form.mnuPaste,    &form.mnuSkins};
    for (const KeypadEntry& entry : form.keypadMenu()) {
        controls.push_back(&entry.control);
    }
    for (Control& key : form.cmdMath) {
        controls.push_back(&key);
    }
    for (Control& option : form.optFix) {
        controls.push_back(&option);
    }
    return controls;
}

}  // namespace

void Quiz::quizKey() {
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    if (!running_) {
        return mask <= kShift ? start(mask == 0 ? kAdd : kSubtract) : refuseModifiers(calc);
    }
    if (mask == 0) {
        takeNumber();
    } else if (mask == (kCtrl | kAlt)) {
        stop();
    } else {
        ignore();
    }
}

void Quiz::multiply() {
    start(kMultiply);
}

void Quiz::divide() {
    start(kDivide);
}

// X stays what it is.
void Quiz::ignore() {
    calc.s.stack.KeepX = calc.s.stack.Xreg;
    leaveNothing(calc);
}

void Quiz::start(int operation) {
    static_cast<void>(calc.s.functions.takeReset(ResetBit::Quiz));
    QuizAsked = 0;
    QuizRight = 0;
    QuizWrong = 0;
    takeOver();
    QuizOp = operation + kAwaitsMaximum;
    dressKey("max", operation == kDivide ? "Enter Max. answer [Click]" : "Enter Max. number used [Click]");
    calc.form.lblName.text = textsOf(operation).name;
    ownTop_ = calc.s.stack.StackPtr;
    ignore();
}

void Quiz::takeOver() {
    EngineState& s = calc.s;
    running_ = true;
    s.modes.QuizMode = true;
    keptNoKeyPaint_ = std::exchange(s.modifiers.NoKeyPaint, true);
    keptMode_ = s.format.Mode;
    keptDigits_ = s.format.DisplayDigits;
    calc.display.useFormat(DisplayMode::Fixed, 0);
    kept_.clear();
    for (Control* control : disturbing(calc.form)) {
        kept_.push_back({.control = control, .visible = control->visible, .enabled = control->enabled});
        control->enabled = false;
    }
    for (Control& key : calc.form.cmdFunctions) {
        kept_.push_back({.control = &key, .visible = key.visible, .enabled = key.enabled});
        key.visible = false;
    }
}

void Quiz::dressKey(std::string_view caption, std::string_view tip) {
    Control& key = calc.form.cmdFunctions.at(kKey);
    key.text = caption;
    key.font = Font{.face = Face::SmallFonts, .points = 7.0F};
    key.tip = tip;
    key.visible = true;
}

// Without a number of its own a press would take the problem for the answer.
void Quiz::takeNumber() {
    if (calc.s.stack.StackPtr <= ownTop_) {
        ignore();
    } else if (QuizOp > kAwaitsMaximum) {
        takeMaximum();
    } else {
        takeAnswer();
    }
}

void Quiz::takeMaximum() {
    const double wanted = calc.xNumber();
    calc.s.stack.StackPtr = ownTop_;
    if (wanted < 1.0 || wanted > kLargestMaximum) {
        calc.message(BoxKind::Plain, "Error!", "Number must be between 1 and 99!");
        ignore();
        return;
    }
    QuizOp -= kAwaitsMaximum;
    QuizMax = static_cast<int>(wanted);
    pushAtOnce(calc, {static_cast<double>(QuizMax), "Maximum number used"}, true);
    dressKey("?", " Input Answer! ");
    makeProblem();
    poseProblem();
}

void Quiz::makeProblem() {
    const auto draw = [this] { return static_cast<int>(calc.platform.random() * QuizMax) + 1; };
    QuizA = draw();
    QuizB = draw();
    switch (QuizOp) {
        case kSubtract:
            if (QuizA < QuizB) {
                std::swap(QuizA, QuizB);
            }
            QuizAnswer = QuizA - QuizB;
            break;
        case kMultiply:
            QuizAnswer = QuizA * QuizB;
            break;
        case kDivide:
            QuizAnswer = QuizA;
            QuizA *= QuizB;
            break;
        default:
            QuizAnswer = QuizA + QuizB;
    }
    QuizText = std::string(textsOf(QuizOp).sign) + std::to_string(QuizB);
}

void Quiz::poseProblem() {
    // Rounded to whole numbers the two would be one, and a wrong one.
    calc.s.delivery.writtenAs = WrittenAs::Text;
    pushOnX(calc, {bothNumbers(QuizA, QuizB), QuizText});
    ownTop_ = calc.s.stack.StackPtr + 1;
}

void Quiz::takeAnswer() {
    const double answer = calc.xNumber();
    const bool right = answer == QuizAnswer;
    calc.s.stack.StackPtr = ownTop_;
    ++QuizAsked;
    ++(right ? QuizRight : QuizWrong);
    pushAtOnce(calc, {answer, right ? "You are right!" : "Try again"}, true);
    if (QuizAsked == kQuestions) {
        sayScore();
    }
    if (right) {
        makeProblem();
    }
    poseProblem();
}

void Quiz::sayScore() {
    QuizAsked = 0;
    pushAtOnce(calc, {static_cast<double>(QuizRight), "Correct Answers!"}, true);
    if (QuizWrong != 0) {
        pushAtOnce(calc, {static_cast<double>(QuizWrong), "Number(s) wrong :("}, true);
    }
}

void Quiz::stop() {
    const bool problemStood = QuizOp < kAwaitsMaximum;
    calc.s.stack.StackPtr = ownTop_;
    end();
    if (problemStood) {
        pushOnX(calc, {static_cast<double>(QuizRight), "Correct!"});
    } else {
        // A maximum that was typed counts no more; X is the stack's again.
        calc.s.stack.Xreg = cellBelow(calc, 0);
        calc.s.stack.Yreg = cellBelow(calc, 1);
        ignore();
    }
}

void Quiz::end() {
    if (!std::exchange(running_, false)) {
        return;
    }
    EngineState& s = calc.s;
    s.modes.QuizMode = false;
    s.modifiers.ModifierMask = 0;
    for (const Kept& before : kept_) {
        before.control->visible = before.visible;
        before.control->enabled = before.enabled;
    }
    kept_.clear();
    s.modifiers.NoKeyPaint = keptNoKeyPaint_;
    calc.form.lblName.text.clear();
    calc.display.useFormat(keptMode_, keptDigits_);
    calc.keypads().ShowKeypad(Keypad::Standard);
}

}  // namespace tallyforge
