// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/dialog_window.h"
#include "desktops/qt/qt_platform.h"
#include "gui/window_fixture.h"
#include "support/dialog_session.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tallyforge {
namespace {

constexpr std::pair<std::string_view, Qt::Key> kKeys[] = {{"Backspace", Qt::Key_Backspace}, {"Enter", Qt::Key_Return},
                                                          {"Esc", Qt::Key_Escape},          {"Space", Qt::Key_Space},
                                                          {"Down", Qt::Key_Down},           {"Tab", Qt::Key_Tab}};

/// Plays a session's actions on the widgets of a dialog's window.
class WidgetHand {
public:
    explicit WidgetHand(qt::DialogWindow& dialogWindow) : window_(dialogWindow) {}

    void play(const Form& dialog, std::string_view action) {
        const auto blank = action.find(' ');
        const std::string_view word = action.substr(0, blank);
        const std::string_view rest = blank == action.npos ? std::string_view{} : action.substr(blank + 1);
        if (word == "type") {
            QTest::keyClicks(QApplication::focusWidget(),
                             QString::fromUtf8(rest.data(), static_cast<int>(rest.size())));
        } else if (word == "key") {
            key(rest);
        } else if (word == "close") {
            window_.close();
        } else {
            clickOn(dialog, rest, word == "dblclick");
        }
    }

private:
    static void key(std::string_view name) {
        QWidget* at = QApplication::focusWidget();
        if (name == "Shift+Tab") {
            QTest::keyClick(at, Qt::Key_Backtab, Qt::ShiftModifier);
        } else if (name.starts_with("Alt+")) {
            QTest::keyClick(at, name.back(), Qt::AltModifier);
        } else {
            for (const auto& [known, qtKey] : kKeys) {
                if (known == name) {
                    QTest::keyClick(at, qtKey);
                }
            }
        }
    }
    void clickOn(const Form& dialog, std::string_view name, bool twice) {
        for (const Control* control : dialog.controls()) {
            QWidget* widget = window_.view().widgetOf(*control);
            if (control->fullName() == name) {
                QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
            } else if (auto* list = qobject_cast<QListView*>(widget);
                       list != nullptr && name.starts_with(control->name + "(")) {
                const QRect row = list->visualRect(list->model()->index(name.at(control->name.size() + 1) - '1', 0));
                if (twice) {
                    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
                } else {
                    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
                }
            }
        }
    }

    qt::DialogWindow& window_;
};

class DialogWindowTest : public testing::Test {
protected:
    /// Opens `dialog` and runs `act` on its window, which is closed at the end.
    void within(Form& opened, const std::function<void(qt::DialogWindow&)>& act) {
        bool ran = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* modal = qobject_cast<qt::DialogWindow*>(QApplication::activeModalWidget());
            if (modal == nullptr || ran) {
                return;
            }
            ran = true;
            timer.stop();
            EXPECT_TRUE(QTest::qWaitForWindowActive(modal));
            act(*modal);
            opened.open = false;
            modal->done(0);
        });
        timer.start(1);
        platform.showDialog(opened);
        EXPECT_TRUE(ran);
    }
    template <typename Widget>
    static Widget& widgetOf(qt::DialogWindow& window, const Control& control) {
        auto* found = qobject_cast<Widget*>(window.view().widgetOf(control));
        EXPECT_NE(found, nullptr) << control.fullName();
        return *found;
    }

    qt::QtPlatform platform;
    SessionDialog dialog;
};

TEST_F(DialogWindowTest, ASessionIsHeardAsWritten) {
    // Rows must be seen to be clicked.
    dialog.place.height += 900;
    dialog.list.place.height += 900;
    for (Control* below : {&dialog.choice, &dialog.apply, &dialog.leave}) {
        below->place.top += 900;
    }
    within(dialog, [&](qt::DialogWindow& window) {
        WidgetHand hand(window);
        for (const SessionStep& step : kSession) {
            if (!step.action.empty()) {
                hand.play(dialog, step.action);
            }
            if (dialog.open) {
                EXPECT_EQ(dialog.heard(), step.heard) << step.action;
            }
        }
        EXPECT_FALSE(dialog.open);
    });
    EXPECT_EQ(dialog.heard(), kSession.back().heard);
}

TEST_F(DialogWindowTest, WhatAHandlerChangesIsShown) {
    dialog.apply.click = [&] {
        dialog.number.text = "42";
        dialog.locked.enabled = true;
        dialog.box.checked = true;
        dialog.apply.text = "&Done";
        dialog.list.visible = false;
        dialog.choiceRows.select(1);
    };
    within(dialog, [&](qt::DialogWindow& window) {
        QTest::mouseClick(window.view().widgetOf(dialog.apply), Qt::LeftButton);
        EXPECT_EQ(widgetOf<QLineEdit>(window, dialog.number).text(), "42");
        EXPECT_TRUE(widgetOf<QLineEdit>(window, dialog.locked).isEnabled());
        EXPECT_TRUE(widgetOf<QCheckBox>(window, dialog.box).isChecked());
        EXPECT_EQ(widgetOf<QPushButton>(window, dialog.apply).text(), "&Done");
        EXPECT_FALSE(window.view().widgetOf(dialog.list)->isVisible());
        EXPECT_EQ(widgetOf<QComboBox>(window, dialog.choice).currentText(), "two");
        EXPECT_TRUE(widgetOf<QRadioButton>(window, dialog.size[0]).isChecked());
    });
}

TEST_F(DialogWindowTest, APastedTextGoesThroughTheFieldsFilter) {
    QGuiApplication::clipboard()->setText("1,234 m");
    within(dialog, [&](qt::DialogWindow& window) {
        auto& edit = widgetOf<QLineEdit>(window, dialog.number);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(dialog.number.text, "1234");
        EXPECT_EQ(edit.text(), "1234");
        edit.selectAll();
        edit.paste();
        EXPECT_EQ(edit.text(), "1234");
    });
}

TEST_F(DialogWindowTest, TypingReplacesWhatIsSelected) {
    within(dialog, [&](qt::DialogWindow& window) {
        auto& edit = widgetOf<QLineEdit>(window, dialog.number);
        QTest::keyClicks(&edit, "12345");
        edit.setSelection(1, 3);
        QTest::keyClick(&edit, Qt::Key_9);
        EXPECT_EQ(dialog.number.text, "195");
        EXPECT_EQ(edit.cursorPosition(), 2);
        QTest::keyClick(&edit, Qt::Key_Home);
        QTest::keyClick(&edit, Qt::Key_Delete);
        EXPECT_EQ(edit.text(), "95");
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Backspace);
        EXPECT_EQ(dialog.number.text, "");
    });
}

TEST_F(DialogWindowTest, EachControlHasANameAndItsRoleForAListener) {
    within(dialog, [&](qt::DialogWindow& window) {
        const auto role = [&](const Control& control) {
            QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(window.view().widgetOf(control));
            EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty()) << control.fullName();
            return heard->role();
        };
        EXPECT_EQ(role(dialog.number), QAccessible::EditableText);
        EXPECT_EQ(role(dialog.size[1]), QAccessible::RadioButton);
        EXPECT_EQ(role(dialog.box), QAccessible::CheckBox);
        EXPECT_EQ(role(dialog.list), QAccessible::List);
        EXPECT_EQ(role(dialog.choice), QAccessible::ComboBox);
        EXPECT_EQ(role(dialog.apply), QAccessible::Button);
    });
}

TEST_F(DialogWindowTest, AChoiceIsMadeFromItsList) {
    within(dialog, [&](qt::DialogWindow& window) {
        (void)dialog.heard();
        auto& box = widgetOf<QComboBox>(window, dialog.choice);
        box.setCurrentIndex(1);
        emit box.activated(1);
        EXPECT_EQ(dialog.heard(), "-txtNumber +cboRows choice:two");
    });
}

TEST_F(DialogWindowTest, ALargeDialogIsDrawnSmallerSoThatItStandsOnTheScreen) {
    dialog.place.width = 30000;
    dialog.place.height = 20000;
    within(dialog, [&](qt::DialogWindow& window) {
        const QSize room = window.screen()->availableSize();
        EXPECT_LE(window.width(), room.width());
        EXPECT_LE(window.height(), room.height());
        EXPECT_GT(window.height(), room.height() / 2);
    });
}

TEST_F(DialogWindowTest, ADialogOpensOverADialogAndABoxOverBoth) {
    SessionDialog upper;
    bool opened = false;
    dialog.apply.click = [&] {
        QTimer::singleShot(0, [&] {
            auto* modal = qobject_cast<qt::DialogWindow*>(QApplication::activeModalWidget());
            opened = modal != nullptr && modal->windowTitle() == "Session" && modal->parentWidget() != nullptr;
            upper.open = false;
            if (modal != nullptr) {
                modal->done(0);
            }
        });
        platform.showDialog(upper);
    };
    within(dialog, [&](qt::DialogWindow& window) {
        QTest::mouseClick(window.view().widgetOf(dialog.apply), Qt::LeftButton);
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace tallyforge
