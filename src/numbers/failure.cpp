// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/failure.h"

namespace tallyforge {

std::string_view description(FailureNumber number) {
    switch (number) {
        case FailureNumber::SubtrahendGreater:
            return "Subtrahend greater than minuend";
        case FailureNumber::InvalidArgument:
            return "Invalid argument";
        case FailureNumber::Overflow:
            return "Overflow";
        case FailureNumber::IndexOutOfRange:
            return "Index out of range";
        case FailureNumber::DivisionByZero:
            return "Division by zero";
        case FailureNumber::TypeMismatch:
            return "Type mismatch";
        case FailureNumber::FileNotFound:
            return "File not found";
        case FailureNumber::DiskFull:
            return "Disk full";
        case FailureNumber::DamagedFile:
            return "Damaged file";
        case FailureNumber::PathAccess:
            return "Path or file access error";
        case FailureNumber::ModifierNotValid:
            return "Modifier not valid for this key";
        case FailureNumber::BaseRange:
            return "More than 64 bits";
        case FailureNumber::BaseNumberRequired:
            return "Number of a base required in x";
    }
    return "Unknown failure";
}

}  // namespace tallyforge
