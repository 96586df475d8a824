// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finds every dialog that a key of the bank opens, on every keypad and under every modifier, by
// pressing them all. A new dialog is found by itself as soon as its key opens it.
#pragma once

#include "keypads/keypad_table.h"
#include "platform/form_input.h"
#include "shell/calculator.h"
#include "support/test_platform.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace tallyforge {

/// What a dialog is known by: one form may serve several purposes under titles of their own.
inline std::string dialogKey(const Form& dialog) {
    return dialog.name + " \"" + dialog.title + "\"";
}

/// Opens each dialog, has `look` see each kind of it once while it is open, and closes it. Returns
/// what was found.
inline std::set<std::string> openAllDialogs(const std::function<void(Form&)>& look) {
    std::set<std::string> found;
    for (const KeypadTable* table : keypadTables()) {
        for (int key = 0; key < kBankKeys; ++key) {
            TestPlatform platform;
            platform.inDialog = [&](Form& dialog) {
                if (found.insert(dialogKey(dialog)).second) {
                    look(dialog);
                }
                if (dialog.open && !closeForm(dialog)) {
                    dialog.open = false;
                }
            };
            Calculator calculator(platform);
            calculator.start();
            MainForm& form = calculator.engine().form;
            for (int mask = 0; mask < 8; ++mask) {
                calculator.engine().keypads().ShowKeypad(table->id);
                pressKey(form, {.keyCode = '7', .character = '7'});
                pressKey(form, {.keyCode = 13, .character = 13});
                const auto shift = static_cast<std::uint8_t>(mask);
                if (mask != 0) {
                    holdModifiers(form, shift);
                }
                click(form, form.cmdFunctions.at(static_cast<std::size_t>(key)));
                rightClick(form, form.cmdFunctions.at(static_cast<std::size_t>(key)), shift);
                releaseModifiers(form);
            }
        }
    }
    return found;
}

}  // namespace tallyforge
