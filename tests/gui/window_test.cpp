// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

#include "desktops/qt/desktop_style.h"

#include <QMenu>
#include <QScreen>

namespace tallyforge {
namespace {

class Window : public WindowTest {
protected:
    /// Lets the keypad menu take over the present state, as opening it does.
    void openMenus() {
        for (const QAction* action : window.menuBar()->actions()) {
            emit action->menu()->aboutToShow();
        }
    }
};

TEST_F(Window, HasTheMenusOfTheForm) {
    const auto bar = window.menuBar()->actions();
    ASSERT_EQ(bar.size(), 3);
    EXPECT_EQ(bar.at(0)->text(), "&File");
    EXPECT_EQ(bar.at(1)->text(), "&Keypad");
    EXPECT_EQ(bar.at(2)->text(), "&Export");
    for (const Control* control : form().controls()) {
        if (control->kind == ControlKind::MenuEntry || control->kind == ControlKind::Menu) {
            EXPECT_NE(entry(QString::fromStdString(control->text)), nullptr) << control->name;
        }
    }
}

TEST_F(Window, ChangesTheKeypadByTheMenu) {
    entry("&Engr'g")->trigger();
    EXPECT_EQ(engine().s.modes.ActiveKeypad, Keypad::Engineering);
    EXPECT_TRUE(form().mnuEngNormal.checked);
    openMenus();
    EXPECT_TRUE(entry("&Engr'g")->isChecked());
    EXPECT_FALSE(entry("&Std")->isChecked());
}

TEST_F(Window, AnEntryThatDoesNothingYetIsGrey) {
    openMenus();
    for (const Control* control : form().controls()) {
        if (control->kind == ControlKind::MenuEntry) {
            EXPECT_EQ(entry(QString::fromStdString(control->text))->isEnabled(),
                      control->enabled && static_cast<bool>(control->click))
                << control->name;
        }
    }
}

TEST_F(Window, GrowsByTheRegistersInTheExtendedViewAndShrinksBack) {
    const QSize plain = window.size();
    EXPECT_FALSE(widget(form().txtReg_m.front()).isVisible());
    clickOn(form().cmdView);
    EXPECT_EQ(form().place.width, MainForm::kExtendedWidth);
    EXPECT_NEAR(window.width(), MainForm::kExtendedWidth * qt::FormView::kUsualScale, 1.0);
    EXPECT_GT(window.height(), plain.height());
    EXPECT_TRUE(widget(form().txtReg_m.front()).isVisible());
    EXPECT_TRUE(widget(form().txtReg_m.at(11)).isVisible());
    EXPECT_FALSE(widget(form().txtReg_m.at(12)).isVisible());
    clickOn(form().cmdView);
    EXPECT_EQ(window.size(), plain);
    EXPECT_FALSE(widget(form().txtReg_m.front()).isVisible());
}

TEST_F(Window, ShowsTheSmallFieldsBesideTheEntryLine) {
    clickOn(form().cmdView, Qt::AltModifier);
    EXPECT_TRUE(widget(form().txty_Reg).isVisible());
    EXPECT_FALSE(widget(form().txtLastx).isVisible());
    clickOn(form().cmdView, Qt::ControlModifier);
    EXPECT_TRUE(widget(form().txtLastx).isVisible());
    clickOn(form().cmdView, Qt::AltModifier);
    EXPECT_FALSE(widget(form().txty_Reg).isVisible());
}

TEST_F(Window, GrowsTall) {
    const int plain = window.height();
    clickOn(form().cmdDigits, Qt::ControlModifier);
    EXPECT_TRUE(engine().s.window.TallForm);
    EXPECT_NEAR(window.height() - plain, MainForm::kTallGrowth * qt::FormView::kUsualScale, 1.0);
}

TEST_F(Window, KeepsItsEnlargementWhenTheViewChanges) {
    enlarge(1.5);
    const double scale = view().scale();
    clickOn(form().cmdView);
    QApplication::processEvents();
    EXPECT_NEAR(view().scale(), scale, 0.002);
}

TEST_F(Window, AModifierThatStaysDownCountsForTheNextClickToo) {
    press(Qt::Key_Shift, {}, Qt::ShiftModifier);
    QTest::mouseClick(&widget(form().cmdFunctions.at(14)), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(form().cmdFunctions.at(14).text, "e^x");
    EXPECT_TRUE(form().shaShift.visible);
    release(Qt::Key_Shift);
    EXPECT_EQ(form().cmdFunctions.at(14).text, "ln");
    EXPECT_FALSE(form().shaShift.visible);
}

TEST_F(Window, GrowsNoLargerThanTheScreen) {
    window.fitsScreen = true;
    enlarge(1.4);
    clickOn(form().cmdView);
    QApplication::processEvents();
    const QSize screen = window.screen()->availableSize();
    EXPECT_LE(window.frameGeometry().width(), screen.width());
    EXPECT_LE(window.frameGeometry().height(), screen.height());
    EXPECT_LE(view().toPixels(form().txtReg_m.at(11).place).bottom(), view().height());
}

TEST_F(Window, StandsInTheMiddleOfAWindowOfAnotherShape) {
    for (const int wider : {200, 900}) {
        window.resize(window.width() + wider, window.height());
        QApplication::processEvents();
        const QRect tape = view().toPixels(form().lstDisplayReg.place);
        const QRect stack = view().toPixels(form().lstStack.place);
        const QRect enter = view().toPixels(form().cmdEnter.place);
        const QRect bank = view().toPixels(form().cmdFunctions.at(15).place);
        EXPECT_NEAR(tape.left(), view().width() - stack.right(), 3);
        EXPECT_NEAR(bank.left(), view().width() - enter.right(), 3);
    }
}

TEST_F(Window, StaysOnTopWhenItIsAskedTo) {
    entry("Always on &Top")->trigger();
    EXPECT_TRUE(form().alwaysOnTop);
    EXPECT_TRUE((window.windowFlags() & Qt::WindowStaysOnTopHint) != 0);
    EXPECT_TRUE(window.isVisible());
    entry("Always on &Top")->trigger();
    EXPECT_FALSE((window.windowFlags() & Qt::WindowStaysOnTopHint) != 0);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Window, EndsByTheMenu) {
    entry("E&xit")->trigger();
    EXPECT_FALSE(form().open);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Window, EndsByItsCloseButton) {
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(form().open);
}

// A form that is fitted to one size before it is shown and to another one then makes its fonts twice.
TEST_F(Window, HasItsSizeBeforeItIsShown) {
    qt::MainWindow another(form(), '.');
    another.fitsScreen = false;
    another.present();
    const QSize before = another.view().size();
    EXPECT_EQ(another.scale(), qt::FormView::kUsualScale);
    another.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&another));
    EXPECT_EQ(another.view().size(), before);
    EXPECT_EQ(another.scale(), qt::FormView::kUsualScale);
}

TEST_F(Window, GetsItsIconOnceItIsPainted) {
    QTest::qWait(1);
    EXPECT_FALSE(window.windowIcon().isNull());
    EXPECT_EQ(window.windowIcon().availableSizes().size(), 7);
}

TEST(DesktopStyle, DrawsThePictureOfTheMenuBarsOwnButton) {
    const qt::DesktopStyle style;
    const QIcon icon = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    const QImage picture = icon.pixmap(16, 16).toImage();
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink += picture.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
    }
    EXPECT_GT(ink, 10);
    EXPECT_LT(ink, 100);
    EXPECT_FALSE(style.standardIcon(QStyle::SP_MessageBoxWarning, nullptr, nullptr).isNull());
}

TEST_F(Window, TellsTheFormWhereItStands) {
    window.move(120, 80);
    QApplication::processEvents();
    EXPECT_EQ(form().place.left, 120 * 15);
    EXPECT_EQ(form().place.top, 80 * 15);
}

}  // namespace
}  // namespace tallyforge
