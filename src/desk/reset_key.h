// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Reset key. What it is about to clear goes into "undo.rec" first, so that the last reset can
// be taken back.
#pragma once

#include "engine/engine_state.h"

namespace tallyforge {

class Engine;
class MachineReset;
class TapeKeys;

class ResetKey {
public:
    ResetKey(Engine& calculator, MachineReset& machine, TapeKeys& tape)
        : calc(calculator), reset(machine), tapeKeys(tape) {}

    /// Plain: stack and tape. Ctrl: registers. Alt: both. Shift+Ctrl+Alt: undo. All other masks
    /// do nothing, but in Program mode they reset as the plain key does.
    void cmdReset_Click();

private:
    void clear(TapeFileKind kind);

    Engine& calc;
    MachineReset& reset;
    TapeKeys& tapeKeys;
};

}  // namespace tallyforge
