// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a key's function may use: the engine, and the subjects that keep state of their own. Rows
// of the keypad tables are handed one of these.
#pragma once

#include "bases/binary_keys.h"
#include "convert/conversion_keys.h"
#include "dialogs/dialog_hand_over.h"
#include "dialogs/unit_tables.h"
#include "electrical/electrical_keys.h"
#include "engine/engine.h"
#include "functions/dates.h"
#include "functions/everyday.h"
#include "functions/quiz.h"
#include "functions/statistics.h"
#include "functions/triangles.h"
#include "reference/reference_lists.h"

#include <functional>
#include <span>
#include <string_view>

namespace tallyforge {

struct Keys {
    Engine& calc;
    /// Loads one of the programs that belong to a key, by its file name.
    std::function<void(std::string_view)> runProgram{};
    /// Asks whether the units in force of these ranges are to be the default; whether they are now.
    std::function<bool(std::span<const UnitRange* const>)> saveUnits{};
    DialogHandOver dialog{calc};
    BinaryKeys binary{calc};
    ConversionKeys conversions{calc};
    Dates dates{calc};
    ElectricalKeys electrical{calc};
    Fractions fractions{calc};
    Quiz quiz{calc};
    Statistics statistics{calc};
    Triangles triangles{calc};
    ReferenceLists lists{calc};
};

/// A function of the engine alone, as a row takes it; `which` says what it is asked for.
template <auto Function, auto... which>
void on(Keys& keys) {
    Function(keys.calc, which...);
}

}  // namespace tallyforge
