// SPDX-License-Identifier: GPL-3.0-or-later
//
// window_probe FLOOR CALCULATOR LONG_TAPE: measures three programs in turn, round after round, so
// that what else the machine does falls on all of them: from exec to the painted window, and from a
// key press to its painted result. Ends with 1 where the calculator misses a limit.
#include "x_session.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

namespace {

using namespace tallyforge::bench;

constexpr int kRounds = 10;
constexpr int kStartsPerRound = 2;
constexpr int kCyclesPerRound = 10;
constexpr const char* kLines = "1000000";

/// 1.5 - 2 Enter, Delete: digits, two commits and a drop, which leave the depth as it was.
constexpr std::array<std::uint32_t, 7> kCycle{'1', '.', '5', '-', '2', 0xFF0D, 0xFFFF};

// The limits: times the floor, and milliseconds.
constexpr double kStartTimes = 1.4;
constexpr double kPressTimes = 1.1;
constexpr double kPressLimit = 8.0;

struct Measured {
    const char* name;
    std::vector<std::string> command;
    std::vector<double> starts{};
    std::vector<double> presses{};
};

double quantile(std::vector<double> times, double part) {
    std::sort(times.begin(), times.end());
    return times.at(static_cast<std::size_t>(part * static_cast<double>(times.size() - 1)));
}

void measure(XSession& session, Measured& program) {
    for (int i = 0; i < kStartsPerRound; ++i) {
        session.stop();
        program.starts.push_back(session.start(program.command).count());
    }
    for (const std::uint32_t key : kCycle) {
        session.press(key);  // fonts and glyphs are loaded by now
    }
    for (int cycle = 0; cycle < kCyclesPerRound; ++cycle) {
        for (const std::uint32_t key : kCycle) {
            program.presses.push_back(session.press(key).count());
        }
    }
    session.stop();
}

/// Prints a line; returns whether the limits hold against the floor.
bool report(const Measured& program, const Measured& floor, bool startCounts) {
    const double start = quantile(program.starts, 0.5);
    const double press = quantile(program.presses, 0.5);
    const double slow = quantile(program.presses, 0.99);
    const double startTimes = start / quantile(floor.starts, 0.5);
    const double pressTimes = press / quantile(floor.presses, 0.5);
    std::printf("%-26s %8.1f ms %5.2f x   %8.2f ms %5.2f x   %8.2f ms\n", program.name, start, startTimes, press,
                pressTimes, slow);
    return (!startCounts || startTimes <= kStartTimes) && pressTimes <= kPressTimes && slow < kPressLimit;
}

int run(const char* floorPath, const char* calculatorPath, const char* longTapePath) {
    Measured floor{.name = "floor", .command = {floorPath}};
    Measured calculator{.name = "calculator", .command = {calculatorPath}};
    Measured longTape{.name = "with 1,000,000 tape lines", .command = {longTapePath, kLines}};
    XSession session;
    for (Measured* program : {&floor, &calculator, &longTape}) {
        session.start(program->command);  // the first start makes the settings and fills the caches
        session.stop();
    }
    for (int round = 0; round < kRounds; ++round) {
        for (Measured* program : {&floor, &calculator, &longTape}) {
            measure(session, *program);
        }
    }
    std::printf("%d starts and %d key presses each, in turn; times beside the floor's median\n",
                kRounds * kStartsPerRound, static_cast<int>(floor.presses.size()));
    std::printf("%-26s %20s   %20s   %11s\n", "", "exec to painted", "press to painted", "99 percent");
    report(floor, floor, true);
    const bool plainHolds = report(calculator, floor, true);
    const bool longHolds = report(longTape, floor, false);
    std::printf("limits: start %.1f x, press %.1f x in the median, 99 percent below %.0f ms: %s\n", kStartTimes,
                kPressTimes, kPressLimit, plainHolds && longHolds ? "held" : "missed");
    return plainHolds && longHolds ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kArguments = 4;
    if (argc != kArguments) {
        std::fprintf(stderr, "usage: window_probe FLOOR CALCULATOR LONG_TAPE\n");
        return 2;
    }
    try {
        return run(argv[1], argv[2], argv[3]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "window_probe: %s\n", failure.what());
        return 2;
    }
}
