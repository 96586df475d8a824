// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

#include <QAccessible>

#include <vector>

namespace tallyforge {
namespace {

class WindowAccessibility : public WindowTest {
protected:
    QAccessibleInterface& spoken(const Control& control) {
        QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&widget(control));
        EXPECT_NE(found, nullptr);
        return *found;
    }
    QString name(const Control& control) { return spoken(control).text(QAccessible::Name); }
    QString value(const Control& control) { return spoken(control).text(QAccessible::Value); }
};

TEST_F(WindowAccessibility, EveryControlHasAName) {
    for (const Control* control : form().controls()) {
        if (view().widgetOf(*control) != nullptr) {
            EXPECT_FALSE(name(*control).trimmed().isEmpty()) << control->fullName();
            EXPECT_FALSE(name(*control).contains('&')) << control->fullName();
        }
    }
}

TEST_F(WindowAccessibility, EveryWidgetInTheWindowHasAName) {
    std::vector<QAccessibleInterface*> open{QAccessible::queryAccessibleInterface(&view())};
    int met = 0;
    while (!open.empty()) {
        QAccessibleInterface* next = open.back();
        open.pop_back();
        ASSERT_NE(next, nullptr);
        ++met;
        const bool part = next->object() == nullptr;  // an arrow of a scroll bar
        EXPECT_TRUE(part || !next->text(QAccessible::Name).isEmpty()) << next->object()->metaObject()->className();
        for (int i = 0; i < next->childCount(); ++i) {
            open.push_back(next->child(i));
        }
    }
    EXPECT_GT(met, 80);
}

TEST_F(WindowAccessibility, SaysWhatAKeyMeansUnderAModifier) {
    const QString plain = name(form().cmdFunctions.at(14));
    EXPECT_EQ(plain, "Natural logarithm");
    holdShift();
    EXPECT_EQ(name(form().cmdFunctions.at(14)), "e to the power of x");
    release(Qt::Key_Shift, {}, Qt::ShiftModifier);
    EXPECT_EQ(name(form().cmdFunctions.at(14)), plain);
}

TEST_F(WindowAccessibility, SaysTheEntryAndTheSelectedLine) {
    type("12.5");
    EXPECT_EQ(name(form().txtXreg), "Entry line");
    EXPECT_EQ(value(form().txtXreg), "12.5");
    strike(Qt::Key_Return, "\r");
    EXPECT_EQ(value(form().lstDisplayReg).trimmed(), "12.50");
}

TEST_F(WindowAccessibility, SaysXInTheRestingEntryLineAndItsCharacters) {
    type("3");
    strike(Qt::Key_Return, "\r");
    EXPECT_EQ(value(form().txtXreg), "3.00");
    EXPECT_EQ(form().txtXreg.text, "");
    QAccessibleTextInterface* text = spoken(form().txtXreg).textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 4);
    EXPECT_EQ(text->text(0, 4), "3.00");
    type("12");
    EXPECT_EQ(text->text(0, 2), "12");
    EXPECT_EQ(text->cursorPosition(), 2);
}

TEST_F(WindowAccessibility, TheTapeAndTheStackHaveRows) {
    for (const char* number : {"3", "4"}) {
        type(number);
        strike(Qt::Key_Return, "\r");
    }
    QAccessibleInterface& stack = spoken(form().lstStack);
    ASSERT_EQ(stack.childCount(), 2);
    EXPECT_EQ(stack.child(1)->role(), QAccessible::ListItem);
    EXPECT_EQ(stack.child(1)->text(QAccessible::Name), "2 4.00e+00");
    EXPECT_TRUE(stack.child(1)->state().selected);
    QAccessibleInterface& tape = spoken(form().lstDisplayReg);
    EXPECT_EQ(tape.childCount(), static_cast<int>(engine().tape.count()));
    EXPECT_EQ(tape.child(tape.childCount() - 1)->text(QAccessible::Name), "4.00");
    EXPECT_EQ(tape.indexOfChild(tape.child(2)), 2);
    EXPECT_EQ(tape.child(2)->parent()->object(), &widget(form().lstDisplayReg));
}

TEST_F(WindowAccessibility, LampsAreCheckStatesAndOptionsNameTheirGroup) {
    EXPECT_FALSE(spoken(form().shaCtrl).state().checked);
    press(Qt::Key_Control);
    EXPECT_TRUE(spoken(form().shaCtrl).state().checked);
    release(Qt::Key_Control, {}, Qt::ControlModifier);
    EXPECT_EQ(spoken(form().optFix.at(1)).text(QAccessible::Description), "Number format");
    EXPECT_FALSE(spoken(form().cmdFunctions.at(14)).text(QAccessible::Description).contains('<'));
}

TEST_F(WindowAccessibility, AListenerHearsASession) {
    std::vector<QString> heard;
    view().announced = [&](const QString& text) { heard.push_back(text); };
    type("3");
    strike(Qt::Key_Return, "\r");
    heard.clear();
    type("3");
    strike(Qt::Key_Return, "\r");
    press(Qt::Key_Plus, "+");
    release(Qt::Key_Plus, "+");
    entry("&Engr'g")->trigger();
    type("1");
    EXPECT_EQ(heard, (std::vector<QString>{"3.00", "+ 6.00", "Engineering"}));
}

TEST_F(WindowAccessibility, KnowsTheRolesAndStates) {
    EXPECT_EQ(spoken(form().cmdEnter).role(), QAccessible::PushButton);
    EXPECT_EQ(spoken(form().txtXreg).role(), QAccessible::EditableText);
    EXPECT_EQ(spoken(form().lstDisplayReg).role(), QAccessible::List);
    EXPECT_EQ(spoken(form().optDeg).role(), QAccessible::RadioButton);
    EXPECT_TRUE(spoken(form().optDeg).state().checked);
    EXPECT_FALSE(spoken(form().optRad).state().checked);
    EXPECT_TRUE(spoken(form().cmdDown).state().disabled);
}

TEST_F(WindowAccessibility, SaysThatTheEntryLineHasTheKeyboard) {
    EXPECT_TRUE(spoken(form().txtXreg).state().focused);
    EXPECT_FALSE(spoken(form().cmdEnter).state().focused);
}

TEST_F(WindowAccessibility, PressesAKeyOnBehalfOfTheUser) {
    QAccessibleActionInterface* action = spoken(form().cmdNumPad.at(6)).actionInterface();
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(form().txtXreg.text, "6");
}

TEST_F(WindowAccessibility, ToolTipsAreThoseOfTheForm) {
    EXPECT_TRUE(widget(form().txtXreg).toolTip().contains("Entry Register"));
    EXPECT_TRUE(widget(form().cmdXchgY).toolTip().contains("Exchange x &amp; y"));
}

}  // namespace
}  // namespace tallyforge
