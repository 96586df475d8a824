// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of filters and of the capacitor behind a rectifier. Each press gives one quantity, which the
// modifiers name; the last one leaves the results. Nothing entered, or 0, begins anew.
#pragma once

#include "engine/multi_input.h"

#include <string>
#include <vector>

namespace tallyforge {

class Engine;

class FilterKeys {
public:
    explicit FilterKeys(Engine& calculator);

    /// f/fc, n (Ctrl): loss of a Butterworth low pass, dB.
    void butterworth();
    /// f/fc, n (Ctrl), ripple (Alt): loss of a Chebyshev low pass, dB, f/fc counted from the edge of
    /// the ripple band (in Y) and from the frequency of the 3 dB.
    void chebyshev();
    /// Impedance (Shift), cut-off of a low pass (Alt) or high pass (Shift+Alt), centre of a band
    /// (Ctrl+Alt); then elements of the normalised filter, coils (plain) or capacitors (Ctrl), are
    /// scaled to it, one after the other.
    void scaling();
    /// Volts of the transformer and behind the rectifier (Ctrl), amperes (Alt), frequency
    /// (Ctrl+Alt): the capacitor, and watts per ohm of its series resistance.
    void supplyCapacitor();

private:
    [[nodiscard]] std::vector<KeyResult> scaled(std::uint8_t bits, const InputValues& values) const;
    [[nodiscard]] std::vector<KeyResult> capacitor(const InputValues& values) const;

    Engine& calc;
    MultiInput butterworth_;
    MultiInput chebyshev_;
    MultiInput scaling_;
    MultiInput supply_;
    bool highPass_ = false;  ///< the cut-off that was given last is that of a high pass
};

}  // namespace tallyforge
