// SPDX-License-Identifier: GPL-3.0-or-later
//
// The printed page: the tape in two columns, then registers X, Y, last x and the memory registers.
#pragma once

#include "platform/platform.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

class Printing {
public:
    explicit Printing(Engine& calculator) : calc(calculator) {}

    /// Hands the page's lines to the platform's printer.
    void mnuPrint_Click();

    /// The lines of the page, top to bottom.
    [[nodiscard]] std::vector<PrintLine> lines() const;

private:
    [[nodiscard]] std::string value(const class ValueCell& cell) const;

    Engine& calc;
};

/// A tape line in two columns: what stands before its last blank, and the value behind it, so that
/// values end in one column whatever their label.
[[nodiscard]] std::string inPrintColumns(std::string_view tapeLine);

/// A date as the locale of that decimal character writes it short: 11/20/2026 or 20.11.2026.
[[nodiscard]] std::string shortDate(const LocalTime& day, char decimal);

}  // namespace tallyforge
