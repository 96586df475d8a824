// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/printing.h"

#include "engine/engine.h"
#include "shell/tape_columns.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

constexpr std::string_view kPattern = "0.000e+00";
constexpr std::size_t kLabelColumn = 24;
constexpr std::size_t kValueColumn = 20;
constexpr float kTapePoints = 12.0F;

}  // namespace

std::string inPrintColumns(std::string_view tapeLine) {
    const TapeColumns columns = columnsOf(tapeLine);
    std::string label(columns.label);
    std::string value(columns.value);
    label.resize(std::max(label.size(), kLabelColumn), ' ');
    if (value.size() < kValueColumn) {
        value.insert(0, kValueColumn - value.size(), ' ');
    }
    return label + value;
}

// What is empty prints as the 0 that it counts as.
std::string Printing::value(const ValueCell& cell) const {
    const bool empty = cell.isEmpty() || cell.isEmptyText();
    return calc.patternText(empty ? ValueCell::zero() : cell, kPattern);
}

PrintJob Printing::page() const {
    const EngineState& s = calc.s;
    const Font title{.face = Face::Arial, .points = kTapePoints};
    const Font tape{.face = Face::Terminal, .points = kTapePoints};
    const auto first = static_cast<std::size_t>(calc.tape.fillers());
    std::vector<std::string> values{"x-reg: " + value(s.stack.Xreg) + "  |  y-reg: " + value(s.stack.Yreg) +
                                    "  |  Lastx: " + value(s.stack.LastX) +
                                    "  |  Bank: " + std::to_string(s.stack.depth())};
    for (std::size_t number = 1; number < s.memory.Registers.size(); number += 2) {
        values.push_back("reg" + std::to_string(number) + ": " + value(s.memory.Registers.at(number)) + " |  reg" +
                         std::to_string(number + 1) + ": " + value(s.memory.Registers.at(number + 1)));
    }
    PrintJob job{
        .title = {"Tallyforge Running Tape Display  --  " + calc.platform.shortDate(calc.platform.now()), title},
        .blocks = {}};
    job.blocks.push_back({.font = tape, .count = calc.tape.lines(), .line = [this, first](std::size_t index) {
                              return inPrintColumns(calc.tape.row(first + index));
                          }});
    job.blocks.push_back(blockOf({"Registers"}, title));
    job.blocks.back().heading = true;
    job.blocks.push_back(blockOf(std::move(values), tape));
    return job;
}

void Printing::mnuPrint_Click() {
    calc.s.CurrentProc = "mnuPrint";
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    calc.platform.print(page());
    calc.focusEntry();
}

}  // namespace tallyforge
