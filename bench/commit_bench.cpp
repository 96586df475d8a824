// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a typed number and an arithmetic key cost, with little and with much on tape and stack.
#include "platform/form_input.h"
#include "shell/calculator.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>
#include <string>

namespace {

using namespace tallyforge;

/// A calculator with `lines` on the tape, half of them on the stack where `deep`.
struct Machine {
    explicit Machine(long lines, bool deep) {
        calculator.start();
        Engine& calc = calculator.engine();
        for (long line = 0; line < lines; ++line) {
            calc.s.stack.Xreg = 1.25;
            calc.s.entry.EntryOpen = deep || calc.s.stack.depth() < 1;
            calc.commit.deliverX();
        }
    }
    TestPlatform platform;
    Calculator calculator{platform};
};

/// 3.25 typed into the entry line, then +: two commits.
void TypedNumberPlus(benchmark::State& state) {
    Machine machine(state.range(0), state.range(1) != 0);
    Engine& calc = machine.calculator.engine();
    for (auto _ : state) {
        calc.commit.BeginEntry();
        calc.setEntry("3.25");
        calc.keypads().cmdMath_Click(3);
        benchmark::DoNotOptimize(calc.s.stack.Xreg);
    }
}
BENCHMARK(TypedNumberPlus)->Args({10, 0})->Args({1000000, 0})->Args({1000000, 1});

/// One commit: a typed number and Enter.
void OneCommit(benchmark::State& state) {
    Machine machine(state.range(0), false);
    Engine& calc = machine.calculator.engine();
    for (auto _ : state) {
        calc.commit.BeginEntry();
        calc.setEntry("3.25");
        calc.commit.cmdEnter_Click();
        calc.s.stack.StackPtr = 2;
    }
}
BENCHMARK(OneCommit)->Arg(10)->Arg(1000000);

/// Bytes that the heap holds, large blocks included.
double heapInUse() {
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

/// Bytes of heap that a tape line takes with the value behind it, at 1,000,000 lines.
template <typename Add>
void memoryPerLine(benchmark::State& state, Add add) {
    constexpr int kLines = 1000000;
    for (auto _ : state) {
        const double before = heapInUse();
        Tape tape;
        for (int line = 0; line < kLines; ++line) {
            add(tape);
        }
        benchmark::DoNotOptimize(tape.count());
        state.counters["bytes"] = (heapInUse() - before) / kLines;
    }
}

void MemoryPerTypedLine(benchmark::State& state) {
    memoryPerLine(state, [](Tape& tape) { tape.add("12.50", ValueCell{"12.5"}); });
}
BENCHMARK(MemoryPerTypedLine);

void MemoryPerNumberLine(benchmark::State& state) {
    memoryPerLine(state, [](Tape& tape) { tape.addNumber({}, "+", 5.0); });
}
BENCHMARK(MemoryPerNumberLine);

}  // namespace
