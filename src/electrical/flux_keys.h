// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of flux: volt-seconds, the flux that a voltage needs, flux density.
#pragma once

#include "engine/multi_input.h"

#include <cstdint>

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

/// Y is an area in square centimetres, X lines of flux from peak to peak: the flux density in gauss.
/// Raises 6, 11.
void densityOfFlux(Engine& calc);
/// The same back, from a flux density in X.
void fluxOfDensity(Engine& calc);

/// Half a cycle of a sine or of a square wave.
enum class HalfWave : std::uint8_t {
    SineVoltSeconds,
    SineVolts,
    SquareVoltSeconds,
    SquareVolts,
    SineHertz,
    SquareHertz
};
/// To volt-seconds Y is a frequency and X volts; back to volts X is volt-seconds; to the frequency Y
/// is volt-seconds and X volts. Raises 6, 11.
void halfWave(Engine& calc, HalfWave which);

}  // namespace tallyforge
