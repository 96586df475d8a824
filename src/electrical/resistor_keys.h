// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of resistors and impedances. Each press gives one quantity, which the modifiers name; the
// last one leaves what was missing. Nothing entered, or 0, begins anew.
#pragma once

#include "engine/multi_input.h"

#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class ResistorKeys {
public:
    explicit ResistorKeys(Engine& calculator);

    /// RT, R1 (Ctrl), R2 (Alt): any two give the third. Raises 6, 11.
    void parallelResistors();
    /// The pad of least loss between Y and X. Raises 5, 6, 11.
    void minimumLossPad();
    /// Resistivity in microhm-cm, length (Ctrl) and area (Alt) in the units in force, to ohms.
    void resistivity();
    /// xb, jyb (Ctrl), xa (Alt), jya (Ctrl+Alt): two impedances in parallel; angle, magnitude and
    /// imaginary part stay below the real part.
    void parallelImpedance();
    /// Forgets the inputs that Reset has no bit for.
    void clearResistivity() { rho_.clear(); }

private:
    [[nodiscard]] std::string rhoLabel(const KeyInput& input) const;
    [[nodiscard]] std::vector<KeyResult> resistance(const InputValues& values) const;
    [[nodiscard]] std::vector<KeyResult> impedance(const InputValues& values) const;

    Engine& calc;
    MultiInput parallel_;
    MultiInput rho_;
    MultiInput impedance_;
};

}  // namespace tallyforge
