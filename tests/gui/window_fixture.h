// SPDX-License-Identifier: GPL-3.0-or-later
//
// A whole calculator in its window, off screen, with a platform that answers by itself. Keys go to
// the widget that has the keyboard, the mouse to a control's own widget.
#pragma once

#include "desktops/qt/control_widget.h"
#include "desktops/qt/form_view.h"
#include "desktops/qt/main_window.h"
#include "shell/calculator.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenuBar>
#include <QTest>

#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

/// A desktop on which the calculator was never started before.
class FreshDesktop : public TestPlatform {
public:
    [[nodiscard]] std::filesystem::path dataFolder() const override { return folder / "data"; }
};

class WindowTest : public testing::Test {
protected:
    WindowTest() : calculator((platform.decimal = '.', platform)) {
        calculator.start();
        // The screen of a test is small.
        window.fitsScreen = false;
        window.present();
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        platform.boxes.clear();
    }

    Engine& engine() { return calculator.engine(); }
    MainForm& form() { return calculator.engine().form; }
    qt::FormView& view() { return window.view(); }
    qt::ControlWidget& widget(const Control& control) {
        qt::ControlWidget* found = view().widgetOf(control);
        EXPECT_NE(found, nullptr) << control.fullName();
        return *found;
    }

    /// Types characters as a keyboard without Shift would.
    void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    /// A key goes down, or up, with what it types and the modifiers that were held before.
    void press(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    void release(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    /// Shift goes down and stays, long enough to be no character's own.
    void holdShift() {
        press(Qt::Key_Shift);
        QTest::qWait(160);
    }
    /// One key down and up as a layout would have it; the modifiers go down before and up after it.
    void strike(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, text, modifiers);
    }
    /// A click under modifiers, which come up after it.
    void clickOn(const Control& control, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(&widget(control), Qt::LeftButton, modifiers);
        for (const auto& [modifier, key] : kModifierKeys) {
            if ((modifiers & modifier) != 0 && QApplication::focusWidget() != nullptr) {
                modifiers &= ~Qt::KeyboardModifiers(modifier);
                release(key, {}, modifiers);
            }
        }
    }
    static constexpr std::pair<Qt::KeyboardModifier, Qt::Key> kModifierKeys[] = {
        {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};
    /// Double-clicks a row that the list shows, 0 for its topmost.
    void doubleClickRow(const Control& list, int shownRow) {
        qt::ControlWidget& target = widget(list);
        const double rowHeight = qt::listMetrics(list, target.height(), view().scale()).rowHeight;
        const QPoint place(target.width() / 3, static_cast<int>((shownRow + 0.5) * rowHeight));
        QTest::mouseDClick(&target, Qt::LeftButton, Qt::NoModifier, place);
    }
    /// The action of a menu entry, by its caption with the access mark.
    QAction* entry(const QString& caption) {
        for (QAction* action : window.findChildren<QAction*>()) {
            // An entry that cannot be chosen has no letter.
            if (action->text().section('\t', 0, 0).remove('&') == QString(caption).remove('&')) {
                return action;
            }
        }
        return nullptr;
    }
    QImage picture() { return window.grab().toImage(); }

    /// Enlarges the window to `times` its usual size.
    void enlarge(double times) {
        const QSize contents = view().sizeAt(qt::FormView::kUsualScale * times);
        window.resize(contents.width(), contents.height() + window.menuBar()->height());
        QApplication::processEvents();
    }

    FreshDesktop platform;
    Calculator calculator;
    qt::MainWindow window{calculator.engine().form, '.'};
};

}  // namespace tallyforge
