// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/reset_key.h"

#include "desk/machine_reset.h"
#include "desk/tape_keys.h"
#include "engine/engine.h"

#include <utility>

namespace tallyforge {

void ResetKey::cmdReset_Click() {
    EngineState& s = calc.s;
    const std::uint8_t mask = std::exchange(s.modifiers.ModifierMask, std::uint8_t{0});
    calc.focusEntry();
    switch (mask) {
        case 0:
            clear(TapeFileKind::StackAndTape);
            break;
        case kCtrl:
            clear(TapeFileKind::Registers);
            break;
        case kAlt:
            clear(TapeFileKind::Everything);
            break;
        case kShift | kCtrl | kAlt:
            s.files.UndoKind = TapeFileKind::Undo;
            tapeKeys.mnuTape_Click();
            break;
        default:
            // The other combinations reset in Program mode only.
            if (s.modes.ProgramMode) {
                clear(TapeFileKind::StackAndTape);
            }
            break;
    }
    calc.ClearOptKeys();
}

void ResetKey::clear(TapeFileKind kind) {
    calc.s.files.UndoKind = kind;
    tapeKeys.mnuSaveTape_Click();
    if (kind != TapeFileKind::StackAndTape) {
        reset.clearRegisters();
    }
    if (kind != TapeFileKind::Registers) {
        reset.clearStackAndTape();
    }
}

}  // namespace tallyforge
