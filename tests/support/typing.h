// SPDX-License-Identifier: GPL-3.0-or-later
//
// A hand at a form's keyboard.
#pragma once

#include "desk/entry_line.h"
#include "engine/engine.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"

#include <cstdint>
#include <string_view>

namespace tallyforge {

/// One key down and up again.
inline void strike(Form& form, int keyCode, int character, std::uint8_t shift) {
    const KeyStroke stroke{.keyCode = keyCode, .shift = shift, .character = character};
    pressKey(form, stroke);
    releaseKey(form, stroke);
}

/// Each character of `text` as a key of its own.
inline void strikeAll(Form& form, std::string_view text) {
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        strike(form, keyCodeOf(code), code, 0);
    }
}

/// Lets `entry` hear the keys of the main form, and Enter commit.
inline void hangKeyboard(Engine& calc, EntryLine& entry) {
    calc.form.txtXreg.keyDown = [&entry](KeyEvent event) { entry.txtXreg_KeyDown(event); };
    calc.form.txtXreg.keyPress = [&entry](int& key) { entry.txtXreg_KeyPress(key); };
    calc.form.txtXreg.keyUp = [&entry](KeyEvent event) { entry.txtXreg_KeyUp(event); };
    calc.form.cmdEnter.click = [&calc] { calc.commit.cmdEnter_Click(); };
}

}  // namespace tallyforge
