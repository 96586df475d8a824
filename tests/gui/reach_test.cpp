// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is reached without a mouse beside numbers: modifiers that wait for the next key, short cuts of
// the window, a pasted text that is read another way; and what the window remembers.
#include "gui/window_fixture.h"

#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

namespace tallyforge {
namespace {

class WindowReach : public WindowTest {
protected:
    void tab(int times) {
        for (int i = 0; i < times; ++i) {
            strike(Qt::Key_Tab, "\t");
        }
    }
    QString nameLine() { return widget(form().lblName).label(); }
    void paste(const char* text) {
        platform.clipboard = text;
        strike(Qt::Key_V, "\x16", Qt::ControlModifier);
    }
    void pasteLoosely() { strike(Qt::Key_V, "\x16", Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(WindowReach, AModifierIsHeldForTheNextKeyByTheWalkAlone) {
    type("0");
    tab(7);
    ASSERT_EQ(form().tabbedTo, &form().optKey.at(0));
    strike(Qt::Key_Space, " ");
    EXPECT_TRUE(form().optKey.at(0).checked);
    EXPECT_TRUE(form().shaShift.visible);
    EXPECT_EQ(nameLine(), "Held for the next key");
    type("5");
    EXPECT_EQ(form().txtXreg.text, "0") << "all but the walk is dropped";
    tab(3);
    strike(Qt::Key_Right);
    ASSERT_EQ(form().tabbedTo, &form().cmdFunctions.at(14));
    EXPECT_EQ(nameLine(), "e to the power of x");
    strike(Qt::Key_Space, " ");
    EXPECT_DOUBLE_EQ(engine().xNumber(), 1.0);
    EXPECT_FALSE(form().shaShift.visible);
    EXPECT_TRUE(form().optKey.back().checked);
}

TEST_F(WindowReach, EachFunctionKeyChoosesItsOption) {
    const std::pair<Qt::Key, const Control*> chosen[] = {
        {Qt::Key_F4, &form().optGrad},      {Qt::Key_F3, &form().optRad},       {Qt::Key_F2, &form().optDeg},
        {Qt::Key_F7, &form().optFix.at(2)}, {Qt::Key_F6, &form().optFix.at(1)}, {Qt::Key_F5, &form().optFix.at(0)}};
    type("1.5");
    for (const auto& [key, option] : chosen) {
        strike(key);
        EXPECT_TRUE(option->checked) << option->fullName();
    }
}

TEST_F(WindowReach, CtrlFFindsAUnit) {
    std::string opened;
    platform.inDialog = [&](Form& dialog) {
        opened = dialog.name;
        dialog.open = false;
    };
    type("30");
    strike(Qt::Key_F, "\x06", Qt::ControlModifier);
    EXPECT_EQ(opened, "frmFindUnit");
}

TEST_F(WindowReach, HomeEndAndArrowsChooseALineOfTheTape) {
    for (const char* number : {"9", "16"}) {
        type(number);
        strike(Qt::Key_Return, "\r");
    }
    type("+");
    type("2");
    strike(Qt::Key_Return, "\r");
    tab(1);
    ASSERT_EQ(form().tabbedTo, &form().lstDisplayReg);
    strike(Qt::Key_Home);
    const std::size_t first = engine().tape.selected();
    strike(Qt::Key_End);
    EXPECT_EQ(engine().tape.selected(), engine().tape.count() - 1);
    EXPECT_LT(first, engine().tape.selected());
    strike(Qt::Key_Up);
    EXPECT_EQ(widget(form().lstDisplayReg).meaning(), "+ 25.00");
    strike(Qt::Key_Return, "\r");
    EXPECT_DOUBLE_EQ(engine().xNumber(), 25.0);
    EXPECT_EQ(form().tabbedTo, nullptr);
}

TEST_F(WindowReach, ARefusedPasteSaysHowItCanBeRead) {
    const std::pair<const char*, double> texts[] = {{"1'234.5", 1234.5}, {"3.3 kHz", 3300.0}, {"12 345", 12345.0}};
    for (const auto& [text, value] : texts) {
        paste(text);
        EXPECT_EQ(form().txtXreg.text, "");
        EXPECT_TRUE(nameLine().startsWith('"' + QString(text) + "\" is no number; Shift+Ctrl+V reads "))
            << nameLine().toStdString();
        EXPECT_EQ(widget(form().txtXreg).meaning(), '"' + QString(text) + '"');
        pasteLoosely();
        strike(Qt::Key_Return, "\r");
        EXPECT_DOUBLE_EQ(engine().xNumber(), value) << text;
    }
    EXPECT_TRUE(platform.boxes.empty()) << "one reading is not asked for";
    paste("hello there");
    EXPECT_EQ(nameLine(), "\"hello there\" is no number");
}

TEST_F(WindowReach, APasteOfTwoReadingsIsAskedFor) {
    for (const auto& [answer, value] : {std::pair{Answer::Yes, 1234.0}, std::pair{Answer::No, 1.234}}) {
        platform.clipboard = "1,234";
        platform.answers = {answer};
        pasteLoosely();
        strike(Qt::Key_Return, "\r");
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes.front().title, "Paste");
        EXPECT_DOUBLE_EQ(engine().xNumber(), value);
        platform.boxes.clear();
    }
}

TEST_F(WindowReach, TheZoomIsRememberedFromOneStartToTheNext) {
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    window.remembersSize = true;
    window.zoom(2);
    const double scale = window.scale();
    EXPECT_NEAR(scale, qt::FormView::kUsualScale * 1.21, 1e-3);
    strike(Qt::Key_Escape, "\x1b");
    ASSERT_TRUE(window.close());
    TestPlatform next;
    Calculator started(next);
    started.start();
    qt::MainWindow again(started.engine().form, '.');
    again.fitsScreen = false;
    again.remembersSize = true;
    again.present();
    again.show();
    EXPECT_NEAR(again.scale(), scale, 1e-3);
    const QStringList kept = QSettings("Oakhollow", "Tallyforge").allKeys();
    EXPECT_TRUE(kept.contains("Window/Zoom")) << "in the desktop's store, not in the records";
}

TEST_F(WindowReach, TheZoomHasItsEnds) {
    for (int i = 0; i < 30; ++i) {
        window.zoom(1);
    }
    EXPECT_NEAR(window.scale(), 3.0 * qt::FormView::kUsualScale, 1e-3);
    for (int i = 0; i < 40; ++i) {
        window.zoom(-1);
    }
    EXPECT_NEAR(window.scale(), 0.75 * qt::FormView::kUsualScale, 1e-3);
    window.zoom(0);
    EXPECT_NEAR(window.scale(), qt::FormView::kUsualScale, 1e-3);
}

}  // namespace
}  // namespace tallyforge
