// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of magnetic cores: their loss and their permeability. Each press gives one quantity, which
// the modifiers name; the last one leaves the result. Nothing entered, or 0, begins anew.
#pragma once

#include "electrical/electrical_choices.h"
#include "engine/multi_input.h"

#include <optional>

namespace tallyforge {

class Engine;

class CoreKeys {
public:
    CoreKeys(Engine& calculator, const ElectricalChoices& electricalChoices);

    /// Powder cores: gauss, kilohertz (Ctrl), permeability (Alt) to watts a pound.
    void powderLoss();
    /// Ferrite of the chosen material: gauss, kilohertz (Ctrl) to milliwatts a cubic centimetre.
    void ferriteLoss();
    /// Gauss, permeability (Alt) to the change of the permeability, percent. Then with Ctrl turns in
    /// X and Ae/le in Y to henries, with Shift+Ctrl other turns. Raises 6; 11 where gauss and
    /// permeability, or Ae/le, have not been given.
    void permeabilityAtFlux();
    /// Oersteds, permeability (Ctrl) to the permeability that is left, percent.
    void permeabilityUnderField();
    /// Lo, le (Ctrl), Ae (Alt), permeability (Ctrl+Alt), in nH per turn squared and centimetres: Lo
    /// or the permeability from the others.
    void permeabilityByLo();

private:
    [[nodiscard]] std::optional<InputRefusal> withoutMaterial() const;
    [[nodiscard]] std::optional<InputRefusal> outsideFieldCurves(const KeyInput& input, double& value);
    void inductanceAtFlux();

    Engine& calc;
    const ElectricalChoices& choices;
    MultiInput powder_;
    MultiInput ferrite_;
    MultiInput atFlux_;
    MultiInput underField_;
    MultiInput byLo_;
    double areaPerLength_ = 0.0;  ///< Ae/le, cm, of the last inductance; 0 before it
    bool highestCore_ = false;    ///< the last permeability was taken for 550
};

}  // namespace tallyforge
