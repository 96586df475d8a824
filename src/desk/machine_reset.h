// SPDX-License-Identifier: GPL-3.0-or-later
//
// Clearing parts of the machine: what Reset does after its undo file is written, and what a
// retrieval starts from.
#pragma once

namespace tallyforge {

class Engine;

class MachineReset {
public:
    explicit MachineReset(Engine& calculator) : calc(calculator) {}

    /// Registers to 0, their names to their numbers.
    void clearRegisters();
    /// Stack, tape, X, Y, last x, entry line and what was begun in it.
    void clearStackAndTape();

private:
    void clearEntryState();
    void clearLists();

    Engine& calc;
};

}  // namespace tallyforge
