// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a dialog puts what it has found on the tape: a line for each quantity in the user's format,
// and one place on the stack for all of them, in which the last one stays.
#pragma once

#include "numbers/value_cell.h"

#include <span>
#include <string>

namespace tallyforge {

class Engine;

struct PostedLine {
    ValueCell value;
    std::string label;  ///< in the glyphs of the tape
};

void postLines(Engine& calc, std::span<const PostedLine> lines);

}  // namespace tallyforge
