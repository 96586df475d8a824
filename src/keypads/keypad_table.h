// SPDX-License-Identifier: GPL-3.0-or-later
//
// A key is a row. Caption, font, colour, tool tip, captions under the seven masks, help topic and
// what the key does stand in one row of its keypad's table. Painters, tool tips, dispatch, help,
// program words and tests all read these rows.
#pragma once

#include "engine/engine_state.h"
#include "engine/key_names.h"
#include "platform/form.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tallyforge {

struct Keys;  // everything that a key's function may use (keys.h)

using KeyFunction = void (*)(Keys&);

/// A caption and the font that it is stored for; an empty text hides the key. Under modifiers it has
/// the function beside it that the key has there.
struct KeyCaption {
    std::string_view text{};
    Face face = Face::Arial;
    float points = 10.0F;
    KeyFunction does = nullptr;
    // NOLINTBEGIN(google-explicit-constructor): rows read as plain captions
    constexpr KeyCaption() = default;
    constexpr KeyCaption(const char* caption) : text(caption) {}
    constexpr KeyCaption(std::string_view caption, Face font = Face::Arial, float size = 10.0F)
        : text(caption), face(font), points(size) {}
    constexpr KeyCaption(std::string_view caption, KeyFunction function) : text(caption), does(function) {}
    constexpr KeyCaption(std::string_view caption, Face font, KeyFunction function)
        : text(caption), face(font), does(function) {}
    // NOLINTEND(google-explicit-constructor)
};

/// Captions and functions under the seven masks; what is left out is invisible under that mask.
struct CaptionsUnder {
    KeyCaption shift{};
    KeyCaption ctrl{};
    KeyCaption shiftCtrl{};
    KeyCaption alt{};
    KeyCaption shiftAlt{};
    KeyCaption ctrlAlt{};
    KeyCaption all{};

    /// Caption under `mask` 1 to 7.
    [[nodiscard]] constexpr const KeyCaption& at(std::uint8_t mask) const {
        switch (mask) {
            case 1:
                return shift;
            case 2:
                return ctrl;
            case 3:
                return shiftCtrl;
            case 4:
                return alt;
            case 5:
                return shiftAlt;
            case 6:
                return ctrlAlt;
            default:
                return all;
        }
    }
};

/// Characters that a key types into the entry line, plain and with Shift; '\0' for none.
struct TypedBy {
    char plain = '\0';
    char shift = '\0';
};

struct KeyRow {
    int key = 0;  ///< index on the bank, 0 to 23
    KeyCaption caption{};
    std::string_view tip{};
    KeyColour colour = KeyColour::Plain;
    CaptionsUnder under{};
    /// The key keeps its caption and stays visible under every mask.
    bool common = false;
    /// The key stays hidden while this holds, whatever the modifiers.
    bool (*hidden)(const EngineState&) = nullptr;
    /// A typed operand is pushed without a tape line, because the function itself writes what the
    /// tape shows.
    bool silentOperand = false;
    int helpTopic = 0;
    /// A key that types, whatever keypad key it is, has no function of its own.
    TypedBy types{};
    /// What the key does where no function of its own stands under the modifiers: a key of several
    /// inputs or a dialog, which takes the modifiers for the name of the input.
    KeyFunction does = nullptr;
    /// Ctrl with the right button on a light blue key: chooses its units or material.
    KeyFunction choose = nullptr;
    /// The caption under a mask (0: plain) that a choice of the user's gives the key; none where the
    /// row's own stands.
    std::optional<KeyCaption> (*captionNow)(const Keys&, std::uint8_t mask) = nullptr;
    /// What it does without modifiers; under modifiers the function stands beside its caption.
    KeyFunction plain = nullptr;

    /// Whether there is anything behind the key.
    [[nodiscard]] constexpr bool built() const { return does != nullptr || plain != nullptr; }
    /// nullptr where the modifiers have no meaning for the key.
    [[nodiscard]] constexpr KeyFunction functionUnder(std::uint8_t mask) const {
        const KeyFunction own = mask == 0 ? plain : under.at(mask).does;
        return own != nullptr ? own : does;
    }
};

struct KeypadTable {
    Keypad id = Keypad::Standard;
    std::string_view name{};  ///< "Standard", as `lblBank` shows it
    /// The painters leave the keypad as it is under a modifier.
    bool paintsUnderModifiers = true;
    std::array<KeyRow, kBankKeys> rows{};  ///< in key order 0 to 23
};

/// The table of a user keypad (Standard, Engineering, Trigonometry, Convert, Magnetics, Binary,
/// Tables). A transient keypad has the table of the keypad that it borrows its keys from.
[[nodiscard]] const KeypadTable& keypadTable(Keypad keypad);

/// All seven, in the order of the keypad cycle.
[[nodiscard]] std::span<const KeypadTable* const> keypadTables();

extern const KeypadTable kStandardKeypad;
extern const KeypadTable kEngineeringKeypad;
extern const KeypadTable kTrigonometryKeypad;
extern const KeypadTable kConvertKeypad;
extern const KeypadTable kMagneticsKeypad;
extern const KeypadTable kBinaryKeypad;
extern const KeypadTable kTablesKeypad;

}  // namespace tallyforge
