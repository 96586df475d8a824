// SPDX-License-Identifier: GPL-3.0-or-later
//
// Waves and levels: wavelength, frequency and period; angular frequency; decibels. Pure functions.
#pragma once

namespace tallyforge {

/// The speed of light that the wavelength key computes with, metres a second.
inline constexpr double kWaveSpeed = 3e8;

/// Metres to hertz, or hertz to metres. Raises 11 for 0.
[[nodiscard]] double wavelengthOrFrequency(double value);
/// Metres to the seconds of a period.
[[nodiscard]] double periodOfWavelength(double metres);
/// Seconds of a period to metres.
[[nodiscard]] double wavelengthOfPeriod(double seconds);
/// Hertz to seconds, or seconds to hertz. Raises 11 for 0.
[[nodiscard]] double periodOrFrequency(double value);

/// 2 pi f, radians a second.
[[nodiscard]] double angularFrequency(double hertz);

/// 10 log10(p1 / p2), dB of power. Raises 11 for a p2 of 0, 5 where the ratio is not above 0.
[[nodiscard]] double decibelsOfPower(double p1, double p2);
/// 20 log10((e1 sqrt(z2)) / (e2 sqrt(z1))): dB of the voltages e1 over z1 and e2 over z2, ohms.
/// Raises 5 for a negative impedance or ratio, 11 for an e2 or z1 of 0.
[[nodiscard]] double decibelsOfVoltage(double e1, double z1, double e2, double z2);

}  // namespace tallyforge
