// SPDX-License-Identifier: GPL-3.0-or-later
//
// A walk by keyboard over a form whose typing has a field of its own: Tab goes from group to group,
// arrows within one, Space presses, Esc and all typing lead back to the field.
#pragma once

#include "platform/form_input.h"

namespace tallyforge {

/// Does what `stroke` means to the walk. Returns false for a stroke that is not its own; that one
/// ends the walk.
bool walkBy(Form& form, KeyStroke stroke);

}  // namespace tallyforge
