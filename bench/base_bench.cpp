// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a key of the Binary keypad costs, from the click to its committed tape line.
#include "support/calculator_fixture.h"

#include <benchmark/benchmark.h>

namespace {

using namespace tallyforge;

/// The bank key `range(0)` on a number of 64 bits; -1 is the division of two such numbers.
void BaseKey(benchmark::State& state) {
    CalculatorAtHand hand;
    hand.choose(hand.form().mnuEngBinary);
    Engine& calc = hand.calc();
    const auto push = [&calc](const char* text) {
        calc.s.stack.Xreg = text;
        calc.s.entry.EntryOpen = true;
        calc.commit.deliverX();
    };
    for (auto _ : state) {
        state.PauseTiming();
        calc.s.stack.StackPtr = 1;
        push("#FEDCBA9876543210h");
        push("#123456789ABCDEFh");
        state.ResumeTiming();
        if (state.range(0) < 0) {
            calc.keypads().cmdMath_Click(0);
        } else {
            calc.keypads().cmdFunctions_Click(static_cast<int>(state.range(0)));
        }
    }
}
BENCHMARK(BaseKey)->ArgName("key")->Arg(-1)->Arg(4)->Arg(11)->Arg(12)->Arg(15)->Arg(20);

}  // namespace
