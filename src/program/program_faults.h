// SPDX-License-Identifier: GPL-3.0-or-later
//
// What ends a run: a numbered fault and its text, as the one box of a run shows it.
#pragma once

#include "numbers/failure.h"

#include <exception>
#include <string>
#include <utility>

namespace tallyforge {

/// Numbers of the faults that a program raises by itself, beside those of the keys it presses.
enum class ProgramFaultNumber : int {
    ShortButtonName = 4,
    Overflow = 6,
    NestedTooDeep = 28,
    NoAssignment = 29,
    MessageWithoutBackslash = 30,
    LabelNotAssigned = 32,
    IllegalCharacter = 33,
    VariableNotDeclared = 21,
    PastEndOfFile = 62,
    NoProgram = 76,
};

/// Name of a failure by its number, with a capital, as "(Overflow)" quotes it.
[[nodiscard]] std::string faultDescription(int number);

/// Text of the box behind "Error N": `own` is the text of the statement that raised the fault, if
/// it has one; `line` is the line last read.
[[nodiscard]] std::string faultText(int number, const std::string& own, int line);

/// Text of the box of a load that failed.
[[nodiscard]] std::string loadFaultText(int number);

class ProgramFault : public std::exception {
public:
    explicit ProgramFault(ProgramFaultNumber faultNumber, std::string ownText = {})
        : number(static_cast<int>(faultNumber)), text(std::move(ownText)) {}
    explicit ProgramFault(int faultNumber) : number(faultNumber) {}
    [[nodiscard]] const char* what() const noexcept override { return "program fault"; }

    int number;
    std::string text;
};

}  // namespace tallyforge
