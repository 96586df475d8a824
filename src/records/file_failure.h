// SPDX-License-Identifier: GPL-3.0-or-later
//
// Runs a file action and turns what the file store reports into the numbered failures that the
// calculator's handlers know.
#pragma once

#include "numbers/failure.h"
#include "platform/file_store.h"

#include <utility>

namespace tallyforge {

[[nodiscard]] constexpr FailureNumber failureOf(FileProblem problem) {
    switch (problem) {
        case FileProblem::NotFound:
            return FailureNumber::FileNotFound;
        case FileProblem::DiskFull:
            return FailureNumber::DiskFull;
        case FileProblem::TooLarge:
            return FailureNumber::DamagedFile;
        case FileProblem::NoAccess:
            break;
    }
    return FailureNumber::PathAccess;
}

/// Raises 53, 54, 61 or 75 where `action` raises a FileError.
template <typename Action>
decltype(auto) onFile(Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const FileError& error) {
        throw Failure{failureOf(error.problem())};
    }
}

}  // namespace tallyforge
