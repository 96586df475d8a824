// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_input.h"

#include "platform/key_codes.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

bool takesInput(const Control& control) {
    return control.enabled && control.visible;
}

bool hearsKeys(const Control& control) {
    return control.keyDown || control.keyPress || control.keyUp;
}

/// The control that hears the keyboard: the one with the focus, or the form's field that has key
/// handlers where a key or an option took the focus, so that typing is never lost.
Control* keyboardTarget(Form& form) {
    if (form.focus != nullptr && takesInput(*form.focus) &&
        (hearsKeys(*form.focus) || form.focus->kind == ControlKind::Field)) {
        return form.focus;
    }
    for (Control* control : form.controls()) {
        if (control->kind == ControlKind::Field && takesInput(*control) && hearsKeys(*control)) {
            return control;
        }
    }
    return form.focus != nullptr && takesInput(*form.focus) ? form.focus : nullptr;
}

/// A handler may hang another one on the control, so it runs from a copy.
template <typename Handler, typename... Arguments>
void run(const Handler& handler, Arguments&&... arguments) {
    if (handler) {
        const Handler copy = handler;
        copy(std::forward<Arguments>(arguments)...);
    }
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

/// Letter that Alt reaches a caption by, as a capital; 0 for none.
int accessLetter(std::string_view caption) {
    const auto mark = caption.find('&');
    return mark == caption.npos || mark + 1 >= caption.size()
               ? 0
               : std::toupper(static_cast<unsigned char>(caption[mark + 1]));
}

Control* accessTarget(Form& form, int keyCode) {
    for (Control* control : form.controls()) {
        const bool pressable = control->kind == ControlKind::Key || control->kind == ControlKind::Option;
        if (pressable && takesInput(*control) && accessLetter(control->text) == keyCode) {
            return control;
        }
    }
    return nullptr;
}

/// Options of one group exclude each other: an array, or neighbours that stand alone.
bool sameGroup(const Control& left, const Control& right) {
    return left.kind == ControlKind::Option && right.kind == ControlKind::Option &&
           (left.index == kNoIndex ? right.index == kNoIndex : left.name == right.name);
}

void selectOption(Form& form, Control& option) {
    for (Control* other : form.controls()) {
        if (sameGroup(option, *other)) {
            other->checked = other == &option;
        }
    }
}

/// The strokes that click a control: Enter, Esc, Alt with a letter, and Space on the key that has
/// the keyboard. Returns whether the stroke was one of these.
bool clicksByKey(Form& form, Control* target, KeyStroke stroke) {
    if (stroke.keyCode == kKeyEnter && form.defaultKey != nullptr) {
        click(form, *form.defaultKey);
        return true;
    }
    if (stroke.keyCode == kKeyEscape && form.cancelKey != nullptr) {
        click(form, *form.cancelKey);
        return true;
    }
    if ((stroke.shift & kAlt) != 0 && (stroke.shift & kCtrl) == 0) {
        if (Control* reached = accessTarget(form, stroke.keyCode); reached != nullptr) {
            // The Alt that reaches a key by its letter is no modifier of the key.
            releaseModifiers(form);
            click(form, *reached);
        }
        return true;
    }
    if (target != nullptr && target->kind == ControlKind::Key && stroke.character == ' ') {
        click(form, *target);
        return true;
    }
    return false;
}

}  // namespace

bool click(Form& form, Control& control) {
    if (!takesInput(control)) {
        return false;
    }
    if (control.kind == ControlKind::Option) {
        selectOption(form, control);
    }
    run(control.click);
    return true;
}

void pressKey(Form& form, KeyStroke stroke) {
    Control* target = keyboardTarget(form);
    if (target != nullptr) {
        run(target->keyDown, KeyEvent{.keyCode = stroke.keyCode, .shift = stroke.shift});
    }
    if (clicksByKey(form, target, stroke) || target == nullptr) {
        return;
    }
    int character = stroke.character;
    if (character != 0) {
        run(target->keyPress, character);
    }
    if (target->kind != ControlKind::Field) {
        return;
    }
    constexpr int kFirstPrintable = 32;
    if (character >= kFirstPrintable) {
        insertCharacter(*target, static_cast<char>(character));
    } else if (!hearsKeys(*target)) {
        editField(*target, stroke.keyCode);
    }
}

void releaseKey(Form& form, KeyStroke stroke) {
    if (Control* target = keyboardTarget(form); target != nullptr) {
        run(target->keyUp, KeyEvent{.keyCode = stroke.keyCode, .shift = stroke.shift});
    }
}

void holdModifiers(Form& form, std::uint8_t shift) {
    if (Control* target = keyboardTarget(form); target != nullptr) {
        const int keyCode = (shift & kAlt) != 0 ? kKeyAlt : ((shift & kCtrl) != 0 ? kKeyCtrl : kKeyShift);
        run(target->keyDown, KeyEvent{.keyCode = keyCode, .shift = shift});
    }
}

void releaseModifiers(Form& form) {
    releaseKey(form, {.keyCode = kKeyShift});
}

bool rightClick(Form& /*form*/, Control& control, std::uint8_t shift) {
    if (!takesInput(control)) {
        return false;
    }
    run(control.mouseDown, MouseButton::Right, shift);
    return true;
}

bool clickRow(Form& /*form*/, Control& list, std::size_t row) {
    if (!takesInput(list) || list.rows == nullptr || row >= list.rows->count()) {
        return false;
    }
    list.rows->select(row);
    run(list.click);
    return true;
}

bool doubleClickRow(Form& /*form*/, Control& list, std::size_t row) {
    if (!takesInput(list) || list.rows == nullptr || row >= list.rows->count()) {
        return false;
    }
    list.rows->select(row);
    run(list.doubleClick);
    return true;
}

bool closeForm(Form& form) {
    if (form.close) {
        run(form.close);
    } else {
        form.open = false;
    }
    return !form.open;
}

}  // namespace tallyforge
