// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/colour_code.h"

#include "reference/chart_figures.h"

#include <memory>

namespace tallyforge {

namespace {

struct CodeColour {
    std::string_view name;
    std::string_view reminder;
    int number;
    std::string_view tolerance;
    Colour look;
};

// Gold is no digit; as a count of zeros it takes one off.
constexpr std::array<CodeColour, 11> kColours{{
    {"Black", "Bad", 0, "", ownColour(0x15, 0x15, 0x15)},
    {"Brown", "Boys", 1, "1 %", ownColour(0x7A, 0x45, 0x20)},
    {"Red", "Razz", 2, "2 %", ownColour(0xCC, 0x22, 0x22)},
    {"Orange", "Our", 3, "", ownColour(0xF0, 0x80, 0x1E)},
    {"Yellow", "Young", 4, "", ownColour(0xF2, 0xD5, 0x22)},
    {"Green", "Girls", 5, "0.5 %", ownColour(0x22, 0x8B, 0x3A)},
    {"Blue", "But", 6, "0.25 %", ownColour(0x22, 0x4F, 0xC0)},
    {"Violet", "Violet", 7, "0.1 %", ownColour(0x80, 0x3A, 0xB0)},
    {"Grey", "Gets", 8, "0.05 %", ownColour(0x8C, 0x8C, 0x8C)},
    {"White", "Wrathful", 9, "", ownColour(0xF6, 0xF6, 0xF6)},
    {"Gold", "- Gosh!", -1, "5 %", ownColour(0xB8, 0x8A, 0x22)},
}};

/// 4700 ohm within 5 percent.
constexpr std::array<std::size_t, kBands> kFirstBands{4, 7, 2, 10};

std::vector<BandColour> bandColours() {
    std::vector<BandColour> colours;
    colours.reserve(kColours.size());
    for (const CodeColour& colour : kColours) {
        colours.push_back({.name = std::string(colour.name),
                           .look = colour.look,
                           .number = colour.number,
                           .tolerance = std::string(colour.tolerance)});
    }
    return colours;
}

/// The resistor as the clicks have left it: each gives the next band its colour.
struct Resistor {
    std::array<std::size_t, kBands> bands = kFirstBands;
    std::size_t next = 0;

    Drawing follow(ChosenRow row) {
        if (row) {
            bands.at(next) = *row;
            next = (next + 1) % kBands;
        }
        return resistorFigure(bandColours(), bands);
    }
};

}  // namespace

Chart colourChart() {
    Chart chart{.form = "frmColors",
                .title = "Resistor and Inductor Color Codes",
                .columns = {{.head = "Color", .unit = {}, .number = false},
                            {.head = "Reminder", .unit = {}, .number = false},
                            {.head = "Number", .unit = {}},
                            {.head = "Tolerance", .unit = {}}},
                .rows = {}};
    for (const CodeColour& colour : kColours) {
        const std::string number = std::to_string(colour.number);
        chart.rows.push_back(
            {.cells = {std::string(colour.name), std::string(colour.reminder), number, std::string(colour.tolerance)},
             .value = number,
             .label = std::string(colour.name)});
    }
    chart.note =
        "The first two or three Colors or Numbers are the significant digits, the next is the number of zeros, "
        "followed by the tolerance code.";
    chart.source = "IEC 60062. Click colors one after the other: the bands follow.";
    constexpr int kColourTopic = 2010;
    chart.helpTopic = kColourTopic;
    chart.figure = [resistor = std::make_shared<Resistor>()](ChosenRow row) { return resistor->follow(row); };
    return chart;
}

}  // namespace tallyforge
