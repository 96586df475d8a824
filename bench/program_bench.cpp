// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a word of a program costs, with its commit, its tape line and its trip through fifteen
// digits. The counter "words" is words per second; tools/bench_programs compares with dc and bc.
#include "platform/form_input.h"
#include "shell/calculator.h"
#include "support/test_platform.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace tallyforge;

constexpr int kTurns = 100000;
constexpr std::size_t kKeyA = 15;
/// Words of the loop around each line: kk = kk 1 +, drop, if kk < n then, glb loop.
constexpr int kLoopWords = 13;

/// Runs a program that does `loop`, which has `words` words, many times.
void runLoop(benchmark::State& state, const std::string& loop, int words) {
    TestPlatform desktop;
    Calculator calculator(desktop);
    calculator.start();
    std::filesystem::create_directories(desktop.folder / "programs");
    std::ofstream(desktop.folder / "programs/bench.rec")
        << "# kk ss aa xx yy\nlbl init\nend\nlbl a\nkk = 1\nss = 0\naa = 2\nxx = 1\nglb loop\nend\nlbl loop\n"
        << loop << "kk = kk 1 +\ndrop\nif kk < " << kTurns << " then\nglb loop\nendif\nend\n"
        << "lbl twice\nss = ss 2 +\ndrop\nend\n";
    desktop.texts.push_back("bench");
    Engine& calc = calculator.engine();
    click(calc.form, calc.form.mnuProgram);
    for (auto _ : state) {
        click(calc.form, calc.form.cmdFunctions.at(kKeyA));
        state.PauseTiming();
        calc.tape.clear(calc.s.window.TapeRows);
        calc.s.stack.StackPtr = 1;
        state.ResumeTiming();
    }
    state.counters["words"] = benchmark::Counter(static_cast<double>(words + kLoopWords) * kTurns,
                                                 benchmark::Counter::kIsIterationInvariantRate);
}

void ProgramSum(benchmark::State& state) {
    runLoop(state, "ss = ss kk kk * kk 1 + / +\ndrop\n", 12);
}
BENCHMARK(ProgramSum)->Unit(benchmark::kMillisecond);

void ProgramNewton(benchmark::State& state) {
    runLoop(state, "yy = aa xx / xx + 2 /\ndrop\nxx = yy\ndrop\n", 14);
}
BENCHMARK(ProgramNewton)->Unit(benchmark::kMillisecond);

void ProgramFunctions(benchmark::State& state) {
    runLoop(state, "ss = ss kk sin kk ln + kk sqrt + +\ndrop\n", 13);
}
BENCHMARK(ProgramFunctions)->Unit(benchmark::kMillisecond);

void ProgramSubroutine(benchmark::State& state) {
    runLoop(state, "gsb twice\n", 10);
}
BENCHMARK(ProgramSubroutine)->Unit(benchmark::kMillisecond);

}  // namespace
