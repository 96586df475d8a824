// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a calculator dialog costs without a window: a whole solution with its fields, and the tips of
// all keys of the Engineering and Magnetics keypads with the units in force.
#include "calculators/calculators.h"
#include "dialogs/calculator_dialog.h"
#include "dialogs/dialog_hand_over.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "keypads/keypad_table.h"
#include "platform/form_input.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>

namespace tallyforge {
namespace {

/// Two values typed with Enter, the solution shown, cleared again: what a hand does once.
void SolveInDialog(benchmark::State& state, const CalculatorTable& table) {
    TestPlatform platform;
    Engine calc{platform};
    DialogHandOver handOver{calc};
    CalculatorDialog dialog(calc, handOver, {}, table);
    const auto strike = [&](int character) { pressKey(dialog, {.keyCode = character, .character = character}); };
    Control* const clear = dialog.find("cmdDefault");
    for (auto _ : state) {
        for (const char digit : {'2', '3'}) {
            strike(digit);
            strike('\r');
        }
        benchmark::DoNotOptimize(dialog.find("txtVal", 0)->text);
        click(dialog, *clear);
    }
}
BENCHMARK_CAPTURE(SolveInDialog, Ohm, kOhmsLaw);
BENCHMARK_CAPTURE(SolveInDialog, Resonance, kResonantFrequency);

void SolveTable(benchmark::State& state, const CalculatorTable& table) {
    for (auto _ : state) {
        for (const Solution& solution : table.solutions) {
            Values values = table.example;
            // Where a wave or a choice has a factor; others take none.
            values.at(kParameter) = 1.0;
            benchmark::DoNotOptimize(solveFor(table, solution.given, values));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(table.solutions.size()));
}
BENCHMARK_CAPTURE(SolveTable, Ohm, kOhmsLaw);
BENCHMARK_CAPTURE(SolveTable, FluxDensity, kFluxDensity);
BENCHMARK_CAPTURE(SolveTable, Arc, kArc);

void TipsOfAllTables(benchmark::State& state) {
    const UnitWords units;
    for (auto _ : state) {
        for (const KeypadTable* table : {&kEngineeringKeypad, &kMagneticsKeypad}) {
            for (const KeyRow& row : table->rows) {
                benchmark::DoNotOptimize(withUnits(row.tip, units));
            }
        }
    }
}
BENCHMARK(TipsOfAllTables);

}  // namespace
}  // namespace tallyforge
