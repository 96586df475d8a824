// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of electrical engineering and magnetics that take their quantities on the stack: one
// member a subject, and what the user has chosen for them.
#pragma once

#include "electrical/coil_keys.h"
#include "electrical/core_keys.h"
#include "electrical/electrical_choices.h"
#include "electrical/filter_keys.h"
#include "electrical/flux_keys.h"
#include "electrical/resistor_keys.h"
#include "electrical/surface_keys.h"
#include "electrical/wave_keys.h"

namespace tallyforge {

struct ElectricalKeys {
    explicit ElectricalKeys(Engine& calculator)
        : resistors(calculator),
          filters(calculator),
          flux(calculator),
          surfaces(calculator),
          cores(calculator, choices),
          coils(calculator, choices) {}
    // The subjects hold on to the choices.
    ElectricalKeys(const ElectricalKeys&) = delete;
    ElectricalKeys& operator=(const ElectricalKeys&) = delete;

    ElectricalChoices choices{};
    ResistorKeys resistors;
    FilterKeys filters;
    FluxKeys flux;
    SurfaceKeys surfaces;
    CoreKeys cores;
    CoilKeys coils;

    /// What Reset has no bit for.
    void clearPartialStates() {
        resistors.clearResistivity();
        surfaces.clear();
    }
};

}  // namespace tallyforge
