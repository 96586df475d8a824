// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a conversion costs: a plain click with a stored factor, a line of a file, and a letter typed
// into the search of the largest dialog.
#include "convert/conversion_tables.h"
#include "convert/convert_lines.h"
#include "dialogs/conversion_dialog.h"
#include "keypads/keypads.h"
#include "platform/form_input.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>

namespace tallyforge {
namespace {

constexpr std::size_t kLengthKey = 15;

void ConvertByStoredFactor(benchmark::State& state) {
    TestPlatform platform;
    Engine calc{platform};
    Keypads keypads{calc};
    keypads.ShowKeypad(Keypad::Convert);
    keypads.keys.conversions.memory.keep(static_cast<int>(kLengthKey), 1.0000001, " inch to mm ", "mm");
    calc.s.stack.Xreg = 1.0;
    calc.s.entry.EntryOpen = true;
    calc.commit.deliverX();
    for (auto _ : state) {
        click(calc.form, calc.form.cmdFunctions[kLengthKey]);
    }
}
BENCHMARK(ConvertByStoredFactor);

void ConvertLine(benchmark::State& state) {
    LineConverter converter(Sizes::Table, '.');
    for (auto _ : state) {
        benchmark::DoNotOptimize(converter.convert("12.5 inch mm"));
    }
}
BENCHMARK(ConvertLine);

void OpenLengthDialog(benchmark::State& state) {
    TestPlatform platform;
    Engine calc{platform};
    ConversionDialog dialog(kLengthTable, calc, 0);
    platform.inDialog = [](Form&) {};
    for (auto _ : state) {
        benchmark::DoNotOptimize(dialog.ask({.x = 1.0, .former = UnitPair{0, 16, 12}}));
    }
}
BENCHMARK(OpenLengthDialog);

void TypeLetterToFindUnit(benchmark::State& state) {
    TestPlatform platform;
    Engine calc{platform};
    ConversionDialog dialog(kLengthTable, calc, 0);
    const char* const letters[] = {"i", "in", "inc", "inch"};
    std::size_t at = 0;
    for (auto _ : state) {
        dialog.txtFind.text = letters[at++ % 4];
        dialog.txtFind.changed();
    }
}
BENCHMARK(TypeLetterToFindUnit);

}  // namespace
}  // namespace tallyforge
