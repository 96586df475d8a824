// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_input.h"

#include "platform/form_acts.h"
#include "platform/form_focus.h"
#include "platform/form_walk.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <cctype>
#include <exception>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

bool hearsKeys(const Control& control) {
    return control.keyDown || control.keyPress || control.keyUp;
}

/// The control that hears the keyboard: the one with the focus. On a form with a field for all
/// typing it is that field wherever a key or an option took the focus, so typing is never lost.
Control* keyboardTarget(const Form& form) {
    const bool reachable = form.focus != nullptr && takesInput(*form.focus);
    if (form.typing == nullptr) {
        return reachable ? form.focus : nullptr;
    }
    if (reachable && (hearsKeys(*form.focus) || form.focus->kind == ControlKind::Field)) {
        return form.focus;
    }
    return takesInput(*form.typing) ? form.typing : nullptr;
}

void insertCharacter(Control& field, char character) {
    if (field.maxLength != 0 && field.text.size() >= field.maxLength) {
        return;
    }
    const std::size_t at = std::min(field.caret, field.text.size());
    field.text.insert(at, 1, character);
    field.caret = at + 1;
}

/// Plain editing of a field that leaves its keys to the form.
void editField(Control& field, int keyCode) {
    field.caret = std::min(field.caret, field.text.size());
    switch (keyCode) {
        case kKeyBackspace:
            if (field.caret > 0) {
                field.text.erase(--field.caret, 1);
            }
            break;
        case kKeyDelete:
            if (field.caret < field.text.size()) {
                field.text.erase(field.caret, 1);
            }
            break;
        case kKeyHome:
            field.caret = 0;
            break;
        case kKeyEnd:
            field.caret = field.text.size();
            break;
        case kKeyLeft:
            field.caret -= field.caret > 0 ? 1 : 0;
            break;
        case kKeyRight:
            field.caret += field.caret < field.text.size() ? 1 : 0;
            break;
        default:
            break;
    }
}

/// The control that Alt with the letter of `keyCode` reaches: a control with that access letter; for
/// a label or a frame the one behind it that can have the focus.
Control* accessTarget(const Form& form, int keyCode) {
    bool behindLabel = false;
    for (Control* control : form.controls()) {
        if (behindLabel && takesFocus(*control)) {
            return control;
        }
        if (!takesInput(*control) || accessLetter(control->text) != keyCode) {
            continue;
        }
        switch (control->kind) {
            case ControlKind::Key:
            case ControlKind::Option:
            case ControlKind::Check:
                return control;
            case ControlKind::Label:
            case ControlKind::Frame:
                behindLabel = form.typing == nullptr;
                break;
            default:
                break;
        }
    }
    return nullptr;
}

bool isPressable(const Control& control) {
    return control.kind == ControlKind::Key || control.kind == ControlKind::Option ||
           control.kind == ControlKind::Check;
}

/// Enter, Tab and Esc where the control that has the keyboard leaves them to the form.
bool leavesControl(Form& form, Control* target, KeyStroke stroke) {
    switch (stroke.keyCode) {
        case kKeyEnter: {
            const bool onKey = target != nullptr && target->kind == ControlKind::Key;
            Control* pressed = onKey ? target : form.defaultKey;
            if (pressed == nullptr || (target != nullptr && target->takesEnter)) {
                return false;
            }
            if (takesInput(*pressed)) {
                actOn(form, *pressed);
            }
            return true;
        }
        case kKeyEscape:
            if (form.cancelKey == nullptr || (target != nullptr && target->takesEscape)) {
                return false;
            }
            if (takesInput(*form.cancelKey)) {
                actOn(form, *form.cancelKey);
            }
            return true;
        case kKeyTab:
            if (form.typing != nullptr || (stroke.shift & (kCtrl | kAlt)) != 0 ||
                (target != nullptr && target->takesTab)) {
                return false;
            }
            moveFocus(form, (stroke.shift & kShift) != 0);
            return true;
        default:
            return false;
    }
}

/// The strokes that click a control: Alt with a letter, and Space on what has the keyboard.
bool clicksByKey(Form& form, Control* target, KeyStroke stroke) {
    if ((stroke.shift & kAlt) != 0 && (stroke.shift & kCtrl) == 0) {
        if (Control* reached = accessTarget(form, stroke.keyCode); reached != nullptr) {
            // The Alt that reaches a key by its letter is no modifier of the key.
            releaseModifiers(form);
            focusClicked(form, *reached);
            if (isPressable(*reached)) {
                actOn(form, *reached);
            }
        }
        return true;
    }
    if (target != nullptr && isPressable(*target) && stroke.character == ' ') {
        actOn(form, *target);
        return true;
    }
    return false;
}

void typeInto(const Form& form, Control& field, KeyStroke stroke, int character) {
    constexpr int kFirstPrintable = 32;
    const std::string before = field.text;
    if (character >= kFirstPrintable) {
        insertCharacter(field, static_cast<char>(character));
    } else if (&field != form.typing && (stroke.character == 0 || character == stroke.character)) {
        editField(field, stroke.keyCode);
    }
    if (field.text != before) {
        runHandler(field.changed);
    }
}

/// The one place that handlers are called from: whatever one raises ends it, and not the program.
template <typename Act>
void guarded(Form& form, const Act& act) {
    try {
        act();
    } catch (const std::exception& failure) {
        if (!form.failed) {
            throw;
        }
        const auto tell = form.failed;
        tell(failure);
    }
}

void strike(Form& form, KeyStroke stroke) {
    if (form.preview && form.preview({.keyCode = stroke.keyCode, .shift = stroke.shift})) {
        return;
    }
    if (stroke.keyCode == kKeyF1 && stroke.shift == 0 && form.help) {
        return runHandler(form.help);
    }
    if (form.typing != nullptr && walkBy(form, stroke)) {
        return;
    }
    Control* target = keyboardTarget(form);
    if (target != nullptr) {
        runHandler(target->keyDown, KeyEvent{.keyCode = stroke.keyCode, .shift = stroke.shift});
    }
    if (leavesControl(form, target, stroke) || clicksByKey(form, target, stroke) || target == nullptr ||
        stepsWithin(form, *target, stroke)) {
        return;
    }
    int character = stroke.character;
    if (character != 0) {
        runHandler(target->keyPress, character);
    }
    if (target->kind == ControlKind::Field) {
        typeInto(form, *target, stroke, character);
    }
}

}  // namespace

int accessLetter(std::string_view caption) {
    const auto mark = caption.find('&');
    return mark == caption.npos || mark + 1 >= caption.size()
               ? 0
               : std::toupper(static_cast<unsigned char>(caption[mark + 1]));
}

bool click(Form& form, Control& control, std::uint8_t shift) {
    if (!takesInput(control)) {
        return false;
    }
    form.tabbedTo = nullptr;
    guarded(form, [&] {
        focusClicked(form, control);
        settleFocus(form);
        if (takesInput(control)) {
            // What the coming and going of the focus has set off may have disabled it.
            actOn(form, control);
        }
        runHandler(control.mouseUp, MouseButton::Left, shift);
        settleFocus(form);
    });
    return true;
}

void pressKey(Form& form, KeyStroke stroke) {
    guarded(form, [&] {
        strike(form, stroke);
        settleFocus(form);
    });
}

void pasteText(Form& form, std::string_view text) {
    for (const char& character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= ' ' && form.open) {
            pressKey(form, {.keyCode = keyCodeOf(byte), .character = byte});
        }
    }
}

void releaseKey(Form& form, KeyStroke stroke) {
    guarded(form, [&] {
        if (Control* target = keyboardTarget(form); target != nullptr) {
            runHandler(target->keyUp, KeyEvent{.keyCode = stroke.keyCode, .shift = stroke.shift});
        }
    });
}

void holdModifiers(Form& form, std::uint8_t shift) {
    guarded(form, [&] {
        if (Control* target = keyboardTarget(form); target != nullptr) {
            const int keyCode = (shift & kAlt) != 0 ? kKeyAlt : ((shift & kCtrl) != 0 ? kKeyCtrl : kKeyShift);
            runHandler(target->keyDown, KeyEvent{.keyCode = keyCode, .shift = shift});
        }
    });
}

void releaseModifiers(Form& form) {
    releaseKey(form, {.keyCode = kKeyShift});
}

bool rightClick(Form& form, Control& control, std::uint8_t shift) {
    if (!takesInput(control)) {
        return false;
    }
    guarded(form, [&] {
        runHandler(control.mouseDown, MouseButton::Right, shift);
        runHandler(control.mouseUp, MouseButton::Right, shift);
        settleFocus(form);
    });
    return true;
}

void rightClickForm(Form& form, std::uint8_t shift) {
    guarded(form, [&] { runHandler(form.mouseDown, MouseButton::Right, shift); });
}

bool clickRow(Form& form, Control& list, std::size_t row) {
    if (!takesInput(list) || list.rows == nullptr || row >= list.rows->count()) {
        return false;
    }
    guarded(form, [&] {
        focusClicked(form, list);
        settleFocus(form);
        chooseRow(list, row);
        settleFocus(form);
    });
    return true;
}

bool doubleClickRow(Form& form, Control& list, std::size_t row) {
    if (!takesInput(list) || list.rows == nullptr || row >= list.rows->count()) {
        return false;
    }
    guarded(form, [&] {
        focusClicked(form, list);
        settleFocus(form);
        list.rows->select(row);
        runHandler(list.doubleClick);
        settleFocus(form);
    });
    return true;
}

bool closeForm(Form& form) {
    guarded(form, [&] {
        if (form.cancelKey != nullptr && takesInput(*form.cancelKey)) {
            actOn(form, *form.cancelKey);
            settleFocus(form);
        } else if (form.close) {
            runHandler(form.close);
        } else {
            form.open = false;
        }
    });
    return !form.open;
}

}  // namespace tallyforge
