// SPDX-License-Identifier: GPL-3.0-or-later
//
// Levels of signals, and the values of a sine wave.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "numbers/circle.h"

#include <cmath>

namespace tallyforge {

namespace {

using exact::kDecibelsPerNeper;
using exact::kRootOfTwo;

constexpr Unit kDecibel[] = {
    {"decibel", "decibel", 1, 1, "1/20 of the level of a tenfold voltage", Source::SiBrochure, "decibels|dB"},
    {"nepers", "nepers", 8.686, kDecibelsPerNeper, "20 / ln 10 decibels", Source::SiBrochure, "neper|Np"},
    {"bel", "bel", 10, 10, "10 decibels", Source::SiBrochure, "bels|B"},
};

// Effective value of a sine wave over the quantity that the unit names.
const Unit kWaveforms[] = {
    {"peak", "peak", 1.0 / std::sqrt(2.0), 1 / kRootOfTwo, "sine wave: effective value over peak", Source::Trade,
     "peak value|Vp|pk"},
    {"RMS", "RMS", 1, 1, "sine wave", Source::Trade, "rms|effective|Vrms"},
    {"average", "average", tallyforge::kPi / (2.0 * std::sqrt(2.0)), exact::kPi / (2 * kRootOfTwo),
     "sine wave: effective value over mean of the rectified wave", Source::Trade, "avg|mean|rectified average"},
    {"peak-peak", "peak-peak", 1.0 / (2.0 * std::sqrt(2.0)), 1 / (2 * kRootOfTwo),
     "sine wave: effective value over peak-to-peak", Source::Trade, "peak-to-peak|Vpp|pp|p-p"},
};

constexpr UnitGroup kLevels[] = {{.options = "OptDB", .heading = "Level", .base = "dB", .units = kDecibel}};
const UnitGroup kWaves[] = {{.options = "OptWave", .heading = "Sine wave", .base = "RMS", .units = kWaveforms}};

}  // namespace

const ConversionTable kDecibelTable{
    .key = key::Level,
    .form = "frmDB",
    .title = "Convert Decibels",
    .groups = kLevels,
};

const ConversionTable kWaveformTable{
    .key = key::Waveform,
    .form = "frmWav4rm",
    .title = "Convert Waveforms",
    .groups = kWaves,
};

}  // namespace tallyforge
