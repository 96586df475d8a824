// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/printing.h"

#include "engine/engine.h"

#include <algorithm>
#include <cstdio>

namespace tallyforge {

namespace {

constexpr std::string_view kPattern = "0.000e+00";
constexpr std::size_t kLabelColumn = 24;
constexpr std::size_t kValueColumn = 20;
constexpr float kTapePoints = 12.0F;

std::string withoutBlanksBehind(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

}  // namespace

std::string inPrintColumns(std::string_view tapeLine) {
    const std::string line = withoutBlanksBehind(tapeLine);
    const auto blank = line.rfind(' ');
    std::string label =
        blank == line.npos ? std::string{} : withoutBlanksBehind(std::string_view(line).substr(0, blank));
    std::string value = blank == line.npos ? line : line.substr(blank + 1);
    label.resize(std::max(label.size(), kLabelColumn), ' ');
    if (value.size() < kValueColumn) {
        value.insert(0, kValueColumn - value.size(), ' ');
    }
    return label + value;
}

std::string shortDate(const LocalTime& day, char decimal) {
    char text[32];
    if (decimal == ',') {
        std::snprintf(text, sizeof text, "%02d.%02d.%04d", day.day, day.month, day.year);
    } else {
        std::snprintf(text, sizeof text, "%d/%d/%04d", day.month, day.day, day.year);
    }
    return text;
}

// What is empty prints as the 0 that it counts as.
std::string Printing::value(const ValueCell& cell) const {
    const bool empty = cell.isEmpty() || cell.isEmptyText();
    return calc.patternText(empty ? ValueCell::zero() : cell, kPattern);
}

std::vector<PrintLine> Printing::lines() const {
    const EngineState& s = calc.s;
    const Font title{.face = Face::Arial, .points = kTapePoints};
    const Font tape{.face = Face::Terminal, .points = kTapePoints};
    std::vector<PrintLine> page;
    page.push_back(
        {"Tallyforge Running Tape Display  --  " + shortDate(calc.platform.now(), s.format.DecimalChar), title});
    for (auto row = static_cast<std::size_t>(calc.tape.fillers()); row < calc.tape.count(); ++row) {
        page.push_back({inPrintColumns(calc.tape.row(row)), tape});
    }
    page.push_back({"Registers", title});
    page.push_back({"x-reg: " + value(s.stack.Xreg) + "  |  y-reg: " + value(s.stack.Yreg) +
                        "  |  Lastx: " + value(s.stack.LastX) + "  |  Bank: " + std::to_string(s.stack.depth()),
                    tape});
    for (std::size_t number = 1; number < s.memory.Registers.size(); number += 2) {
        page.push_back({"reg" + std::to_string(number) + ": " + value(s.memory.Registers.at(number)) + " |  reg" +
                            std::to_string(number + 1) + ": " + value(s.memory.Registers.at(number + 1)),
                        tape});
    }
    return page;
}

void Printing::mnuPrint_Click() {
    calc.s.CurrentProc = "mnuPrint";
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    calc.platform.print(lines());
    calc.focusEntry();
}

}  // namespace tallyforge
