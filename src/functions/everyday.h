// SPDX-License-Identifier: GPL-3.0-or-later
//
// Wind chill, heat index, fractions and board feet.
#pragma once

#include "engine/multi_input.h"

#include <string_view>

namespace tallyforge {

class Engine;

namespace MathFunctions {

/// Felt temperature (°F) for a wind of `speed` miles per hour at `temperature` °F: the formula of
/// the U.S. National Weather Service of 2001, without its range test. Raises 5 for a negative
/// speed.
[[nodiscard]] double windChill(double speed, double temperature);
/// Heat index (°F) for a relative humidity in percent at `temperature` °F: the regression of
/// Rothfusz, 1990, without its range test and adjustments.
[[nodiscard]] double heatIndex(double humidity, double temperature);

/// The value of the fraction that `text` writes as num.denom: "3.16" is three sixteenths. Raises 5
/// for a text without a denominator.
[[nodiscard]] double fractionValue(std::string_view text, char decimal);

}  // namespace MathFunctions

/// Y is the speed of the wind, X the temperature.
void windChill(Engine& calc);
/// Y is the humidity, X the temperature.
void heatIndex(Engine& calc);

/// The fraction key, which takes board feet with modifiers on the Standard keypad.
class Fractions {
public:
    explicit Fractions(Engine& calculator);

    /// Plain: the fraction num.denom as a decimal. On the Standard keypad Shift is a board's
    /// thickness and Ctrl its width in inches, Alt its length in feet and Shift+Alt in inches: the
    /// third of thickness, width and one length gives its board feet. On the Tables keypad a
    /// modifier makes the key do nothing. Shows its own failures.
    void F2DandBF();

private:
    void fraction();
    void boardFeetInput();
    void refuseFraction();
    void resetBoard(std::string_view label);

    Engine& calc;
    MultiInput board;
};

}  // namespace tallyforge
