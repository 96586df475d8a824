// SPDX-License-Identifier: GPL-3.0-or-later
//
// Filters: the response of Butterworth and Chebyshev low passes, and the elements of a normalised
// filter scaled to an impedance and a frequency. Pure functions.
#pragma once

#include <cstdint>

namespace tallyforge {

/// Attenuation of a Butterworth low pass of degree n at f/fc, dB: 10 log10(1 + (f/fc)^2n).
/// Raises 5 for a negative f/fc with a broken n, and 6.
[[nodiscard]] double butterworthLoss(double degree, double ratio);

inline constexpr double kLeastDegree = 2;
inline constexpr double kMostDegree = 10;

/// A Chebyshev low pass.
struct Chebyshev {
    int degree = 2;         ///< 2 to 10
    double rippleInDb = 0;  ///< above 0, up to 3
};
struct ChebyshevLoss {
    double fromRippleEdge = 0.0;  ///< dB, f/fc counted from the edge of the ripple band
    double fromHalfPower = 0.0;   ///< dB, f/fc counted from the frequency of the 3 dB
};
/// 10 log10(1 + e^2 T(x)^2) with e^2 = 10^(ripple/10) - 1 and T the Chebyshev polynomial. The 3 dB
/// lie at x3 = cosh(acosh(1/e)/n) of the ripple edge, so that the second figure is T(x x3): 3.01 dB
/// at 1 for every degree and ripple. Raises 11 for a ripple of 0, 6.
[[nodiscard]] ChebyshevLoss chebyshevLoss(const Chebyshev& filter, double ratio);

/// The form of a filter that a normalised low-pass element is scaled to.
enum class FilterForm : std::uint8_t { LowPass, HighPass, BandPass, BandStop };

/// What the elements are scaled to.
struct FilterScale {
    double impedance = 0.0;  ///< ohms
    double cutOff = 0.0;     ///< rad/s; in the band forms the bandwidth
    double centre = 0.0;     ///< rad/s; of the band forms
};
/// An element and, in the band forms, the partner that is in resonance with it at the centre.
struct ScaledElement {
    bool inductor = true;  ///< the element is an inductor (its partner a capacitor), or the reverse
    double value = 0.0;    ///< henries or farads
    bool hasPartner = false;
    double partner = 0.0;  ///< farads or henries
};
/// A normalised element g, an inductor (series arm) or a capacitor (shunt arm). L = g Z / w and
/// C = g / (Z w); high pass and band stop turn each into the other kind, C = 1 / (g Z w) and
/// L = Z / (g w); the partner is (w0^2 L)^-1 or (w0^2 C)^-1. The transformations of the filter
/// tables (Zverev, Handbook of Filter Synthesis). Raises 11 without impedance or cut-off, 6.
[[nodiscard]] ScaledElement scaleElement(bool givenAsInductor, double g, FilterForm form, const FilterScale& scale);

}  // namespace tallyforge
