// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_drawing.h"

#include "platform/row_texts.h"

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

/// A dialog of a list, a frame and a box.
class Furnished : public Form {
public:
    Furnished() : Form("frmFurnished", "Furnished") {
        place = {.width = 3000, .height = 2000};
        list.kind = ControlKind::List;
        list.rows = &rows;
        list.font.points = 10.0F;
        list.place = {.left = 100, .top = 100, .width = 1000, .height = 800};
        frame.kind = ControlKind::Frame;
        frame.text = "&Units";
        frame.place = {.left = 1200, .top = 100, .width = 1000, .height = 600};
        box.kind = ControlKind::Check;
        box.text = "&Copper";
        box.checked = true;
        box.place = {.left = 1200, .top = 1000, .width = 1000, .height = 200};
        for (Control* control : {&list, &frame, &box}) {
            enrol(*control);
        }
    }
    RowTexts rows{{"one\ttwo", "three", "four", "five"}};
    Control list, frame, box;
};

TEST(FormDrawing, AListShowsTheRowsThatItHasRoomFor) {
    const Furnished form;
    const auto texts = textsOf(drawnForm(form));
    ASSERT_EQ(texts.size(), 5U);
    EXPECT_EQ(texts[0].text, "one two");
    EXPECT_EQ(texts[2].text, "four");
    // Ten points are 200 twips, a line a quarter more, and the base line 0.35 below its middle.
    EXPECT_FLOAT_EQ(texts[0].at.x, 160.0F);
    EXPECT_FLOAT_EQ(texts[0].at.y, 100.0F + 125.0F + 70.0F);
    EXPECT_FLOAT_EQ(texts[1].at.y, texts[0].at.y + 250.0F);
    EXPECT_FLOAT_EQ(texts[2].at.y, texts[0].at.y + 500.0F) << "800 twips are three lines";
}

TEST(FormDrawing, FramesHaveTheirHeadingAndBoxesTheirMark) {
    Furnished form;
    const Drawing drawing = drawnForm(form);
    const auto texts = textsOf(drawing);
    EXPECT_EQ(texts[3].text, "Units");
    EXPECT_FLOAT_EQ(texts[3].at.x, 1260.0F);
    EXPECT_FLOAT_EQ(texts[3].at.y, 100.0F + 0.7F * 200.0F + 70.0F);
    EXPECT_EQ(texts[4].text, "Copper");
    std::vector<DrawnRectangle> boxes;
    for (const DrawnShape& shape : drawing.shapes) {
        if (const auto* one = std::get_if<DrawnRectangle>(&shape)) {
            boxes.push_back(*one);
        }
    }
    ASSERT_EQ(boxes.size(), 4U) << "list, frame, box and its mark";
    EXPECT_EQ(boxes[1].topLeft, (DrawnPoint{1200.0F, 100.0F}));
    EXPECT_EQ(boxes[2].topLeft, (DrawnPoint{1210.0F, 1010.0F}));
    EXPECT_EQ(boxes[2].width, 180.0F);
    EXPECT_EQ(boxes[3].topLeft, (DrawnPoint{1255.0F, 1055.0F}));
    EXPECT_EQ(boxes[3].fill.ink, Ink::Plain);
    form.box.checked = false;
    EXPECT_EQ(std::get<DrawnRectangle>(drawnForm(form).shapes.at(drawing.shapes.size() - 2)).fill.ink, Ink::None);
    form.list.rows = nullptr;
    EXPECT_EQ(textsOf(drawnForm(form)).size(), 2U);
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
