// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tallyforge {
namespace {

class Sheet : public Form {
public:
    Sheet() : Form("frmSheet", "Sheet") {
        place = {.width = 4000, .height = 2000};
        put(label, ControlKind::Label, "&Volts", {.left = 100, .top = 100, .width = 900, .height = 240});
        put(field, ControlKind::Field, "12.5", {.left = 1000, .top = 100, .width = 1000, .height = 240});
        put(key, ControlKind::Key, "&Exit", {.left = 100, .top = 1500, .width = 1000, .height = 300});
        put(option, ControlKind::Option, "&mA", {.left = 100, .top = 600, .width = 900, .height = 240});
        put(picture, ControlKind::Picture, "", {.left = 2000, .top = 0, .width = 2000, .height = 1000});
        field.rightAligned = true;
        option.checked = true;
        picture.drawing = {.width = 100.0F,
                           .height = 100.0F,
                           .described = {},
                           .shapes = {DrawnLine{.from = {0.0F, 0.0F}, .to = {100.0F, 100.0F}, .width = 2.0F}}};
    }
    Control label, field, key, option, picture;

private:
    void put(Control& control, ControlKind kind, const char* text, Place at) {
        control.kind = kind;
        control.text = text;
        control.place = at;
        enrol(control);
    }
};

std::vector<DrawnText> textsOf(const Drawing& drawing) {
    std::vector<DrawnText> texts;
    for (const DrawnShape& shape : drawing.shapes) {
        if (const auto* text = std::get_if<DrawnText>(&shape)) {
            texts.push_back(*text);
        }
    }
    return texts;
}

TEST(FormDrawing, ShowsWhatCanBeReadAndLeavesTheKeysOut) {
    const Sheet sheet;
    const Drawing drawing = drawnForm(sheet);
    EXPECT_EQ(drawing.width, 4000.0F);
    EXPECT_EQ(drawing.height, 2000.0F);
    const auto texts = textsOf(drawing);
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].text, "Volts");
    EXPECT_EQ(texts[1].text, "12.5");
    EXPECT_EQ(texts[1].align, TextAlign::Right);
    EXPECT_LT(texts[1].at.x, 2000.0F);
    EXPECT_EQ(texts[2].text, "mA");
}

TEST(FormDrawing, APictureKeepsItsProportionInItsPlace) {
    const Sheet sheet;
    const Drawing drawing = drawnForm(sheet);
    const auto line = std::find_if(drawing.shapes.begin(), drawing.shapes.end(),
                                   [](const DrawnShape& shape) { return std::holds_alternative<DrawnLine>(shape); });
    ASSERT_NE(line, drawing.shapes.end());
    EXPECT_EQ(std::get<DrawnLine>(*line),
              (DrawnLine{.from = {2500.0F, 0.0F}, .to = {3500.0F, 1000.0F}, .width = 20.0F}));
}

TEST(FormDrawing, WhatIsHiddenIsNotDrawn) {
    Sheet sheet;
    sheet.label.visible = false;
    sheet.picture.visible = false;
    EXPECT_EQ(textsOf(drawnForm(sheet)).size(), 2U);
}

TEST(FormDrawing, ALongLabelIsBrokenAtBlanksAndKeepsItsWords) {
    Sheet sheet;
    sheet.label.text = "All that is known goes into the fields and the rest is found";
    sheet.label.place = {.left = 0, .top = 0, .width = 1600, .height = 1600};
    std::string all;
    const auto texts = textsOf(drawnForm(sheet));
    for (std::size_t line = 0; line + 2 < texts.size(); ++line) {
        all += (line == 0 ? "" : " ") + texts[line].text;
        EXPECT_LE(texts[line].text.size(), 15U);
    }
    EXPECT_EQ(all, sheet.label.text);
    EXPECT_GT(texts.size(), 5U);
}

}  // namespace
}  // namespace tallyforge
