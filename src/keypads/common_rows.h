// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of keys 0 to 2 where a keypad has them as most do; only the help topics differ.
#pragma once

#include "functions/reciprocal_square.h"
#include "keypads/keypad_table.h"
#include "keypads/keys.h"

namespace tallyforge {

constexpr KeyRow reciprocalRow(int helpTopic) {
    return {
        .key = 0, .caption = "1/x", .tip = " X key ", .common = true, .helpTopic = helpTopic, .does = [](Keys& keys) {
            reciprocal(keys.calc);
        }};
}

constexpr KeyRow squareRow(int helpTopic) {
    return {.key = 1,
            .caption = {"x²"_t},
            .tip = " Shift+Ctrl+X ",
            .common = true,
            .helpTopic = helpTopic,
            .does = [](Keys& keys) { square(keys.calc); }};
}

constexpr KeyRow squareRootRow(int helpTopic) {
    return {.key = 2,
            .caption = {"Ö´"_t, Face::Symbol},
            .tip = " Ctrl+X ",
            .common = true,
            .helpTopic = helpTopic,
            .does = [](Keys& keys) { squareRoot(keys.calc); }};
}

}  // namespace tallyforge
