// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a function key costs, from the press to its committed tape line, and a list of statistics.
#include "support/calculator_fixture.h"

#include <benchmark/benchmark.h>

namespace {

using namespace tallyforge;

/// The bank key `range(1)` of keypad `range(0)` on an X that it takes again and again.
void FunctionKey(benchmark::State& state) {
    CalculatorAtHand hand;
    hand.choose(state.range(0) == 2 ? hand.form().mnuTrig : hand.form().mnuStd);
    hand.enter("0.5");
    for (auto _ : state) {
        hand.calc().keypads().cmdFunctions_Click(static_cast<int>(state.range(1)));
    }
}
// 1/x, square root, logarithm of 1 + x; sine, cosine, hyperbolic tangent.
BENCHMARK(FunctionKey)
    ->ArgNames({"keypad", "key"})
    ->Args({0, 0})
    ->Args({0, 2})
    ->Args({0, 13})
    ->Args({2, 22})
    ->Args({2, 21})
    ->Args({2, 17});

/// 100,000 numbers put into the statistics, each keyed and entered by the key.
void StatisticsOfAHundredThousand(benchmark::State& state) {
    constexpr int kEntries = 100'000;
    constexpr int kSigma = 17;
    for (auto _ : state) {
        CalculatorAtHand hand;
        for (int i = 0; i < kEntries; ++i) {
            hand.calc().s.entry.EntryOpen = true;
            hand.calc().setEntry("12.5");
            hand.calc().keypads().cmdFunctions_Click(kSigma);
        }
    }
}
BENCHMARK(StatisticsOfAHundredThousand)->Unit(benchmark::kMillisecond);

}  // namespace
