// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/calculator_form.h"

#include "engine/engine.h"
#include "numbers/number_format.h"
#include "numbers/out_of_range.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

namespace {

constexpr Font kCaption{.face = Face::Arial, .points = 8.0F};
constexpr Font kNumbers{.face = Face::Terminal, .points = 9.0F};

// Lengths in twips.
constexpr int kMargin = 120;
constexpr int kLine = 360;
constexpr int kFieldHeight = 300;
constexpr int kUseWidth = 260;
constexpr int kSymbolWidth = 900;
constexpr int kFieldWidth = 2000;
constexpr int kUnitWidth = 800;
constexpr int kOptionLine = 260;
constexpr int kFrameHead = 240;
constexpr int kFrameWidth = 2600;
constexpr int kKeyWidth = 1320;
constexpr int kKeyHeight = 375;
constexpr int kColumn = 3400;  ///< height from which frames go on in a second column

constexpr std::string_view kExit = "&Exit";
constexpr int kDigitsShown = 4;
constexpr std::size_t kMostCharacters = 15;

void dress(Control& control, ControlKind kind, std::string_view name, int index, std::string_view text) {
    control.kind = kind;
    control.name = name;
    control.index = index;
    control.text = text;
    control.font = kCaption;
}

}  // namespace

CalculatorForm::CalculatorForm(Engine& calculator, const CalculatorLook& formLook)
    : Form(std::string(formLook.form), std::string(formLook.title)),
      calc(calculator),
      look(formLook),
      filter_(calculator.s.format.DecimalChar) {
    helpTopic = look.helpTopic;
    dress(lblUse_, ControlKind::Label, "lblUse", kNoIndex, look.useHeading);
    placing = [this] {
        const DialogPlace at = placeCalculator(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.left = at.DialogLeft;
        place.top = at.DialogTop;
    };
    preview = [this](KeyEvent event) { return leavesFields(event); };
}

void CalculatorForm::addField(std::string_view symbol, std::string_view fieldName, FieldRules rules, Face face) {
    const int index = fieldCount();
    dress(lblVal_.emplace_back(), ControlKind::Label, "lblVal", index, symbol);
    Control& field = txtVal_.emplace_back();
    dress(field, ControlKind::Field, "txtVal", index, {});
    field.font = kNumbers;
    field.rightAligned = true;
    field.spoken = fieldName;
    field.tip = " " + std::string(fieldName) + " ";
    dress(lblUnits_.emplace_back(), ControlKind::Label, "lblUnits", index, {});
    lblVal_.back().font.face = face;
    lblUnits_.back().font.face = face;
    Control& option = optCalc_.emplace_back();
    dress(option, ControlKind::Option, "optCalc", index, {});
    option.spoken = "Use " + std::string(symbol);
    option.visible = false;
    rules_.push_back(rules);
}

void CalculatorForm::addOptions(std::string_view options, std::string_view heading,
                                const std::vector<std::string_view>& captions, int chosen,
                                std::function<void(int row)> choose) {
    OptionFrame& frame = frames_.emplace_back();
    dress(frame.frame, ControlKind::Frame, "fra" + std::string(options.substr(3)), kNoIndex, heading);
    for (std::size_t row = 0; row < captions.size(); ++row) {
        const int number = static_cast<int>(row);
        Control& option = frame.options.emplace_back();
        dress(option, ControlKind::Option, options, number, captions[row]);
        option.checked = number == chosen;
        option.click = [choose, number] { choose(number); };
    }
}

Control& CalculatorForm::addControl(ControlKind kind, std::string_view controlName, std::string_view caption,
                                    int index) {
    Control& control = own_.emplace_back();
    dress(control, kind, controlName, index, caption);
    return control;
}

void CalculatorForm::finish() {
    // An option that is never to be seen: with it chosen, no field is held.
    Control& none = optCalc_.emplace_back();
    dress(none, ControlKind::Option, "optCalc", fieldCount(), {});
    none.visible = false;
    dress(cmdCalc, ControlKind::Key, "cmdCalc", kNoIndex, {});
    dress(cmdXreg, ControlKind::Key, "cmdXreg", kNoIndex, {});
    dress(cmdDefault, ControlKind::Key, look.hasUnits ? "cmdDefault" : "cmdClear", kNoIndex, {});
    for (int i = 0; i < fieldCount(); ++i) {
        enrol(lblVal_.at(static_cast<std::size_t>(i)));
        enrol(txtVal(i));
        enrol(lblUnits(i));
        hangField(i);
    }
    for (Control& control : own_) {
        enrol(control);
    }
    enrol(lblUse_);
    for (Control& option : optCalc_) {
        enrol(option);
    }
    for (OptionFrame& frame : frames_) {
        enrol(frame.frame);
        for (Control& option : frame.options) {
            enrol(option);
        }
    }
    for (Control* key : {&cmdXreg, &cmdCalc, &cmdDefault}) {
        enrol(*key);
    }
    hangKeys();
    arrange();
    reset();
}

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
        passEmpty(index);
        movesOn = !solved_;
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

void CalculatorForm::showEntering() {
    solved_ = false;
    cmdCalc.text = "Enter <---";
    cmdCalc.tip = " Same as The Enter key ";
    exitCaption(cmdXreg);
}

void CalculatorForm::showSolved() {
    solved_ = true;
    for (int i = 0; i < fieldCount(); ++i) {
        txtVal(i).enabled = false;
        optCalc(i).visible = txtVal(i).visible;
        optCalc(i).checked = false;
    }
    lblUse_.visible = true;
    optCalc_.back().checked = true;
    exitCaption(cmdCalc);
    cmdXreg.text = "&Add to Xreg";
    cmdXreg.tip = " Add solution to the Running Tape Display ";
    offerClear();
    setFocus(cmdXreg);
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

void CalculatorForm::arrange() {
    int top = kMargin;
    lblUse_.place = {.left = kMargin, .top = top, .width = kKeyWidth, .height = kFieldHeight};
    for (int i = 0; i < fieldCount(); ++i) {
        top += kLine;
        int left = kMargin;
        const auto put = [&](Control& control, int width) {
            control.place = {.left = left, .top = top, .width = width, .height = kFieldHeight};
            left += width + kMargin / 2;
        };
        put(optCalc(i), kUseWidth);
        put(lblVal_.at(static_cast<std::size_t>(i)), kSymbolWidth);
        put(txtVal(i), kFieldWidth);
        put(lblUnits(i), kUnitWidth);
    }
    top += kLine;
    for (Control& control : own_) {
        control.place = {.left = kMargin, .top = top, .width = 3 * kKeyWidth, .height = kFieldHeight};
        top += kLine;
    }
    int left = kMargin;
    for (Control* key : {&cmdCalc, &cmdXreg, &cmdDefault}) {
        key->place = {.left = left, .top = top + kMargin, .width = kKeyWidth, .height = kKeyHeight};
        left += kKeyWidth + kMargin / 2;
    }
    const int right = arrangeFrames(left + kMargin);
    place.width = right + kMargin;
    place.height = top + kKeyHeight + 2 * kMargin;
    for (const OptionFrame& frame : frames_) {
        place.height = std::max(place.height, frame.frame.place.top + frame.frame.place.height + kMargin);
    }
}

/// Returns where the frames end on the right.
int CalculatorForm::arrangeFrames(int left) {
    int top = kMargin;
    int right = left;
    for (OptionFrame& frame : frames_) {
        const int rows = static_cast<int>(frame.options.size());
        const int height = kFrameHead + rows * kOptionLine + kMargin / 2;
        if (top > kMargin && top + height > kColumn) {
            left += kFrameWidth + kMargin;
            top = kMargin;
        }
        frame.frame.place = {.left = left, .top = top, .width = kFrameWidth, .height = height};
        int line = top + kFrameHead;
        for (Control& option : frame.options) {
            option.place = {
                .left = left + kMargin, .top = line, .width = kFrameWidth - 2 * kMargin, .height = kOptionLine};
            line += kOptionLine;
        }
        top += height + kMargin / 2;
        right = left + kFrameWidth;
    }
    return right;
}

}  // namespace tallyforge
