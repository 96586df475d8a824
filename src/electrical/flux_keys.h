// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of flux: volt-seconds, the flux that a voltage needs, flux density.
#pragma once

#include "engine/multi_input.h"

namespace tallyforge {

class Engine;

class FluxKeys {
public:
    explicit FluxKeys(Engine& calculator);

    /// Lines of flux, turns (Ctrl), volt-seconds (Alt): any two give the third.
    void voltSecondTurns();
    /// Lines of flux, turns (Ctrl), hertz (Alt), volts of a sine (Ctrl+Alt): any three give the fourth.
    void fluxCapacity();

private:
    MultiInput voltSeconds_;
    MultiInput capacity_;
};

/// Y is an area in square centimetres, X lines of flux from peak to peak, or with Shift the flux
/// density in gauss: the other one. Raises 6, 11.
void fluxAndDensity(Engine& calc);

/// Half a cycle of a sine, with Ctrl of a square wave. Plain Y is a frequency and X volts, to
/// volt-seconds; Shift back to volts; Alt Y is volt-seconds and X volts, to the frequency. Raises 6, 11.
void voltSecondsOfWave(Engine& calc);

}  // namespace tallyforge
