// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a caption of the bank means, in words, for the name line and for a listener.
#pragma once

#include "engine/engine_state.h"

#include <string_view>

namespace tallyforge {

/// The words for `caption`, in UTF-8 as it is read on `keypad`; empty where the caption says all that
/// there is.
[[nodiscard]] std::string_view captionWords(Keypad keypad, std::string_view caption);

}  // namespace tallyforge
