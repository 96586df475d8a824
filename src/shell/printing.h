// SPDX-License-Identifier: GPL-3.0-or-later
//
// The printed page: the tape in two columns, then registers X, Y, last x and the memory registers.
#pragma once

#include "platform/platform.h"

#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

class Printing {
public:
    explicit Printing(Engine& calculator) : calc(calculator) {}

    /// Hands the tape, the state and the registers to the platform's printer.
    void mnuPrint_Click();

    /// What is printed. It reads the tape when a line is asked for.
    [[nodiscard]] PrintJob page() const;

private:
    [[nodiscard]] std::string value(const class ValueCell& cell) const;

    Engine& calc;
};

/// A tape line in two columns: what stands before its last blank, and the value behind it, so that
/// values end in one column whatever their label.
[[nodiscard]] std::string inPrintColumns(std::string_view tapeLine);

}  // namespace tallyforge
