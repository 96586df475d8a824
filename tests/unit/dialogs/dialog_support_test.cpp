// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/dialog_support.h"

#include "platform/key_codes.h"
#include "platform/text.h"
#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

constexpr DesktopMetrics kScreen{.screenWidth = 20000, .screenHeight = 12000};

void expectPlace(const Place& form, int width, int height, int top, int left) {
    const DialogPlace place = PlaceDialog(form, kScreen, width, height);
    EXPECT_EQ(place.DialogTop, top);
    EXPECT_EQ(place.DialogLeft, left);
}

TEST(DialogPlaces, BesideTheMiddleOfTheFormAndOnTheScreen) {
    const Place form{.left = 1000, .top = 500, .width = 5310, .height = 6000};
    expectPlace(form, 4000, 3000, 3500, 1000);
    const Place low{.left = 1000, .top = 5300, .width = 5310, .height = 6000};
    expectPlace(low, 4000, 3000, 5300, 1000);
    expectPlace(low, 4000, 3001, 12000 - 800 - 3001, 1000);
    const Place right{.left = 16000, .top = 500, .width = 5310, .height = 6000};
    expectPlace(right, 4000, 3000, 3500, 16000);
    expectPlace(right, 4001, 3000, 3500, 15999);
}

TEST(DialogKeys, DigitsAndOneDecimalCharacterGoIn) {
    DialogKeyFilter keys{','};
    std::string text = "1";
    EXPECT_EQ(keys.filter('7', text), "55");
    EXPECT_EQ(keys.filter(',', text), "44");
    text = "1,";
    EXPECT_EQ(keys.filter(',', text), "0");
    EXPECT_EQ(keys.filter('.', text), "0");
    EXPECT_EQ(keys.filter('x', text), "0");
}

TEST(DialogKeys, AnExponentGoesInOnceWithOneSign) {
    DialogKeyFilter keys{'.'};
    std::string text;
    EXPECT_EQ(keys.filter('-', text), "0");
    EXPECT_EQ(keys.filter('\\', text), "chs");
    EXPECT_EQ(keys.filter('E', text), "0");
    EXPECT_EQ(text, "1e");
    EXPECT_EQ(keys.filter('e', text), "0");
    EXPECT_EQ(keys.filter('\\', text), "45");
    EXPECT_EQ(keys.filter('-', text), "0");
    text = "1e-";
    EXPECT_EQ(keys.filter(kKeyBackspace, text), "8");
    text = "1e";
    EXPECT_EQ(keys.filter('-', text), "45");
    EXPECT_EQ(keys.filter(kKeyBackspace, text), "8");
    text = "1";
    EXPECT_EQ(keys.filter('e', text), "101") << "the exponent was taken back";
}

TEST(DialogKeys, EscapeGivesTheEntryUp) {
    DialogKeyFilter keys{'.'};
    std::string text = "2";
    EXPECT_EQ(keys.filter('e', text), "101");
    EXPECT_EQ(keys.filter(kKeyEscape, text), "esc");
    EXPECT_FALSE(keys.EexActive);
    EXPECT_FALSE(keys.exponentSign);
}

TEST(DialogTexts, NameTheAngleMode) {
    EXPECT_EQ(AngleLabel(AngleMode::Degrees, true), "Deg");
    EXPECT_EQ(AngleLabel(AngleMode::Radians, true), "rad");
    EXPECT_EQ(AngleLabel(AngleMode::Grads, true), "Grad");
    EXPECT_EQ(AngleLabel(AngleMode::Degrees, false), "(ø)"_t);
    EXPECT_EQ(AngleLabel(AngleMode::Radians, false), "(rad)");
    EXPECT_EQ(AngleLabel(AngleMode::Grads, false), "(Gr)");
}

TEST(DialogTexts, LabelsReadAlikeOnPaper) {
    EXPECT_EQ(MapLabelToPrint("Xý"_t), "X²"_t);
    EXPECT_EQ(MapLabelToPrint("X²"_t), "Xý"_t);
    EXPECT_EQ(MapLabelToPrint("æF ø"_t), "µF °"_t);
    EXPECT_EQ(MapLabelToPrint("Å"_t), "A");
    EXPECT_EQ(MapLabelToPrint("in³"_t), "in³"_t);
    EXPECT_EQ(MapLabelToPrint("in^3"), "in³"_t);
    EXPECT_EQ(MapLabelToPrint("in³/s"_t), "in^3/s");
}

class DialogMessages : public EngineTest {};

TEST_F(DialogMessages, TellThatAFieldIsFull) {
    CharLimitMessage(calc, "123456789012345");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Character Limit Reached!");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Info);
    EXPECT_EQ(platform.boxes[0].text,
              "\nYou've exceeded 15 characters! The \npreviously entered number will be used.\n"
              "123456789012345. Or press Esc or\n Click Clear to re-enter.");
}

}  // namespace
}  // namespace tallyforge
