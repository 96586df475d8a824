// SPDX-License-Identifier: GPL-3.0-or-later
//
// Failures are numbered, not typed. Arithmetic and parsing throw a Failure; a handler that "goes
// on with the next statement" wraps each statement in goOn(), so that the road after a failure
// can be read off the code.
#pragma once

#include <exception>
#include <string_view>
#include <utility>

namespace tallyforge {

enum class FailureNumber : int {
    SubtrahendGreater = 4,  ///< base subtraction below zero
    InvalidArgument = 5,
    Overflow = 6,
    IndexOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DamagedFile = 54,  ///< a file that is not what its reader expects
    DiskFull = 61,
    PathAccess = 75,  ///< a file that cannot be read or written
    ModifierNotValid = 85,
    BaseRange = 86,  ///< more than 64 bits
    BaseNumberRequired = 93,
};

/// "Overflow", "Type mismatch" and so on, as messages quote it.
[[nodiscard]] std::string_view description(FailureNumber number);

class Failure : public std::exception {
public:
    explicit Failure(FailureNumber failureNumber) : number_(failureNumber) {}
    [[nodiscard]] FailureNumber number() const { return number_; }
    /// The number as messages print it.
    [[nodiscard]] int code() const { return static_cast<int>(number_); }
    [[nodiscard]] const char* what() const noexcept override { return "calculator failure"; }

private:
    FailureNumber number_;
};

/// Runs one statement; a failure in it goes to `onFailure` and the caller goes on with its next
/// statement. Returns whether the statement ran to its end.
template <typename OnFailure, typename Statement>
bool goOn(OnFailure&& onFailure, Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure& failure) {
        std::forward<OnFailure>(onFailure)(failure);
        return false;
    }
}

}  // namespace tallyforge
