// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands on a calculator dialog, and where.
#include "dialogs/calculator_form.h"
#include "dialogs/dressing.h"
#include "engine/engine.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

namespace {

constexpr Font kNumbers{.face = Face::Terminal, .points = 9.0F};

// Lengths in twips.
constexpr int kMargin = 120;
constexpr int kLine = 360;
constexpr int kFieldHeight = 300;
constexpr int kUseWidth = 260;
constexpr int kFieldWidth = 2000;
constexpr int kOptionLine = 260;
constexpr int kFrameHead = 240;
constexpr int kFrameWidth = 2600;
constexpr int kKeyWidth = 1320;
constexpr int kKeyHeight = 375;
constexpr int kColumn = 3400;  ///< height from which frames go on in a second column

}  // namespace

CalculatorForm::CalculatorForm(Engine& calculator, const CalculatorLook& formLook)
    : Form(std::string(formLook.form), std::string(formLook.title)),
      calc(calculator),
      look(formLook),
      filter_(calculator.s.format.DecimalChar) {
    helpTopic = look.helpTopic;
    dress(lblUse_, ControlKind::Label, "lblUse", look.useHeading);
    placing = [this] {
        const DialogPlace at = placeCalculator(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.left = at.DialogLeft;
        place.top = at.DialogTop;
    };
    preview = [this](KeyEvent event) { return printsPage(event) || leavesFields(event); };
}

void CalculatorForm::addField(std::string_view symbol, std::string_view fieldName, FieldRules rules, Face face) {
    const int index = fieldCount();
    dress(lblVal_.emplace_back(), ControlKind::Label, "lblVal", symbol, index);
    Control& field = txtVal_.emplace_back();
    dress(field, ControlKind::Field, "txtVal", "", index);
    field.font = kNumbers;
    field.rightAligned = true;
    field.spoken = fieldName;
    field.tip = " " + std::string(fieldName) + " ";
    dress(lblUnits_.emplace_back(), ControlKind::Label, "lblUnits", "", index);
    lblVal_.back().font.face = face;
    lblUnits_.back().font.face = face;
    Control& option = optCalc_.emplace_back();
    dress(option, ControlKind::Option, "optCalc", "", index);
    option.spoken = "Use " + std::string(symbol);
    option.visible = false;
    rules_.push_back(rules);
}

void CalculatorForm::addOptions(std::string_view options, std::string_view heading,
                                const std::vector<std::string_view>& captions, int chosen,
                                const std::function<void(int row)>& choose) {
    OptionFrame& frame = frames_.emplace_back();
    dress(frame.frame, ControlKind::Frame, "fra" + std::string(options.substr(3)), heading);
    for (std::size_t row = 0; row < captions.size(); ++row) {
        const int number = static_cast<int>(row);
        Control& option = frame.options.emplace_back();
        dress(option, ControlKind::Option, options, captions[row], number);
        option.checked = number == chosen;
        option.click = [choose, number] { choose(number); };
    }
}

Control& CalculatorForm::addControl(ControlKind kind, std::string_view controlName, std::string_view caption, int index,
                                    int lines) {
    Control& control = own_.emplace_back().control;
    dress(control, kind, controlName, caption, index);
    control.place.height = kFieldHeight + (lines - 1) * kOptionLine;
    return control;
}

Control& CalculatorForm::addBeside(Column column, ControlKind kind, std::string_view controlName, int index) {
    Control& control = addControl(kind, controlName, {}, index);
    own_.back().beside = column;
    return control;
}

void CalculatorForm::finish() {
    // An option that is never to be seen: with it chosen, no field is held.
    Control& none = optCalc_.emplace_back();
    dress(none, ControlKind::Option, "optCalc", "", fieldCount());
    none.visible = false;
    dress(cmdCalc, ControlKind::Key, "cmdCalc", "");
    dress(cmdXreg, ControlKind::Key, "cmdXreg", "");
    dress(cmdDefault, ControlKind::Key, look.hasUnits ? "cmdDefault" : "cmdClear", "");
    for (int i = 0; i < fieldCount(); ++i) {
        enrol(lblVal_.at(static_cast<std::size_t>(i)));
        enrol(txtVal(i));
        enrol(lblUnits(i));
        hangField(i);
    }
    for (OwnControl& own : own_) {
        enrol(own.control);
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
    if (look.hasPicture) {
        dress(picture_, ControlKind::Picture, "picFigure", "");
        enrol(picture_);
    }
    hangKeys();
    arrange();
    reset();
}

void CalculatorForm::arrange() {
    int top = kMargin;
    int rowsEnd = 0;
    lblUse_.place = {.left = kMargin, .top = top, .width = kKeyWidth, .height = kFieldHeight};
    for (int i = 0; i < fieldCount(); ++i) {
        top += kLine;
        int left = kMargin;
        const auto put = [&](Control& control, int width) {
            control.place = {.left = left, .top = top, .width = width, .height = kFieldHeight};
            left += width + kMargin / 2;
        };
        put(optCalc(i), kUseWidth);
        put(lblVal_.at(static_cast<std::size_t>(i)), look.symbolWidth);
        put(txtVal(i), kFieldWidth);
        put(lblUnits(i), look.unitWidth);
        rowsEnd = left;
    }
    top += kLine;
    top = arrangeOwn(top);
    int left = kMargin;
    for (Control* key : {&cmdCalc, &cmdXreg, &cmdDefault}) {
        key->place = {.left = left, .top = top + kMargin, .width = kKeyWidth, .height = kKeyHeight};
        left += kKeyWidth + kMargin / 2;
    }
    int right = arrangeFrames(std::max(left, rowsEnd) + kMargin);
    place.height = top + kKeyHeight + 2 * kMargin;
    if (look.hasPicture) {
        constexpr int kPictureWidth = 3600;
        constexpr int kPictureHeight = 2400;
        picture_.place = {.left = right + kMargin, .top = kMargin, .width = kPictureWidth, .height = kPictureHeight};
        right += kMargin + kPictureWidth;
        place.height = std::max(place.height, kPictureHeight + 2 * kMargin);
    }
    place.width = right + kMargin;
    for (const OptionFrame& frame : frames_) {
        place.height = std::max(place.height, frame.frame.place.top + frame.frame.place.height + kMargin);
    }
}

/// Returns where the rows end at the foot.
int CalculatorForm::arrangeOwn(int top) {
    constexpr int kGap = kMargin / 2;
    const int fieldLeft = kMargin + kUseWidth + kGap + look.symbolWidth + kGap;
    int row = top;
    for (auto& [control, beside] : own_) {
        const int height = control.place.height;
        if (!beside) {
            row = top;
            control.place = {.left = kMargin, .top = row, .width = 3 * kKeyWidth, .height = height};
            top += height + kGap;
        } else if (*beside == Column::Field) {
            control.place = {.left = fieldLeft, .top = row, .width = kFieldWidth, .height = height};
        } else {
            control.place = {
                .left = fieldLeft + kFieldWidth + kGap, .top = row, .width = look.unitWidth, .height = height};
        }
    }
    return top;
}

/// Wide enough for the longest caption of a frame in its full size.
int CalculatorForm::frameWidth() const {
    constexpr int kCharacter = 90;
    constexpr int kRingAndEdges = 500;
    int width = kFrameWidth;
    for (const OptionFrame& frame : frames_) {
        for (const Control& option : frame.options) {
            width = std::max(width, static_cast<int>(option.text.size()) * kCharacter + kRingAndEdges);
        }
    }
    return width;
}

/// Returns where the frames end on the right.
int CalculatorForm::arrangeFrames(int left) {
    const int width = frameWidth();
    int top = kMargin;
    int right = left;
    for (OptionFrame& frame : frames_) {
        const int rows = static_cast<int>(frame.options.size());
        const int height = kFrameHead + rows * kOptionLine + kMargin / 2;
        if (top > kMargin && top + height > kColumn) {
            left += width + kMargin;
            top = kMargin;
        }
        frame.frame.place = {.left = left, .top = top, .width = width, .height = height};
        int line = top + kFrameHead;
        for (Control& option : frame.options) {
            option.place = {.left = left + kMargin, .top = line, .width = width - 2 * kMargin, .height = kOptionLine};
            line += kOptionLine;
        }
        top += height + kMargin / 2;
        right = left + width;
    }
    return right;
}

}  // namespace tallyforge
