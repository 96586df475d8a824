// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/tape_posting.h"

#include "engine/engine.h"

#include <utility>

namespace tallyforge {

void postLines(Engine& calc, std::span<const PostedLine> lines) {
    EngineState& s = calc.s;
    bool pushes = true;
    for (const PostedLine& line : lines) {
        s.stack.Xreg = line.value;
        s.delivery.FnLabel = line.label;
        s.delivery.ValueInXreg = true;
        // The first goes on top of the stack, the others take its place.
        s.entry.EntryOpen = std::exchange(pushes, false);
        calc.commit.cmdEnter_Click();
    }
}

}  // namespace tallyforge
