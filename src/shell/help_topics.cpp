// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_topics.h"

#include "engine/engine.h"
#include "platform/form_focus.h"

#include <functional>
#include <span>

namespace tallyforge {

namespace {

constexpr int kFields = 510;

struct Topic {
    int number;
    std::span<Control> controls;
};

std::span<Control> one(Control& control) {
    return {&control, 1};
}

void hang(Engine& calc, std::span<Control> controls, const std::function<int()>& topic, bool underModifiers) {
    for (Control& control : controls) {
        control.mouseDown = [&calc, topic, underModifiers](MouseButton button, std::uint8_t shift) {
            if (button == MouseButton::Right && (underModifiers || shift == 0)) {
                calc.platform.helpTopic(topic());
            }
        };
    }
}

bool isKey(const Control& control) {
    return control.kind == ControlKind::Key || control.kind == ControlKind::Option;
}

/// What F1 is about: where Tab has led, else the key under the pointer, else the field that has the
/// keyboard; nullptr where the keyboard is in the entry line.
const Control* askedFor(const MainForm& form) {
    const Control* const candidates[] = {
        form.tabbedTo, form.underPointer != nullptr && isKey(*form.underPointer) ? form.underPointer : nullptr,
        form.focus != nullptr && form.focus->kind == ControlKind::Field ? form.focus : nullptr};
    for (const Control* control : candidates) {
        if (control != nullptr && control != form.typing && control->mouseDown && takesInput(*control)) {
            return control;
        }
    }
    return nullptr;
}

/// F1 opens one topic, always: that which the right button opens on what it is about.
void helpByKey(Engine& calc) {
    constexpr int kIntroduction = 500;
    constexpr int kModes = 650;
    const MainForm& form = calc.form;
    if (const Control* control = askedFor(form); control != nullptr) {
        control->mouseDown(MouseButton::Right, 0);
    } else if (calc.s.modes.ProgramMode || calc.s.modes.MemoryArrayMode) {
        calc.platform.helpTopic(kModes);
    } else {
        calc.platform.helpTopic(showsFirstSteps(calc) ? kIntroduction : kFields);
    }
}

}  // namespace

bool showsFirstSteps(const Engine& calc) {
    return static_cast<int>(calc.tape.count()) <= calc.tape.fillers() && calc.form.txtXreg.text.empty();
}

void hangHelpTopics(Engine& calc) {
    MainForm& form = calc.form;
    const Topic keys[] = {
        {530, one(form.cmdEnter)},     {530, form.cmdMath},       {580, one(form.cmdLastx)},
        {590, one(form.cmdDown)},      {600, one(form.cmdXchgY)}, {610, one(form.cmdSTO)},
        {630, one(form.cmdBackSpace)}, {830, one(form.cmdF11)},   {840, one(form.cmdF12)},
        {850, one(form.cmdEex)},       {860, one(form.cmdChs)},   {870, one(form.optDeg)},
        {870, one(form.optRad)},       {870, one(form.optGrad)},  {880, form.optFix},
        {900, one(form.cmdEsc)},       {900, one(form.cmdView)},  {900, form.optKey},
        {910, one(form.cmdReset)},     {510, one(form.lstStack)}, {510, one(form.lstDisplayReg)},
        {510, form.cmdNumPad},
    };
    for (const Topic& topic : keys) {
        hang(
            calc, topic.controls, [number = topic.number] { return number; }, false);
    }
    // The fields open their topic in the place of a menu of their own.
    for (Control* field : {&form.txtXreg, &form.txtLastx, &form.txty_Reg}) {
        hang(
            calc, one(*field), [] { return kFields; }, true);
    }
    constexpr int kRegisterFields = 610;
    hang(
        calc, form.txtReg_m, [] { return kRegisterFields; }, true);
    constexpr int kDisplayDigits = 890;
    constexpr int kWordSize = 1330;
    hang(
        calc, one(form.cmdDigits), [&calc] { return calc.s.modes.BaseMode ? kWordSize : kDisplayDigits; }, false);
    constexpr int kEmptyArea = 505;
    form.mouseDown = [&calc](MouseButton button, std::uint8_t shift) {
        if (button == MouseButton::Right && shift == 0) {
            calc.platform.helpTopic(kEmptyArea);
        }
    };
    form.help = [&calc] { helpByKey(calc); };
}

}  // namespace tallyforge
