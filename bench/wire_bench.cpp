// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a look-up of wire, hardware or a value code costs, from the click to its committed tape line.
#include "support/calculator_fixture.h"

#include <benchmark/benchmark.h>

#include <array>

namespace tallyforge {
namespace {

struct LookUp {
    const char* name;
    Keypad keypad;
    int key;
    std::uint8_t mask;
    double operand;
};

constexpr std::array kLookUps{
    LookUp{"gauge to inches", Keypad::Magnetics, 15, kAlt, 20.0},
    LookUp{"inches to gauge", Keypad::Magnetics, 15, kShift | kAlt, 0.001},
    LookUp{"area to gauge", Keypad::Magnetics, 15, 0, 1024.0},
    LookUp{"ohms per foot", Keypad::Magnetics, 14, 0, 20.0},
    LookUp{"half size", Keypad::Tables, 4, 0, 50.0},
    LookUp{"tap drill", Keypad::Tables, 10, 0, 8.33},
    LookUp{"sheet steel", Keypad::Tables, 20, 0, 20.0},
    LookUp{"number drill", Keypad::Tables, 21, 0, 29.0},
    LookUp{"code to value", Keypad::Convert, 19, kCtrl, 104.0},
    LookUp{"value to code", Keypad::Convert, 19, kShift, 4990.0},
};

void LookUpKey(benchmark::State& state) {
    const LookUp& lookUp = kLookUps.at(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(lookUp.name);
    CalculatorAtHand hand;
    Engine& calc = hand.calc();
    calc.keypads().ShowKeypad(lookUp.keypad);
    calc.s.stack.Xreg = lookUp.operand;
    calc.s.entry.EntryOpen = true;
    calc.commit.deliverX();
    ValueCell& top = calc.s.stack.Stack.at(static_cast<std::size_t>(calc.s.stack.StackPtr - 1));
    for (auto _ : state) {
        top = lookUp.operand;
        calc.s.modifiers.ModifierMask = lookUp.mask;
        calc.keypads().cmdFunctions_Click(lookUp.key);
    }
}
BENCHMARK(LookUpKey)->DenseRange(0, static_cast<int>(kLookUps.size()) - 1);

}  // namespace
}  // namespace tallyforge
