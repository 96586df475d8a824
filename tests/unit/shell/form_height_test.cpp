// SPDX-License-Identifier: GPL-3.0-or-later
//
// The form's height from the desktop's measures, in twips.
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

class FormHeight : public ::testing::Test, protected CalculatorAtHand {
protected:
    struct Desktop {
        int dotsPerInch;
        int captionHeight;
        int menuHeight;
        int height;
    };
    void startOn(int dotsPerInch, int captionHeight, int menuHeight) {
        platform.desktop.dotsPerInch = dotsPerInch;
        platform.desktop.captionHeight = captionHeight;
        platform.desktop.menuHeight = menuHeight;
        start();
    }
};

TEST_F(FormHeight, GrowsWithCaptionAndMenuAndMoreWithALargeMenu) {
    constexpr Desktop kDesktops[] = {
        {96, 19, 19, 5870},                        // 38 pixels of 15 twips over 5300
        {96, 19, 20, 5885},                        // as it is
        {96, 19, 21, 6215},                        // 19 + 42
        {96, 26, 26, 6470},                        // 26 + 52
        {96, 26, 27, 6905},                        // 26 + 81
        {120, 19, 20, 5768},                       // pixels of 12 twips
        {120, 31, 27, 6644}, {144, 20, 21, 5920},  // of 10 twips
    };
    for (const Desktop& desktop : kDesktops) {
        startOn(desktop.dotsPerInch, desktop.captionHeight, desktop.menuHeight);
        EXPECT_EQ(s().window.BasicHeight, desktop.height)
            << desktop.dotsPerInch << " " << desktop.captionHeight << " " << desktop.menuHeight;
        EXPECT_EQ(form().place.height, desktop.height);
    }
}

TEST_F(FormHeight, KeepsTheOneHeightThatIsReplacedByAnother) {
    startOn(96, 20, 20);
    EXPECT_EQ(s().window.BasicHeight, 6200) << "not 5900";
    startOn(120, 30, 20);
    EXPECT_EQ(s().window.BasicHeight, 6200) << "whatever the pixels";
}

TEST_F(FormHeight, TallAndExtendedViewsAddTheirTwips) {
    startOn(96, 20, 20);
    EXPECT_EQ(form().place.width, 5310);
    clickWith(kCtrl, form().cmdDigits);
    EXPECT_EQ(form().place.height, 6500);
    choose(form().cmdView);
    EXPECT_EQ(form().place.height, 8440);
    EXPECT_EQ(form().place.width, 7200);
    clickWith(kCtrl, form().cmdDigits);
    EXPECT_EQ(form().place.height, 8440) << "the extended view has no tall form of its own";
    choose(form().cmdView);
    EXPECT_EQ(form().place.height, 6440);
    clickWith(kCtrl, form().cmdDigits);
    EXPECT_EQ(form().place.height, 6200);
    choose(form().cmdView);
    EXPECT_EQ(form().place.height, 8200);
}

}  // namespace
}  // namespace tallyforge
