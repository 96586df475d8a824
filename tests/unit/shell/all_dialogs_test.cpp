// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/all_dialogs.h"

#include "platform/form_focus.h"
#include "platform/key_codes.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

namespace tallyforge {
namespace {

bool hasAccessLetter(const Control& control) {
    const auto mark = control.text.find('&');
    return mark != std::string::npos && mark + 1 < control.text.size();
}

/// Everything that Tab and Shift+Tab, the arrows of a group, an access letter, Enter and Esc reach
/// while the dialog stands as it is.
std::set<const Control*> reachedByKeyboard(const Form& dialog) {
    std::set<const Control*> reached{dialog.focus, dialog.defaultKey, dialog.cancelKey};
    for (const Control* stop : tabStops(dialog)) {
        for (const Control* control : dialog.controls()) {
            if (control == stop || (sameGroup(*stop, *control) && takesInput(*control))) {
                reached.insert(control);
            }
        }
    }
    for (const Control* control : dialog.controls()) {
        if (hasAccessLetter(*control)) {
            reached.insert(control);
        }
    }
    return reached;
}

void expectNamesUnique(const Form& dialog) {
    std::set<std::string> names;
    for (const Control* control : dialog.controls()) {
        EXPECT_TRUE(names.insert(control->fullName()).second) << dialogKey(dialog) << " " << control->fullName();
    }
}

void expectReachable(const Form& dialog) {
    const std::set<const Control*> reached = reachedByKeyboard(dialog);
    for (const Control* control : dialog.controls()) {
        if (takesFocus(*control)) {
            EXPECT_TRUE(reached.contains(control)) << dialogKey(dialog) << " " << control->fullName();
        }
    }
}

/// A field, list, choice or picture has no caption, so it needs words of its own.
void expectSpoken(const Form& dialog) {
    for (const Control* control : dialog.controls()) {
        const bool shows = control->kind == ControlKind::Label || control->kind == ControlKind::Lamp;
        const bool captioned = control->kind == ControlKind::Key || control->kind == ControlKind::Option ||
                               control->kind == ControlKind::Check || control->kind == ControlKind::Frame;
        const bool named = !control->spoken.empty() || (captioned && !control->text.empty()) ||
                           (control->kind == ControlKind::Picture && !control->drawing.described.empty());
        EXPECT_TRUE(named || shows || !control->visible) << dialogKey(dialog) << " " << control->fullName();
    }
}

void expectAccessLettersApart(const Form& dialog) {
    std::set<int> letters;
    for (const Control* control : dialog.controls()) {
        if (takesInput(*control) && hasAccessLetter(*control)) {
            const char letter = control->text.at(control->text.find('&') + 1);
            EXPECT_TRUE(letters.insert(std::toupper(static_cast<unsigned char>(letter))).second)
                << dialogKey(dialog) << " " << control->fullName();
        }
    }
}

/// Whether `inner` lies within the dialog and apart from the other controls that take input.
void expectLaidOut(const Form& dialog) {
    for (const Control* one : dialog.controls()) {
        if (!one->visible) {
            continue;
        }
        const Place& place = one->place;
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.width > 0 && place.height > 0 &&
                    place.left + place.width <= dialog.place.width &&
                    place.top + place.height <= dialog.contentHeight())
            << dialogKey(dialog) << " " << one->fullName();
        for (const Control* other : dialog.controls()) {
            const Place& theirs = other->place;
            const bool apart = place.left + place.width <= theirs.left || theirs.left + theirs.width <= place.left ||
                               place.top + place.height <= theirs.top || theirs.top + theirs.height <= place.top;
            EXPECT_TRUE(one == other || apart || !takesFocus(*one) || !other->visible || !canHaveFocus(other->kind))
                << dialogKey(dialog) << " " << one->fullName() << " and " << other->fullName();
        }
    }
}

TEST(AllDialogs, AreInOrder) {
    const std::set<std::string> found = openAllDialogs([](Form& dialog) {
        EXPECT_FALSE(dialog.title.empty()) << dialog.name;
        expectNamesUnique(dialog);
        expectReachable(dialog);
        expectSpoken(dialog);
        expectAccessLettersApart(dialog);
        expectLaidOut(dialog);
    });
    for (const std::string& name : found) {
        RecordProperty(name.substr(0, name.find(' ')), name);
    }
}

TEST(AllDialogs, CloseByTheirCloseButton) {
    openAllDialogs([](Form& dialog) { EXPECT_TRUE(closeForm(dialog)) << dialogKey(dialog); });
}

}  // namespace
}  // namespace tallyforge
