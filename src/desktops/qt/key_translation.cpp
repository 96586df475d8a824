// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/key_translation.h"

#include "platform/key_codes.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge::qt {

namespace {

constexpr std::array<std::pair<int, KeyStroke>, 18> kNamed{{
    {Qt::Key_Return, {.keyCode = kKeyEnter, .character = 13}},
    {Qt::Key_Enter, {.keyCode = kKeyEnter, .character = 13}},
    {Qt::Key_Escape, {.keyCode = kKeyEscape, .character = 27}},
    {Qt::Key_Backspace, {.keyCode = kKeyBackspace, .character = 8}},
    {Qt::Key_Delete, {.keyCode = kKeyDelete}},
    {Qt::Key_Insert, {.keyCode = kKeyInsert}},
    {Qt::Key_Home, {.keyCode = kKeyHome}},
    {Qt::Key_End, {.keyCode = kKeyEnd}},
    {Qt::Key_Left, {.keyCode = kKeyLeft}},
    {Qt::Key_Right, {.keyCode = kKeyRight}},
    {Qt::Key_Up, {.keyCode = kKeyUp}},
    {Qt::Key_Down, {.keyCode = kKeyDown}},
    {Qt::Key_Tab, {.keyCode = kKeyTab, .character = 9}},
    {Qt::Key_Backtab, {.keyCode = kKeyTab, .character = 9}},
    {Qt::Key_PageUp, {.keyCode = kKeyPageUp}},
    {Qt::Key_PageDown, {.keyCode = kKeyPageDown}},
    {Qt::Key_Dead_Circumflex, {.keyCode = kKeyPunctuation, .character = '^'}},
    {Qt::Key_Dead_Grave, {.keyCode = kKeyPunctuation, .character = '`'}},
}};

/// Rows of the keyboard by the place of their first key, as X11 and Wayland count the places.
struct KeyRow {
    quint32 first;
    std::string_view keys;
};
constexpr std::array<KeyRow, 4> kRows{{{10, "1234567890"}, {24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}}};

/// What the key in this place is on a Latin keyboard; 0 for another key. With Ctrl a key's name is
/// that of its character, which may be shifted, or no Latin letter at all.
int keyByPlace(const QKeyEvent& event) {
    const quint32 place = event.nativeScanCode();
    for (const KeyRow& row : kRows) {
        if (place >= row.first && place < row.first + row.keys.size()) {
            return static_cast<unsigned char>(row.keys[place - row.first]);
        }
    }
    return 0;
}

int keyCodeOfEvent(const QKeyEvent& event, std::uint8_t mask) {
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return kKeyF1 + key - Qt::Key_F1;
    }
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        const bool pad = (event.modifiers() & Qt::KeypadModifier) != 0;
        return pad ? kKeyPad5 - 5 + key - Qt::Key_0 : key;
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z) {
        return key;
    }
    if ((mask & kCtrl) != 0) {
        constexpr int kLastLatin = 0xFF;
        const int placed = keyByPlace(event);
        const bool digit = placed >= '0' && placed <= '9';
        if (placed != 0 && (digit || key > kLastLatin)) {
            return placed;
        }
    }
    return kKeyPunctuation;
}

}  // namespace

std::uint8_t modifierMask(Qt::KeyboardModifiers modifiers) {
    int mask = 0;
    mask |= (modifiers & Qt::ShiftModifier) != 0 ? kShift : 0;
    mask |= (modifiers & Qt::ControlModifier) != 0 ? kCtrl : 0;
    mask |= (modifiers & Qt::AltModifier) != 0 ? kAlt : 0;
    return static_cast<std::uint8_t>(mask);
}

std::uint8_t modifierOfKey(int key) {
    switch (key) {
        case Qt::Key_Shift:
            return kShift;
        case Qt::Key_Control:
            return kCtrl;
        case Qt::Key_Alt:
        case Qt::Key_Meta:
            return kAlt;
        default:
            return 0;
    }
}

KeyStroke translate(const QKeyEvent& event, char decimal) {
    std::uint8_t mask = modifierMask(event.modifiers());
    const bool pad = (event.modifiers() & Qt::KeypadModifier) != 0;
    if (pad && (event.key() == Qt::Key_Period || event.key() == Qt::Key_Comma)) {
        return {.keyCode = kKeyPunctuation, .shift = 0, .character = static_cast<unsigned char>(decimal)};
    }
    const auto* const named =
        std::find_if(kNamed.begin(), kNamed.end(), [&](const auto& entry) { return entry.first == event.key(); });
    if (named != kNamed.end()) {
        KeyStroke stroke = named->second;
        stroke.shift = stroke.keyCode == kKeyPunctuation ? std::uint8_t{0} : mask;
        return stroke;
    }
    const std::string typed = fromUnicode(event.text().toStdString());
    const int character = typed.size() == 1 ? static_cast<unsigned char>(typed.front()) : 0;
    constexpr int kFirstPrintable = 32;
    constexpr int kRubOut = 127;
    const bool printable = character >= kFirstPrintable && character != kRubOut;
    const bool altGr = (mask & (kCtrl | kAlt)) == (kCtrl | kAlt);
    if (printable && ((mask & (kCtrl | kAlt)) == 0 || altGr)) {
        return {.keyCode = keyCodeOf(character), .shift = 0, .character = character};
    }
    KeyStroke stroke{.keyCode = keyCodeOfEvent(event, mask), .shift = mask};
    const bool letter = stroke.keyCode >= 'A' && stroke.keyCode <= 'Z';
    if ((mask & kCtrl) != 0 && (mask & kAlt) == 0 && letter) {
        stroke.character = stroke.keyCode - 'A' + 1;
    }
    return stroke;
}

}  // namespace tallyforge::qt
