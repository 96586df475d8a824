// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of keys 0 to 3 where a keypad has them as most do; the help topics differ, and little else.
#pragma once

#include "functions/constants.h"
#include "functions/reciprocal_square.h"
#include "keypads/keypad_table.h"
#include "keypads/keys.h"

namespace tallyforge {

constexpr KeyRow reciprocalRow(int helpTopic) {
    return {.key = key::Reciprocal,
            .caption = "1/x",
            .tip = " X key ",
            .common = true,
            .helpTopic = helpTopic,
            .does = on<reciprocal>};
}

constexpr KeyRow squareRow(int helpTopic) {
    return {.key = key::Square,
            .caption = {"x²"_t},
            .tip = " Shift+Ctrl+X ",
            .common = true,
            .helpTopic = helpTopic,
            .does = on<square>};
}

constexpr KeyRow squareRootRow(int helpTopic) {
    return {.key = key::SquareRoot,
            .caption = {"Ö´"_t, Face::Symbol},
            .tip = " Ctrl+X ",
            .common = true,
            .helpTopic = helpTopic,
            .does = on<squareRoot>};
}

inline constexpr std::string_view kPiTip =
    " Click: pi (P key) | Ctrl+: pi² (Ctrl+P key) | Alt+: pi^(1/3) | Ctrl+Alt+: 2pi (Sh+Ctrl+P key) | Shift+key+ = reciprocal "_t;

constexpr KeyRow piRow(int helpTopic, const char* oneOverSquare, std::string_view tip) {
    return {.key = key::Pi,
            .caption = {"p", Face::Symbol},
            .tip = tip,
            .under = {.shift = {"1/p", Face::Symbol, on<constant, Constant::OneOverPi>},
                      .ctrl = {"sqrd", on<constant, Constant::PiSquared>},
                      .shiftCtrl = {oneOverSquare, on<constant, Constant::OneOverPiSquared>},
                      .alt = {"cube root", on<constant, Constant::CubeRootOfPi>},
                      .shiftAlt = {"1/ C.R.", on<constant, Constant::OneOverCubeRootOfPi>},
                      .ctrlAlt = {"2p", Face::Symbol, on<constant, Constant::TwoPi>},
                      .all = {" 1/ 2p", Face::Symbol, on<constant, Constant::OneOverTwoPi>}},
            .helpTopic = helpTopic,
            .plain = on<constant, Constant::Pi>};
}

}  // namespace tallyforge
