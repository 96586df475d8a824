// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user is told when a bank key's function fails.
#pragma once

#include "engine/engine_state.h"
#include "numbers/failure.h"

#include <string>

namespace tallyforge {

/// Text of the box for a failure of the bank key `index`, as the state stands at the failure.
[[nodiscard]] std::string failureMessage(FailureNumber number, int index, const EngineState& state);

}  // namespace tallyforge
