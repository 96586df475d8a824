// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the dialogs of all families share: their place beside the main form, the keys of their
// number fields, and the texts that they say alike.
#pragma once

#include "engine/engine_state.h"
#include "platform/platform.h"

#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

struct DialogPlace {
    int DialogTop = 0;
    int DialogLeft = 0;
};

/// Where a dialog of the given size goes: beside the middle of `form` and wholly on the screen. All
/// lengths are in twips.
[[nodiscard]] DialogPlace PlaceDialog(const Place& form, const DesktopMetrics& screen, int width, int height);

/// Where a calculator or a choice of parameters goes: beside the middle of `form`, or over it where
/// the screen ends.
[[nodiscard]] DialogPlace placeCalculator(const Place& form, const DesktopMetrics& screen, int width, int height);
/// PlaceDialog for a dialog over the calculator's form, as its `placing`.
void placeBeside(const Engine& calc, Form& dialog);

/// Keys of a dialog's number field.
class DialogKeyFilter {
public:
    explicit DialogKeyFilter(char decimal) : decimal_(decimal) {}

    /// What `key` does to a field with `text`: the code of the character that goes in, as text; "0"
    /// for none; "chs" where the sign is to be changed; "esc" where the entry is to be given up.
    /// EEX on an empty field writes "1e" into it and lets nothing in.
    [[nodiscard]] std::string filter(int key, std::string& text);

    bool EexActive = false;     ///< the field holds an exponent
    bool exponentSign = false;  ///< and the exponent a minus

private:
    [[nodiscard]] std::string exponentKey(int key, std::string& text);

    char decimal_;
};

/// The angle mode for a caption ("Deg", "rad", "Grad"), or for a label ("(ø)", "(rad)", "(Gr)").
[[nodiscard]] std::string_view AngleLabel(AngleMode mode, bool state);

/// Tells that a number field takes no more than its 15 characters, `text`.
void CharLimitMessage(Engine& calc, std::string_view text);

/// A tape label with the usual characters in the place of the tape's glyphs, and back: both sides
/// of each pair are exchanged.
[[nodiscard]] std::string MapLabelToPrint(std::string_view label);

}  // namespace tallyforge
