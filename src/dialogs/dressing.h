// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a dialog's control comes to its kind, name and text: one routine for all dialogs that are laid
// out in code.
#pragma once

#include "platform/form.h"

#include <string_view>

namespace tallyforge {

/// The font of captions in dialogs.
inline constexpr Font kDialogCaption{.face = Face::Arial, .points = 8.0F};

/// Makes `control` one of `kind`, named and captioned, in the dialogs' font. Returns it, for what
/// else it needs.
inline Control& dress(Control& control, ControlKind kind, std::string_view name, std::string_view text,
                      int index = kNoIndex) {
    control.kind = kind;
    control.name = name;
    control.index = index;
    control.text = text;
    control.font = kDialogCaption;
    return control;
}

/// The same at a place, in the larger font of dialogs that are read.
inline Control& dress(Control& control, ControlKind kind, std::string_view name, std::string_view text, Place place) {
    dress(control, kind, name, text);
    control.place = place;
    control.font.points = 9.0F;
    return control;
}

}  // namespace tallyforge
