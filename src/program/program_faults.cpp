// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_faults.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyforge {

namespace {

struct Description {
    int number;
    std::string_view text;
};
constexpr std::array<Description, 5> kDescriptions{{
    {7, "Out of memory"},
    {28, "Out of stack space"},
    {52, "Bad file name or number"},
    {62, "Input past end of file"},
    {76, "Path not found"},
}};

}  // namespace

std::string faultDescription(int number) {
    const auto* const known = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                           [number](const Description& row) { return row.number == number; });
    return std::string(known != kDescriptions.end() ? known->text : description(static_cast<FailureNumber>(number)));
}

std::string faultText(int number, const std::string& own, int line) {
    std::string head = "Error " + std::to_string(number);
    const std::string place = " in program near line " + std::to_string(line);
    if (!own.empty()) {
        return head + own;
    }
    switch (number) {
        case 11:
            return head;
        case 29:
            return head + "; Numeric expression requires an '=' as the second object in the line!";
        case 76:
            return head + " - No program found!";
        default:
            return head + " (" + faultDescription(number) + ")" + place;
    }
}

std::string loadFaultText(int number) {
    if (number == 15) {
        return "Error 15: It appears there is an illegal statement near\n the start of the program, check for "
               "misspelling!";
    }
    return "Error " + std::to_string(number) + " (" + faultDescription(number) + ")";
}

}  // namespace tallyforge
