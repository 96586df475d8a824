// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/machine_screws.h"

#include "electrical/drills.h"
#include "electrical/key_answers.h"
#include "engine/engine.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kScrewDigits = 4;
constexpr int kSmallestScrew = -2;
constexpr int kLargestScrew = 14;
constexpr double kThreadsPlaces = 100.0;

constexpr std::string_view kTitle = "Machine Screw Sizes";
constexpr KeyRefusal kNotWhole{.text = "Please enter an integer!", .title = kTitle};
constexpr KeyRefusal kNoSuchScrew{.text = "Enter a size between -2 (000) and 14", .title = kTitle};

constexpr std::array<TableRow, 29> kTapRows{{{-200, 71}, {-100, 65}, {0, 55},    {156, 54},  {164, 53},  {172, 53},
                                             {256, 50},  {264, 50},  {348, 47},  {356, 45},  {436, 44},  {440, 43},
                                             {448, 42},  {540, 38},  {544, 37},  {632, 36},  {636, 34},  {640, 33},
                                             {833, 29},  {836, 29},  {840, 28},  {1024, 25}, {1030, 22}, {1032, 21},
                                             {1224, 16}, {1228, 14}, {1232, 13}, {1420, 10}, {1424, 7}}};

/// What to key for a screw whose threads are missing or unknown.
struct Remedy {
    int screw = 0;
    std::string_view text{};
};
constexpr std::array<Remedy, 10> kRemedies{{{1, "For MS #1 use 1.64 or 1.72"},
                                            {2, "For MS #2 use 2.56 or 2.64"},
                                            {3, "For MS #3 use 3.48 or 3.56"},
                                            {4, "For MS #4 use 4.36, 4.40 or 4.48"},
                                            {5, "For MS #5 use 5.40 or 5.44"},
                                            {6, "For MS #6 use 6.32, 6.36 or 6.40"},
                                            {8, "For MS #8 use 8.33, 8.36 or 8.40"},
                                            {10, "For MS #10 use 10.24, 10.30 or 10.32"},
                                            {12, "For MS #12 use 12.24, 12.28 or 12.32"},
                                            {14, "For MS #14 use 14.20 or 14.24"}}};

std::string screwAndThreads(int code) {
    constexpr int kPlaces = 2;
    return code > 0 ? fixedText(code / kThreadsPlaces, kPlaces)
                    : std::to_string(code / static_cast<int>(kThreadsPlaces));
}

bool isScrew(double size) {
    return size >= kSmallestScrew && size <= kLargestScrew;
}

void refuseThreads(Engine& calc, int screw) {
    const auto remedy =
        std::find_if(kRemedies.begin(), kRemedies.end(), [screw](const Remedy& row) { return row.screw == screw; });
    const std::string none = "No tap drill for MS #" + std::to_string(screw);
    refuse(calc, {.text = remedy == kRemedies.end() ? none : remedy->text, .title = kTitle});
}

/// The drill's number for a screw with the threads behind the point of `x`. Screws of 0 and less
/// come with one thread only.
std::optional<double> tapDrill(double x, double screw) {
    const double threads = screw > 0.0 ? roundHalfEven((x - screw) * kThreadsPlaces, 0) : 0.0;
    return kTapDrills.at(screw * kThreadsPlaces + threads);
}

}  // namespace

constinit const LookupTable kTapDrills{
    .name = "screw-taps",
    .title = "Tap drills of machine screws by size and threads per inch",
    .sizes = "size.tpi",
    .unit = "number drill",
    .source =
        "the calculator's own rows; 8.33 stands for number 8 with 32 threads and is kept, and 1.56, 10.30 and 12.32 "
        "are known to it though no standard has all of them",
    .rows = kTapRows,
    .sizeText = screwAndThreads};

std::optional<double> screwDiameter(Engine& calc, double size) {
    constexpr double kNumberZero = 0.060;
    constexpr double kStep = 0.013;
    if (!isWhole(size) || !isScrew(size)) {
        refuse(calc, isWhole(size) ? kNoSuchScrew : kNotWhole);
        return std::nullopt;
    }
    return kNumberZero + kStep * size;
}

void machineScrew(Engine& calc) {
    if (const auto inches = screwDiameter(calc, calc.xNumber())) {
        answerWithDigits(calc, {*inches, "dia(\")"}, kScrewDigits);
    }
}

void machineScrewTap(Engine& calc) {
    const double x = calc.xNumber();
    const double screw = std::trunc(x);
    if (!isScrew(screw)) {
        refuse(calc, kNoSuchScrew);
        return;
    }
    const auto drill = tapDrill(x, screw);
    if (!drill) {
        refuseThreads(calc, static_cast<int>(screw));
        return;
    }
    const std::string label = "(" + calc.text(calc.s.stack.Xreg) + ") #" + plainSize(static_cast<int>(*drill));
    answerWithDigits(calc, {kNumberDrills.at(*drill).value_or(0.0), label}, kScrewDigits);
}

}  // namespace tallyforge
