// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/engine.h"

#include "numbers/number_format.h"

#include <utility>

namespace tallyforge {

Engine::Engine(Platform& desktop) : platform(desktop), stackList(*this), display(*this), commit(*this) {
    form.lstDisplayReg.rows = &tape;
    form.lstStack.rows = &stackList;
    tape.clear(s.window.TapeRows);
}

std::string Engine::patternText(const ValueCell& cell, std::string_view pattern) const {
    try {
        return formatPattern(number(cell), pattern, s.format.DecimalChar);
    } catch (const Failure&) {
        return text(cell);
    }
}

void Engine::showPending() {
    const bool before = std::exchange(unwatched, false);
    stackList.placeMarks();
    commit.ShowSmallRegs();
    unwatched = before;
}

void Engine::message(BoxKind kind, std::string_view title, std::string_view text) {
    commit.wake();
    if (unwatched) {
        showPending();
    }
    platform.messageBox({.kind = kind, .title = std::string(title), .text = std::string(text)});
}

void Engine::errorBox(BoxKind kind, std::string_view text) {
    message(kind, std::string(std::string_view(s.CurrentProc)) + " Error!", text);
}

void Engine::reportNumber(const Failure& failure) {
    errorBox(BoxKind::Notice, "Error number " + std::to_string(failure.code()) + "!");
}

bool Engine::question(std::string_view title, std::string_view text) {
    commit.wake();
    if (unwatched) {
        showPending();
    }
    return platform.messageBox({.kind = BoxKind::Question,
                                .title = std::string(title),
                                .text = std::string(text),
                                .buttons = BoxButtons::YesNo}) == Answer::Yes;
}

void Engine::reportIn(std::string_view procedure, int number, std::string_view what) {
    errorBox(BoxKind::Stop, "Error " + std::to_string(number) + " (" + std::string(what) + ") in procedure " +
                                std::string(procedure) + " of Form " + form.name);
}

void Engine::LightModifiers(std::uint8_t mask) {
    form.shaShift.visible = (mask & kShift) != 0;
    form.shaCtrl.visible = (mask & kCtrl) != 0;
    form.shaAlt.visible = (mask & kAlt) != 0;
    s.modifiers.CtrlHeld = false;
}

void Engine::ClearOptKeys() {
    if (s.modifiers.ModifierLatched) {
        keypads().RepaintKeypad();
    }
    s.modifiers.ModifierMask = 0;
    s.modifiers.ModifierLatched = false;
    if (!form.optKey.back().checked) {
        for (Control& option : form.optKey) {
            option.checked = false;
        }
        form.optKey.back().checked = true;
    }
    LightModifiers(0);
    focusEntry();
}

void Engine::focusEntry() {
    s.entry.Dropped = '\0';
    form.setFocus(form.txtXreg);
    form.txtXreg.caret = form.txtXreg.text.size();
}

}  // namespace tallyforge
