// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialog_run.h"

#include "platform/form_focus.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "support/dialog_session.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tallyforge {
namespace {

/// The dialog's control of that full name.
Control& named(const Form& dialog, std::string_view fullName) {
    for (Control* control : dialog.controls()) {
        if (control->fullName() == fullName) {
            return *control;
        }
    }
    throw std::out_of_range(std::string(fullName));
}

/// Plays one line of a session by direct calls.
void play(Form& dialog, std::string_view action) {
    const auto blank = action.find(' ');
    const std::string_view word = action.substr(0, blank);
    std::string_view rest = blank == action.npos ? std::string_view{} : action.substr(blank + 1);
    if (word == "type") {
        return pasteText(dialog, rest);
    }
    if (word == "close") {
        closeForm(dialog);
        return;
    }
    if (word == "key") {
        KeyStroke stroke;
        for (const auto& [name, bit] : {std::pair{"Shift+", kShift}, std::pair{"Alt+", kAlt}}) {
            if (rest.starts_with(name)) {
                stroke.shift = bit;
                rest.remove_prefix(std::string_view(name).size());
            }
        }
        const std::vector<std::pair<std::string_view, int>> keys{{"Backspace", kKeyBackspace},
                                                                 {"Enter", kKeyEnter},
                                                                 {"Tab", kKeyTab},
                                                                 {"Esc", kKeyEscape},
                                                                 {"Space", kKeySpace}};
        stroke.keyCode = rest == "Down" ? kKeyDown : keyCodeOf(static_cast<unsigned char>(rest.front()));
        for (const auto& [name, code] : keys) {
            if (rest == name) {
                stroke.keyCode = stroke.character = code;
            }
        }
        return pressKey(dialog, stroke);
    }
    for (Control* list : dialog.controls()) {
        if (list->rows != nullptr && rest.starts_with(list->name + "(")) {
            const auto row = static_cast<std::size_t>(rest.at(list->name.size() + 1) - '1');
            word == "dblclick" ? doubleClickRow(dialog, *list, row) : clickRow(dialog, *list, row);
            return;
        }
    }
    click(dialog, named(dialog, rest));
}

TEST(DialogRun, ASessionIsHeardAsWritten) {
    TestPlatform platform;
    SessionDialog dialog;
    platform.inDialog = [&](Form& shown) {
        for (const SessionStep& step : kSession) {
            if (!step.action.empty()) {
                play(shown, step.action);
            }
            if (shown.open) {
                EXPECT_EQ(dialog.heard(), step.heard) << step.action;
            }
        }
    };
    platform.showDialog(dialog);
    EXPECT_EQ(dialog.heard(), kSession.back().heard);
    EXPECT_FALSE(dialog.open);
}

TEST(DialogRun, ADialogThatClosesItselfWhileItLoadsIsNeverShown) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.load = [&] { dialog.open = false; };
    platform.showDialog(dialog);
    EXPECT_TRUE(platform.dialogs.empty());
    EXPECT_EQ(dialog.heard(), "place unload");
}

TEST(DialogRun, ADialogIsMovedOntoTheScreen) {
    DesktopMetrics desktop;
    desktop.screenWidth = 10000;
    desktop.screenHeight = 8000;
    Place place{.left = 9000, .top = 7900, .width = 3000, .height = 2000};
    keepOnScreen(place, desktop);
    EXPECT_EQ(place, (Place{.left = 7000, .top = 6000, .width = 3000, .height = 2000}));
    place = {.left = -50, .top = -1, .width = 12000, .height = 9000};
    keepOnScreen(place, desktop);
    EXPECT_EQ(place, (Place{.left = 0, .top = 0, .width = 12000, .height = 9000}));
}

TEST(DialogRun, PlacingDecidesWhereADialogOpensWithinTheScreen) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.placing = [&] {
        dialog.place.left = 500;
        dialog.place.top = platform.desktop.screenHeight;
    };
    platform.showDialog(dialog);
    EXPECT_EQ(dialog.place.left, 500);
    EXPECT_EQ(dialog.place.top, platform.desktop.screenHeight - dialog.place.height);
}

TEST(DialogRun, F1ShowsTheDialogsTopic) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.helpTopic = 1310;
    platform.inDialog = [](Form& shown) { pressKey(shown, {.keyCode = kKeyF1}); };
    platform.showDialog(dialog);
    EXPECT_EQ(platform.helpTopics, std::vector<int>{1310});
}

TEST(DialogRun, APreviewSeesAKeyFirstAndMayKeepIt) {
    TestPlatform platform;
    SessionDialog dialog;
    std::vector<int> seen;
    dialog.preview = [&](KeyEvent event) {
        seen.push_back(event.keyCode);
        return event.keyCode == kKeyEnter;
    };
    platform.inDialog = [&](Form& shown) {
        (void)dialog.heard();
        play(shown, "key Enter");
        play(shown, "type 7");
        EXPECT_EQ(dialog.heard(), "number=7");
    };
    platform.showDialog(dialog);
    EXPECT_EQ(seen, (std::vector<int>{kKeyEnter, '7'}));
}

TEST(DialogRun, AControlThatIsDisabledUnderTheFocusHandsItOn) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.apply.click = [&] { dialog.number.enabled = false; };
    platform.inDialog = [&](Form& shown) {
        (void)dialog.heard();
        play(shown, "key Enter");
        EXPECT_EQ(shown.focus, &dialog.taker);
        EXPECT_EQ(dialog.heard(), "-txtNumber +txtTaker");
    };
    platform.showDialog(dialog);
}

TEST(DialogRun, AHandlerThatSendsTheFocusBackEndsInPeace) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.taker.gotFocus = [&] { dialog.setFocus(dialog.number); };
    dialog.number.gotFocus = [&] { dialog.setFocus(dialog.taker); };
    platform.inDialog = [&](Form& shown) { play(shown, "key Tab"); };
    platform.showDialog(dialog);
    EXPECT_FALSE(dialog.open);
}

TEST(DialogRun, AHiddenCancelKeyLeavesTheCloseButtonToTheForm) {
    TestPlatform platform;
    SessionDialog dialog;
    dialog.leave.visible = false;
    platform.inDialog = [&](Form& shown) { EXPECT_TRUE(closeForm(shown)); };
    platform.showDialog(dialog);
}

TEST(DialogRun, TabWalksNowhereWhereNothingStopsIt) {
    TestPlatform platform;
    SessionDialog dialog;
    for (Control* control : dialog.controls()) {
        control->tabStop = false;
    }
    platform.inDialog = [&](Form& shown) {
        shown.focus = &dialog.apply;
        play(shown, "key Tab");
        EXPECT_EQ(shown.focus, &dialog.apply);
        EXPECT_TRUE(tabStops(shown).empty());
    };
    platform.showDialog(dialog);
}

TEST(DialogRun, RowsKeepTheirSelectionWithinTheirCount) {
    RowTexts rows({"a", "b"});
    EXPECT_EQ(rows.selected(), 2U);
    rows.select(1);
    EXPECT_EQ(rows.selected(), 1U);
    rows.select(9);
    EXPECT_EQ(rows.selected(), rows.count());
    const auto before = rows.revision();
    rows.assign({"c"});
    EXPECT_EQ(rows.selected(), 1U);
    EXPECT_NE(rows.revision(), before);
}

}  // namespace
}  // namespace tallyforge
