// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/calculator_form.h"

#include "engine/engine.h"
#include "numbers/number_format.h"
#include "numbers/out_of_range.h"
#include "platform/form_drawing.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kExit = "&Exit";
constexpr int kDigitsShown = 4;
constexpr std::size_t kMostCharacters = 15;

}  // namespace

void CalculatorForm::hangField(int index) {
    Control& field = txtVal(index);
    field.takesEnter = true;
    field.takesTab = true;
    field.takesEscape = true;
    field.keyPress = [this, index](int& key) { pressInField(index, key); };
    field.gotFocus = [this, index] {
        activeField_ = index;
        enterFocus(index);
    };
    field.lostFocus = [this, index] { leaveFocus(index); };
    Control& option = optCalc(index);
    option.click = [this, index] { use(index); };
    option.mouseUp = [this, index](MouseButton /*button*/, std::uint8_t /*shift*/) { keepOption(index); };
}

void CalculatorForm::hangKeys() {
    cmdCalc.click = [this] {
        if (cmdCalc.text == kExit) {
            open = false;
        } else if (activeField_ != kNoIndex && txtVal(activeField_).enabled) {
            setFocus(txtVal(activeField_));
            enterField(activeField_);
        }
    };
    cmdXreg.click = [this] {
        if (cmdXreg.text == kExit) {
            open = false;
            return;
        }
        addToTape();
        setFocus(cmdCalc);
    };
    cmdDefault.click = [this] {
        if (cmdDefault.text == "&Default") {
            saveDefaults();
        } else {
            clearAll();
        }
    };
}

void CalculatorForm::pressInField(int index, int& key) {
    if (key == kKeyEnter || key == kKeyTab) {
        key = 0;
        enterField(index);
        return;
    }
    offerClear();
    activeField_ = index;
    beginTyping(index);
    typeInField(index, key);
}

void CalculatorForm::enterField(int index) {
    bool movesOn = true;
    if (txtVal(index).text.empty()) {
        movesOn = passEmpty(index);
    } else {
        movesOn = commit(index);
    }
    filter_ = DialogKeyFilter(calc.s.format.DecimalChar);
    if (movesOn) {
        nextField(index);
    }
}

void CalculatorForm::typeInField(int index, int& key) {
    Control& field = txtVal(index);
    const bool takesBack = key == kKeyBackspace || key == kKeyEscape;
    if (field.text.size() >= kMostCharacters && !takesBack) {
        key = 0;
        CharLimitMessage(calc, field.text);
        return;
    }
    const FieldRules rules = rules_.at(static_cast<std::size_t>(index));
    const bool inExponent = field.text.find('e') != std::string::npos;
    const bool decimal = key == calc.s.format.DecimalChar;
    const bool digit = key >= '0' && key <= '9';
    if ((decimal && inExponent) || (rules.plainDecimals && !digit && !decimal && !takesBack)) {
        key = 0;
        return;
    }
    // The caret may have left what the flags were set by; the text tells.
    filter_.EexActive = inExponent;
    filter_.exponentSign = field.text.find("e-") != std::string::npos;
    const std::string before = field.text;
    const std::string result = filter_.filter(key, field.text);
    if (result == "esc") {
        key = 0;
        field.text.clear();
    } else if (result == "chs") {
        key = 0;
        if (rules.signedValue && !field.text.empty()) {
            field.text = field.text.front() == '-' ? field.text.substr(1) : "-" + field.text;
        }
    } else {
        key = std::stoi(result);
        if (field.text == before) {
            return;
        }
    }
    field.caret = field.text.size();
}

bool CalculatorForm::printsPage(KeyEvent event) {
    if (event.keyCode != 'P' || event.shift != kCtrl) {
        return false;
    }
    constexpr Font kTitle{.points = 14.0F, .bold = true};
    calc.platform.print({.title = {title, kTitle}, .blocks = {}, .pictures = {drawnForm(*this)}});
    return true;
}

// Tab belongs to the fields; with Ctrl it leaves them for the keys and comes back from there.
bool CalculatorForm::leavesFields(KeyEvent event) {
    if (event.keyCode != kKeyTab || (event.shift & kCtrl) == 0) {
        return false;
    }
    const auto takes = [](const Control& control) { return control.enabled && control.visible; };
    if (focus != nullptr && focus->name != "txtVal") {
        for (Control& field : txtVal_) {
            if (takes(field)) {
                setFocus(field);
                return true;
            }
        }
    }
    for (OptionFrame& frame : frames_) {
        for (Control& option : frame.options) {
            if (option.checked && takes(option)) {
                setFocus(option);
                return true;
            }
        }
    }
    setFocus(cmdXreg);
    return true;
}

void CalculatorForm::reset() {
    for (int i = 0; i < fieldCount(); ++i) {
        txtVal(i).text.clear();
        txtVal(i).caret = 0;
        txtVal(i).enabled = true;
        optCalc(i).visible = false;
        optCalc(i).checked = false;
    }
    lblUse_.visible = false;
    optCalc_.back().checked = true;
    filter_ = DialogKeyFilter(calc.s.format.DecimalChar);
    showEntering();
    cmdDefault.text = look.hasUnits ? "&Default" : look.clearCaption;
    cmdDefault.tip = look.hasUnits ? " Set Selected Units as Default " : look.clearTip;
    activeField_ = 0;
    setFocus(txtVal(0));
}

void CalculatorForm::exitCaption(Control& key) {
    key.text = kExit;
    key.tip = look.exitTip.empty() ? " Quit the " + std::string(look.name) + " Calculator " : std::string(look.exitTip);
}

void CalculatorForm::takeEntry() {
    cmdCalc.text = "Enter <---";
    cmdCalc.tip = " Same as The Enter key ";
}

void CalculatorForm::showEntering() {
    solved_ = false;
    takeEntry();
    exitCaption(cmdXreg);
}

void CalculatorForm::offerAdd() {
    cmdXreg.text = "&Add to Xreg";
    cmdXreg.tip = " Add solution to the Running Tape Display ";
    offerClear();
    setFocus(cmdXreg);
}

void CalculatorForm::showSolved() {
    solved_ = true;
    for (int i = 0; i < fieldCount(); ++i) {
        txtVal(i).enabled = false;
        optCalc(i).visible = look.hasUse && txtVal(i).visible;
        optCalc(i).checked = false;
    }
    lblUse_.visible = look.hasUse;
    optCalc_.back().checked = true;
    offerExit();
    offerAdd();
}

void CalculatorForm::showFailed() {
    showEntering();
    for (Control& field : txtVal_) {
        field.enabled = false;
    }
    offerClear();
    setFocus(cmdDefault);
}

void CalculatorForm::offerClear() {
    if (look.hasUnits) {
        cmdDefault.text = look.clearCaption;
        cmdDefault.tip = look.clearTip;
    }
}

void CalculatorForm::nextField(int index) {
    const int count = fieldCount();
    for (int step = 1; step <= count; ++step) {
        const int at = (index + step) % count;
        if (txtVal(at).text.empty() && txtVal(at).enabled && txtVal(at).visible) {
            setFocus(txtVal(at));
            activeField_ = at;
            return;
        }
    }
}

void CalculatorForm::keepOption(int index) {
    for (int i = 0; i < fieldCount(); ++i) {
        optCalc(i).visible = optCalc(i).visible && i == index;
    }
}

void CalculatorForm::showPicture(Drawing drawing) {
    picture_.spoken = drawing.described;
    picture_.tip = " " + drawing.described + " [Ctrl+P prints it] ";
    picture_.drawing = std::move(drawing);
}

double CalculatorForm::numberIn(const Control& field) const {
    const std::string text = field.text.ends_with('e') ? field.text + "0" : field.text;
    return readNumber(text, calc.s.format.DecimalChar);
}

std::string CalculatorForm::shown(double number) const {
    const FormatState& format = calc.s.format;
    return NumberDisplay::shownNumber(
        number,
        {.mode = format.Mode, .digits = std::max(format.DisplayDigits, kDigitsShown), .decimal = format.DecimalChar},
        0);
}

void CalculatorForm::report(const Failure& failure) {
    calc.s.CurrentProc = look.procedure;
    calc.errorBox(BoxKind::Stop, failure.number() == FailureNumber::Overflow ? std::string(kOutOfRange)
                                 : failure.number() == FailureNumber::DivisionByZero
                                     ? std::string(kDividedByZero)
                                     : "Error number " + std::to_string(failure.code()));
}

}  // namespace tallyforge
