// SPDX-License-Identifier: GPL-3.0-or-later
//
// A form as a picture, for paper: what its labels, fields, options, lists and pictures show, each
// at its place. Keys do nothing on paper and are left out.
#pragma once

#include "platform/drawing.h"
#include "platform/form.h"

namespace tallyforge {

/// The visible controls of `form` in twips, the origin at its left upper corner.
[[nodiscard]] Drawing drawnForm(const Form& form);

}  // namespace tallyforge
