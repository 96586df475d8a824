// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the window shows beside numbers: what it dropped, what rests, what a wider window is for, and
// how soon a dialog stands.
#include "gui/window_fixture.h"
#include "support/all_dialogs.h"

#include "desktops/qt/dialog_view.h"

#include <QElapsedTimer>

#include <algorithm>
#include <array>

namespace tallyforge {
namespace {

class WindowFace : public WindowTest {
protected:
    QString nameLine() { return widget(form().lblName).label(); }
    /// Pixels of one colour that a control's widget shows.
    int count(const Control& control, const QColor& colour) {
        const QImage image = widget(control).grab().toImage();
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                found += image.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return found;
    }
    qt::Theme theme() { return qt::Theme::forPalette(window.palette()); }
};

TEST_F(WindowFace, ADroppedCharacterFlashesTheEdgeAndIsNamed) {
    type("1.5");
    EXPECT_EQ(nameLine(), "Standard");
    EXPECT_EQ(count(form().txtXreg, theme().lamp), 0);
    type(".");
    EXPECT_EQ(form().txtXreg.text, "1.5");
    EXPECT_EQ(nameLine(), "There is a \".\" already");
    EXPECT_GT(count(form().txtXreg, theme().lamp), 100);
    QTest::qWait(220);
    EXPECT_EQ(count(form().txtXreg, theme().lamp), 0);
    type("k");
    EXPECT_EQ(nameLine(), "\"k\" has no meaning here");
    type(",");
    EXPECT_EQ(nameLine(), "The decimal character is \".\"");
    type("2");
    EXPECT_EQ(nameLine(), "Standard");
    EXPECT_EQ(form().txtXreg.text, "1.52");
    clickOn(form().cmdNumPad.at(10));
    EXPECT_EQ(nameLine(), "There is a \".\" already");
    clickOn(form().cmdNumPad.at(3));
    EXPECT_EQ(nameLine(), "Standard");
    type("3333333333333333333333");
    EXPECT_EQ(nameLine(), "The entry line is full");
}

TEST_F(WindowFace, WhatWasDroppedIsNamedInAModeAndUnderThePointer) {
    strike(Qt::Key_F12);
    ASSERT_TRUE(engine().s.modes.MemoryArrayMode);
    type("1.5");
    EXPECT_EQ(nameLine(), "Memory Array");
    type(".");
    EXPECT_EQ(nameLine(), "Memory Array: There is a \".\" already");
    EXPECT_EQ(form().lblName.text, "Memory Array");
    EXPECT_GT(count(form().txtXreg, theme().lamp), 100);
    type("2");
    EXPECT_EQ(nameLine(), "Memory Array");
    strike(Qt::Key_F12);
    view().pointAt(&form().cmdFunctions.at(1));
    const QString words = nameLine();
    EXPECT_NE(words, "Standard");
    type("1.5.");
    EXPECT_EQ(nameLine(), "There is a \".\" already");
    type("2");
    EXPECT_EQ(nameLine(), words);
}

TEST_F(WindowFace, AListenerHearsWhatWasDropped) {
    type("1");
    std::vector<QString> heard;
    view().announced = [&](const QString& text) { heard.push_back(text); };
    type("..");
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard.front(), "There is a \".\" already");
    type("k");
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(WindowFace, WhatAKeyUsesIsNeverTakenForDropped) {
    for (const char* number : {"9", "4", "2"}) {
        type(number);
        strike(Qt::Key_Return, "\r");
    }
    for (const char* used : {"x", "+", "\\", "p", "*", "<", "1e", "5", "m"}) {
        type(used);
        EXPECT_EQ(form().txtXreg.refusals, 0) << used;
    }
}

TEST_F(WindowFace, KeysBesideTheBankThatRestUnderAMaskArePaintedDim) {
    typedef std::vector<std::string> Names;
    const auto idle = [this] {
        Names names;
        for (const Control* control : form().controls()) {
            if (control->idle && control->idle()) {
                names.push_back(control->fullName());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    };
    EXPECT_EQ(idle(), Names{});
    const int ink = count(form().cmdEex, theme().keyPlain);
    EXPECT_GT(ink, 0);
    press(Qt::Key_Control);
    EXPECT_EQ(idle(), (Names{"cmdChs", "cmdDown", "cmdEex", "cmdF11", "cmdF12", "cmdLastx", "cmdXchgY"}));
    EXPECT_EQ(count(form().cmdEex, theme().keyPlain), 0);
    EXPECT_GT(count(form().cmdMath.at(0), theme().keyOperator), 0);
    release(Qt::Key_Control);
    EXPECT_EQ(idle(), Names{});
    EXPECT_EQ(count(form().cmdEex, theme().keyPlain), ink);
    clickOn(form().optKey.at(6));
    const Names all = idle();
    EXPECT_EQ(std::count(all.begin(), all.end(), "cmdReset"), 0) << "all three undo the last reset";
    EXPECT_EQ(std::count(all.begin(), all.end(), "cmdMath(0)"), 1);
}

// Each key that is painted dim under a mask is pressed, and leaves everything as it was.
TEST_F(WindowFace, AKeyThatRestsDoesNothing) {
    for (const char* number : {"9", "4"}) {
        type(number);
        strike(Qt::Key_Return, "\r");
    }
    platform.inputs.clear();
    for (int mask = 1; mask < 8; ++mask) {
        for (Control* key : form().controls()) {
            click(form(), form().optKey.at(static_cast<std::size_t>(mask - 1)));
            if (!key->idle || !key->idle()) {
                click(form(), form().optKey.at(static_cast<std::size_t>(mask - 1)));
                continue;
            }
            click(form(), *key);
            EXPECT_EQ(engine().s.stack.depth(), 2) << key->fullName() << " " << mask;
            EXPECT_EQ(engine().xNumber(), 4.0) << key->fullName() << " " << mask;
            EXPECT_EQ(form().place.width, MainForm::kPlainWidth) << key->fullName() << " " << mask;
            EXPECT_EQ(form().txtXreg.text, "") << key->fullName() << " " << mask;
            EXPECT_FALSE(engine().s.modes.ProgramMode || engine().s.modes.MemoryArrayMode) << key->fullName();
            EXPECT_TRUE(platform.boxes.empty()) << key->fullName() << " " << mask << platform.boxes.front().text;
            EXPECT_TRUE(platform.inputs.empty()) << key->fullName() << " " << mask;
        }
    }
}

TEST_F(WindowFace, MenusShowShortCutsThatOnlyTheFormHears) {
    QAction* copy = entry("Copy x-reg to Clipboard");
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(copy->text().endsWith("\tCtrl+C")) << copy->text().toStdString();
    EXPECT_TRUE(copy->shortcut().isEmpty());
    type("12");
    strike(Qt::Key_Return, "\r");
    strike(Qt::Key_C, "\x03", Qt::ControlModifier);
    EXPECT_EQ(platform.clipboard, "12");
    strike(Qt::Key_V, "\x16", Qt::ControlModifier);
    EXPECT_EQ(engine().s.stack.depth(), 2) << "pasted once";
}

TEST_F(WindowFace, AWiderWindowGivesMoreOfStackAndRegisters) {
    const auto inside = [this] {
        for (const Control* control : form().controls()) {
            const QRect place = view().toPixels(control->place);
            const bool drawn = control->visible && view().widgetOf(*control) != nullptr;
            EXPECT_TRUE(!drawn || view().rect().contains(place)) << control->fullName();
        }
    };
    const int stack = widget(form().lstStack).width();
    const int key = widget(form().cmdEnter).width();
    window.resize(window.width() + 240, window.height());
    QApplication::processEvents();
    EXPECT_NEAR(widget(form().lstStack).width(), stack + 240, 2);
    EXPECT_EQ(widget(form().txtXreg).geometry().right(), widget(form().lstStack).geometry().right());
    EXPECT_EQ(widget(form().cmdEnter).width(), key);
    inside();
    window.resize(window.width() - 240, window.height());
    QApplication::processEvents();
    EXPECT_EQ(widget(form().lstStack).width(), stack);
    strike(Qt::Key_F8);
    const int field = widget(form().txtReg_m.at(0)).width();
    window.resize(window.width() + 240, window.height());
    QApplication::processEvents();
    EXPECT_NEAR(widget(form().txtReg_m.at(0)).width(), field + 120, 2);
    EXPECT_NEAR(widget(form().lstStack).width(), stack + 120, 2);
    inside();
}

TEST_F(WindowFace, NothingOverlapsAtAnyShapeOfTheWindow) {
    for (const bool extended : {false, true}) {
        for (const QSize size :
             {QSize(531, 591), QSize(1200, 600), QSize(531, 1100), QSize(900, 900), QSize(1600, 800)}) {
            window.resize(size);
            QApplication::processEvents();
            std::vector<const Control*> drawn;
            for (const Control* control : form().controls()) {
                const bool boxed = control->kind == ControlKind::Key || control->kind == ControlKind::Field ||
                                   control->kind == ControlKind::List || control->kind == ControlKind::Option;
                if (boxed && control->visible) {
                    drawn.push_back(control);
                }
            }
            for (const Control* one : drawn) {
                for (const Control* other : drawn) {
                    EXPECT_FALSE(one < other && view().toPixels(one->place).intersects(view().toPixels(other->place)))
                        << one->fullName() << " " << other->fullName() << " at " << size.width() << "x" << size.height()
                        << (extended ? " extended" : "");
                }
            }
        }
        strike(Qt::Key_F8);
    }
}

TEST_F(WindowFace, CaptionsOfTheBankStandInThreeSizesAtMost) {
    std::set<int> sizes;
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            for (std::uint8_t mask = 0; mask < 8; ++mask) {
                const KeyCaption& caption = mask == 0 ? row.caption : row.under.at(mask);
                Control key;
                key.text = caption.text;
                key.font = {.face = caption.face, .points = caption.points};
                const qt::FittedCaption fitted = qt::fitCaption(key, QSizeF(32.8, 32.8), 0.1);
                if (!caption.text.empty()) {
                    sizes.insert(fitted.font.pixelSize());
                    EXPECT_GE(fitted.font.pixelSize(), 11) << fitted.lines.join('|').toStdString();
                }
            }
        }
    }
    EXPECT_LE(sizes.size(), 3U);
    EXPECT_GE(*sizes.begin(), 10) << "none is too small to read";
}

// The median over all dialogs, because a machine that does other things holds one of them up.
TEST(DialogSpeed, ADialogIsPaintedSoonAfterItsKey) {
    std::vector<qint64> times;
    openAllDialogs([&](Form& dialog) {
        QElapsedTimer clock;
        clock.start();
        qt::DialogView view(dialog, '.', qt::FormView::kUsualScale, nullptr);
        view.sync();
        view.show();
        view.repaint();
        times.push_back(clock.elapsed());
    });
    ASSERT_GT(times.size(), 40U);
    std::sort(times.begin(), times.end());
    EXPECT_LT(times.at(times.size() / 2), 50) << "milliseconds";
    RecordProperty("median_ms", static_cast<int>(times.at(times.size() / 2)));
    RecordProperty("slowest_ms", static_cast<int>(times.back()));
    std::cout << "dialogs: " << times.size() << ", median " << times.at(times.size() / 2) << " ms, slowest "
              << times.back() << " ms\n";
}

}  // namespace
}  // namespace tallyforge
