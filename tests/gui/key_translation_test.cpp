// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/key_translation.h"

#include "platform/key_codes.h"

#include <gtest/gtest.h>

namespace tallyforge {

bool operator==(const KeyStroke& left, const KeyStroke& right) {
    return left.keyCode == right.keyCode && left.shift == right.shift && left.character == right.character;
}
void PrintTo(const KeyStroke& stroke, std::ostream* out) {
    *out << "code " << stroke.keyCode << " shift " << int{stroke.shift} << " character " << stroke.character;
}

namespace {

KeyStroke stroke(int key, Qt::KeyboardModifiers modifiers, const QString& text, char decimal = '.',
                 quint32 scanCode = 0) {
    const QKeyEvent event(QEvent::KeyPress, key, modifiers, scanCode, 0, 0, text);
    return qt::translate(event, decimal);
}

TEST(KeyTranslation, APrintableCharacterHasNoModifier) {
    EXPECT_EQ(stroke(Qt::Key_8, Qt::NoModifier, "8"), (KeyStroke{'8', 0, '8'}));
    EXPECT_EQ(stroke(Qt::Key_Asterisk, Qt::ShiftModifier, "*"), (KeyStroke{kKeyPunctuation, 0, '*'}));
    EXPECT_EQ(stroke(Qt::Key_Percent, Qt::ShiftModifier, "%"), (KeyStroke{kKeyPunctuation, 0, '%'}));
    EXPECT_EQ(stroke(Qt::Key_X, Qt::ShiftModifier, "X"), (KeyStroke{'X', 0, 'X'}));
    EXPECT_EQ(stroke(Qt::Key_1, Qt::ShiftModifier, "1"), (KeyStroke{'1', 0, '1'})) << "digits of a French layout";
}

TEST(KeyTranslation, WhatAltGrTypesHasNoModifier) {
    const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
    EXPECT_EQ(stroke(Qt::Key_Backslash, altGr, "\\"), (KeyStroke{kKeyPunctuation, 0, '\\'}));
    EXPECT_EQ(stroke(Qt::Key_NumberSign, Qt::GroupSwitchModifier, "#"), (KeyStroke{kKeyPunctuation, 0, '#'}));
}

TEST(KeyTranslation, CtrlWithALetterTypesItsControlCharacter) {
    EXPECT_EQ(stroke(Qt::Key_C, Qt::ControlModifier, "\x03"), (KeyStroke{'C', kCtrl, 3}));
    EXPECT_EQ(stroke(Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier, "\x18"), (KeyStroke{'X', kCtrl + kShift, 24}));
}

TEST(KeyTranslation, AltWithALetterTypesNothing) {
    EXPECT_EQ(stroke(Qt::Key_D, Qt::AltModifier, "d"), (KeyStroke{'D', kAlt, 0}));
}

TEST(KeyTranslation, TheDecimalKeyOfTheNumberPadFollowsTheLocale) {
    EXPECT_EQ(stroke(Qt::Key_Period, Qt::KeypadModifier, ".", ','), (KeyStroke{kKeyPunctuation, 0, ','}));
    EXPECT_EQ(stroke(Qt::Key_Comma, Qt::KeypadModifier, ",", '.'), (KeyStroke{kKeyPunctuation, 0, '.'}));
    EXPECT_EQ(stroke(Qt::Key_Delete, Qt::KeypadModifier, {}, ',').keyCode, kKeyDelete) << "NumLock is off";
    EXPECT_EQ(stroke(Qt::Key_Comma, Qt::NoModifier, ",", '.'), (KeyStroke{kKeyPunctuation, 0, ','}));
}

TEST(KeyTranslation, DigitsKeepTheirCodesUnderCtrl) {
    EXPECT_EQ(stroke(Qt::Key_6, Qt::ControlModifier, "\x1e"), (KeyStroke{kKeyDigit6, kCtrl, 0}));
    EXPECT_EQ(stroke(Qt::Key_6, Qt::ControlModifier | Qt::KeypadModifier, "6"), (KeyStroke{kKeyPad6, kCtrl, 0}));
    EXPECT_EQ(stroke(Qt::Key_5, Qt::ControlModifier | Qt::KeypadModifier, "5"), (KeyStroke{kKeyPad5, kCtrl, 0}));
    constexpr quint32 kPlaceOfFive = 14;
    EXPECT_EQ(stroke(Qt::Key_Percent, Qt::ControlModifier | Qt::ShiftModifier, "%", '.', kPlaceOfFive),
              (KeyStroke{kKeyDigit5, kCtrl + kShift, 0}));
}

TEST(KeyTranslation, CtrlMeansThePlaceWhereTheLayoutHasAnotherCharacter) {
    constexpr quint32 kPlaceOfFive = 14;
    constexpr quint32 kPlaceOfC = 54;
    constexpr int kCyrillicEs = 0x421;
    EXPECT_EQ(stroke(Qt::Key_ParenLeft, Qt::ControlModifier, "(", '.', kPlaceOfFive), (KeyStroke{kKeyDigit5, kCtrl, 0}))
        << "a French layout";
    EXPECT_EQ(stroke(kCyrillicEs, Qt::ControlModifier, "\x03", '.', kPlaceOfC), (KeyStroke{'C', kCtrl, 3}));
    EXPECT_EQ(stroke(Qt::Key_J, Qt::ControlModifier, "\x0a", '.', kPlaceOfC), (KeyStroke{'J', kCtrl, 10}))
        << "another Latin layout";
}

TEST(KeyTranslation, NamedKeysKeepTheirModifiers) {
    EXPECT_EQ(stroke(Qt::Key_Return, Qt::NoModifier, "\r"), (KeyStroke{kKeyEnter, 0, 13}));
    EXPECT_EQ(stroke(Qt::Key_Enter, Qt::KeypadModifier, "\r"), (KeyStroke{kKeyEnter, 0, 13}));
    EXPECT_EQ(stroke(Qt::Key_F10, Qt::NoModifier, {}), (KeyStroke{kKeyF10, 0, 0}));
    EXPECT_EQ(stroke(Qt::Key_F12, Qt::ShiftModifier, {}), (KeyStroke{kKeyF12, kShift, 0}));
    EXPECT_EQ(stroke(Qt::Key_Down, Qt::ControlModifier, {}), (KeyStroke{kKeyDown, kCtrl, 0}));
    EXPECT_EQ(stroke(Qt::Key_Insert, Qt::KeypadModifier, {}), (KeyStroke{kKeyInsert, 0, 0}));
}

TEST(KeyTranslation, ADeadKeyTypesItsCharacter) {
    EXPECT_EQ(stroke(Qt::Key_Dead_Circumflex, Qt::ShiftModifier, {}).character, '^');
    EXPECT_EQ(stroke(Qt::Key_Dead_Grave, Qt::NoModifier, {}).character, '`');
}

TEST(KeyTranslation, KnowsTheModifierKeys) {
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_Shift), kShift);
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_Control), kCtrl);
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_Alt), kAlt);
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_Meta), kAlt) << "the name of Alt while Shift is held";
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_A), 0);
    EXPECT_EQ(qt::modifierOfKey(Qt::Key_CapsLock), 0);
}

}  // namespace
}  // namespace tallyforge
