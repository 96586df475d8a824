// SPDX-License-Identifier: GPL-3.0-or-later
//
// The number codes printed on parts: significant digits, and a last digit that counts the zeros
// behind them. A resistor's code counts ohms, a capacitor's picofarads, an inductor's nanohenries.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyforge {

class Engine;

enum class Component : std::uint8_t { Resistor, Capacitor, Inductor };

/// The number of ohms, picofarads or nanohenries below which there is no code, and from which on
/// there is none (100 gigaohms, 100 millifarads, 100 henries).
inline constexpr double kLeastCoded = 100.0;
inline constexpr double kBeyondCodes = 1e11;

/// A number between 1 and 1000 with the prefix of its unit; beyond the prefixes it may be larger.
struct Prefixed {
    double number = 0.0;
    std::string_view prefix{};
};

/// What `code` says, in ohms, farads or henries. The code is rounded to whole digits, half to even;
/// empty for one of fewer than three digits.
[[nodiscard]] std::optional<Prefixed> decoded(Component component, double code);

/// The code of a value in ohms, picofarads or nanohenries from kLeastCoded on: three significant
/// digits, half to even, of which a last 0 is left out. Empty from kBeyondCodes on, rounded.
[[nodiscard]] std::optional<double> encoded(double value);

enum class Sought : std::uint8_t { Value, Code };
/// The code in X to its value; or X in ohms, microfarads or millihenries to the code.
void FindValue(Engine& calc, Component component, Sought sought);

}  // namespace tallyforge
