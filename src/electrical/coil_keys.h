// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of coils: the solenoid, the Q of a coil, the mean length of a turn. Each press gives one
// quantity, which the modifiers name; the last one leaves the result. Nothing entered, or 0, begins
// anew.
#pragma once

#include "electrical/coils.h"
#include "electrical/electrical_choices.h"
#include "engine/multi_input.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class CoilKeys {
public:
    CoilKeys(Engine& calculator, const ElectricalChoices& electricalChoices);

    /// Microhenries, turns (Ctrl), radius (Alt), length (Ctrl+Alt) in the unit in force: the
    /// inductance or the turns from the others.
    void solenoid();
    /// Frequency, ohms of direct current (Ctrl), inductance (Alt), gauss (Ctrl+Alt): Q on the chosen
    /// permeability.
    void quality();
    /// Two or three (Alt) dimensions of the chosen shape: the mean length of a turn in the unit in
    /// force, or in feet.
    void meanTurn();

private:
    [[nodiscard]] std::vector<KeyResult> solenoidResult(std::uint8_t bits, const InputValues& values) const;
    [[nodiscard]] std::optional<InputRefusal> withoutPermeability() const;
    [[nodiscard]] std::string qualityLabel(const KeyInput& input) const;
    [[nodiscard]] std::vector<KeyResult> qualityResult(const InputValues& values) const;
    [[nodiscard]] std::vector<KeyResult> meanTurnResult(TurnShape turnShape, const InputValues& values) const;
    [[nodiscard]] MultiInput meanTurnKey(TurnShape turnShape);

    Engine& calc;
    const ElectricalChoices& choices;
    MultiInput solenoid_;
    MultiInput quality_;
    std::array<MultiInput, 3> meanTurn_;  ///< by TurnShape
};

}  // namespace tallyforge
