// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a keypad costs without a window: laying one over the bank, painting a mask, and the
// cheapest function key from click to committed tape line.
#include "keypads/keypads.h"
#include "platform/form_input.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>

namespace tallyforge {
namespace {

struct Bank {
    TestPlatform platform;
    Engine calc{platform};
    Keypads keypads{calc};
};

void SwitchKeypad(benchmark::State& state) {
    Bank bank;
    bank.keypads.ShowKeypad(Keypad::Standard);
    for (auto _ : state) {
        bank.keypads.NextKeypad();
    }
}
BENCHMARK(SwitchKeypad);

void PaintMask(benchmark::State& state) {
    Bank bank;
    bank.keypads.ShowKeypad(Keypad::Engineering);
    std::uint8_t mask = 0;
    for (auto _ : state) {
        mask = static_cast<std::uint8_t>((mask + 1) % 8);
        bank.keypads.PaintModifiers(mask);
    }
}
BENCHMARK(PaintMask);

void RepaintUnchangedBank(benchmark::State& state) {
    Bank bank;
    bank.keypads.ShowKeypad(Keypad::Standard);
    for (auto _ : state) {
        bank.keypads.RepaintKeypad();
    }
}
BENCHMARK(RepaintUnchangedBank);

void ReciprocalKey(benchmark::State& state) {
    Bank bank;
    bank.keypads.ShowKeypad(Keypad::Standard);
    bank.calc.commit.BeginEntry();
    bank.calc.setEntry("3");
    bank.calc.commit.cmdEnter_Click();
    for (auto _ : state) {
        click(bank.calc.form, bank.calc.form.cmdFunctions[0]);
    }
}
BENCHMARK(ReciprocalKey);

}  // namespace
}  // namespace tallyforge
