// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/tape_posting.h"

#include "engine/engine.h"

#include <utility>

namespace tallyforge {

void postLines(Engine& calc, std::span<const PostedLine> lines) {
    // The first goes on top of the stack, the others take its place.
    OnStack place = OnStack::Pushes;
    for (const PostedLine& line : lines) {
        calc.commit.deliver(
            {.value = line.value, .label = line.label, .place = std::exchange(place, OnStack::ReplacesTop)});
    }
}

}  // namespace tallyforge
