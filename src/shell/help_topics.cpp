// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_topics.h"

#include "engine/engine.h"

#include <functional>
#include <span>

namespace tallyforge {

namespace {

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

}  // namespace

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
    };
    for (const Topic& topic : keys) {
        hang(
            calc, topic.controls, [number = topic.number] { return number; }, false);
    }
    // The fields open their topic in the place of a menu of their own.
    constexpr int kFields = 510;
    for (Control* field : {&form.txtXreg, &form.txtLastx, &form.txty_Reg}) {
        hang(
            calc, one(*field), [] { return kFields; }, true);
    }
    hang(
        calc, form.txtReg_m, [] { return kFields; }, true);
    constexpr int kDisplayDigits = 890;
    constexpr int kWordSize = 1330;
    hang(
        calc, one(form.cmdDigits), [&calc] { return calc.s.modes.BaseMode ? kWordSize : kDisplayDigits; }, false);
}

}  // namespace tallyforge
