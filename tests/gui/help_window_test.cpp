// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/help_window.h"

#include "desktops/qt/help_desk.h"
#include "help/help_file.h"
#include "platform/file_store.h"

#include "support/temporary_folder.h"
#include "window_fixture.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

namespace tallyforge {
namespace {

HelpPage page(std::string name, std::string title, std::vector<int> topics, std::string body) {
    HelpPage made;
    made.name = std::move(name);
    made.title = std::move(title);
    made.topics = std::move(topics);
    made.index = {made.title};
    made.body = std::move(body);
    return made;
}

std::vector<HelpPage> threePages() {
    std::vector<HelpPage> pages{
        page("introduction", "Introduction", {500}, "See [sine](sine).\n"),
        page("sine", "Sine", {1506}, "The sine of an angle.\n\n```keys\ntype 2\n```\n```out\n```\n"),
        page("arc", "Arc calculator", {}, "For arcs; uses the sine.\n"),
    };
    pages[2].dialogs = {"frmArc"};
    return pages;
}

class HelpAtHand : public testing::Test {
protected:
    HelpAtHand() { writeWhole(file, writeHelpFile(threePages())); }

    /// The page that shows.
    std::string shown() { return desk.window()->browser().page()->name; }
    std::string text() { return desk.window()->browser().toPlainText().toStdString(); }
    void click(const QString& button) {
        for (auto* one : desk.window()->findChildren<QToolButton*>()) {
            if (one->accessibleName() == button) {
                one->click();
                return;
            }
        }
        ADD_FAILURE() << button.toStdString();
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path / kHelpFile;
    qt::HelpDesk desk;
};

TEST_F(HelpAtHand, OneWindowShowsThePageOfEachTopicAndNothingIsMadeBefore) {
    EXPECT_EQ(desk.window(), nullptr);
    EXPECT_EQ(desk.showTopic(file, 1506), "");
    const qt::HelpWindow* const first = desk.window();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());
    EXPECT_FALSE(first->isModal());
    EXPECT_NE(text().find("The sine of an angle."), std::string::npos);
    EXPECT_EQ(first->windowTitle(), "Sine - Tallyforge Help");
    EXPECT_EQ(desk.showTopic(file, 500), "");
    EXPECT_EQ(desk.window(), first);
    EXPECT_EQ(shown(), "introduction");
    EXPECT_EQ(desk.showDialog(file, "frmArc", 0), "");
    EXPECT_EQ(shown(), "arc");
    EXPECT_EQ(desk.showDialog(file, "frmOther", 1506), "");
    EXPECT_EQ(shown(), "sine");
}

TEST_F(HelpAtHand, WhatIsMissingOrDamagedIsToldAndNoWindowOpens) {
    EXPECT_EQ(desk.showTopic(folder.path / "none.help", 500), "The help file none.help was not found!");
    writeWhole(folder.path / "bad.help", writeHelpFile(threePages()) + "x");
    EXPECT_EQ(desk.showTopic(folder.path / "bad.help", 500), "The help file bad.help is damaged!");
    EXPECT_EQ(desk.showTopic(file, 4711), "The help has no page about this!");
    EXPECT_EQ(desk.showDialog(file, "frmOther", 0), "The help has no page about this!");
    EXPECT_EQ(desk.window(), nullptr);
    EXPECT_EQ(desk.showTopic(file, 500), "");
    EXPECT_EQ(desk.showTopic(file, 4711), "The help has no page about this!");
    EXPECT_EQ(shown(), "introduction");
}

TEST_F(HelpAtHand, BackAndForwardWalkThePagesThatWereShown) {
    static_cast<void>(desk.showTopic(file, 500));
    emit desk.window()->browser().anchorClicked(QUrl("help:sine"));
    EXPECT_EQ(shown(), "sine");
    click("Back");
    EXPECT_EQ(shown(), "introduction");
    click("Forward");
    EXPECT_EQ(shown(), "sine");
    click("Introduction");
    EXPECT_EQ(shown(), "introduction");
    emit desk.window()->browser().anchorClicked(QUrl("help:nowhere"));
    emit desk.window()->browser().anchorClicked(QUrl("file:///etc/passwd"));
    EXPECT_EQ(shown(), "introduction");
}

TEST_F(HelpAtHand, TheListIsTheIndexAndWhatASearchFinds) {
    static_cast<void>(desk.showTopic(file, 500));
    QListWidget& list = desk.window()->list();
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(0)->text(), "Arc calculator");
    QTest::keyClicks(&desk.window()->searchField(), "sin");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(0)->text(), "Sine");
    QTest::keyClick(&desk.window()->searchField(), Qt::Key_Return);
    EXPECT_EQ(shown(), "sine");
    QTest::keyClicks(&desk.window()->searchField(), "e ang");
    EXPECT_EQ(list.count(), 1);
    QTest::keyClick(&desk.window()->searchField(), Qt::Key_Down);
    EXPECT_EQ(list.currentRow(), 0);
    desk.window()->searchField().clear();
    EXPECT_EQ(list.count(), 3);
}

TEST_F(HelpAtHand, AnExampleIsOfferedOnlyWhereItCanBeTried) {
    std::string tried;
    desk.tryIt = [&](const HelpExample& example) { tried += example.keys; };
    static_cast<void>(desk.showTopic(file, 1506));
    EXPECT_NE(text().find("Try it"), std::string::npos);
    emit desk.window()->browser().anchorClicked(QUrl("try:0"));
    EXPECT_EQ(tried, "type 2\n");
    emit desk.window()->browser().anchorClicked(QUrl("try:7"));
    emit desk.window()->browser().anchorClicked(QUrl("try:-1"));
    EXPECT_EQ(tried, "type 2\n");
}

TEST_F(HelpAtHand, NoExampleIsOfferedWithoutACalculator) {
    static_cast<void>(desk.showTopic(file, 1506));
    EXPECT_EQ(text().find("Try it"), std::string::npos);
}

TEST_F(HelpAtHand, LightAndDarkAreFollowedWhileAPageShows) {
    const QPalette before = QApplication::palette();
    static_cast<void>(desk.showTopic(file, 500));
    const auto ground = [&] { return desk.window()->browser().grab().toImage().pixelColor(5, 200).lightness(); };
    QApplication::processEvents();
    EXPECT_GT(ground(), 200);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x22, 0x25));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_LT(ground(), 60);
    EXPECT_EQ(shown(), "introduction");
    QApplication::setPalette(before);
    QApplication::processEvents();
    EXPECT_GT(ground(), 200);
}

TEST_F(HelpAtHand, EverythingHasANameForAListener) {
    static_cast<void>(desk.showTopic(file, 500));
    EXPECT_EQ(desk.window()->searchField().accessibleName(), "Search the help");
    EXPECT_EQ(desk.window()->list().accessibleName(), "Index");
    EXPECT_EQ(desk.window()->browser().accessibleName(), "Page");
    desk.window()->searchField().setText("arc");
    EXPECT_EQ(desk.window()->list().accessibleName(), "1 pages found");
}

TEST_F(HelpAtHand, PlaceAndSizeComeBackInANewWindow) {
    static_cast<void>(desk.showTopic(file, 500));
    desk.window()->resize(611, 433);
    desk.window()->close();
    EXPECT_FALSE(desk.window()->isVisible());
    qt::HelpDesk next;
    static_cast<void>(next.showTopic(file, 500));
    EXPECT_EQ(next.window()->size(), QSize(611, 433));
}

using WindowHelp = WindowTest;

TEST_F(WindowHelp, TheEmptyAreaOfTheFormHasATopicWithoutModifiersOnly) {
    const QPoint gap(2, view().height() - 2);
    ASSERT_EQ(view().childAt(gap), nullptr);
    QTest::mouseClick(&view(), Qt::RightButton, Qt::NoModifier, gap);
    EXPECT_EQ(platform.helpTopics, std::vector<int>{505});
    QTest::mouseClick(&view(), Qt::RightButton, Qt::ControlModifier, gap);
    QTest::mouseClick(&view(), Qt::LeftButton, Qt::NoModifier, gap);
    EXPECT_EQ(platform.helpTopics.size(), 1U);
}

TEST_F(WindowHelp, F1IsAboutTheKeyUnderThePointerOrWhereTabHasLed) {
    view().pointAt(&form().cmdFunctions.at(14));
    strike(Qt::Key_F1);
    EXPECT_EQ(platform.helpTopics.back(), keypadTable(Keypad::Standard).rows[14].helpTopic);
    view().pointAt(&form().lstStack);
    strike(Qt::Key_F1);
    EXPECT_EQ(platform.helpTopics.back(), 500);
    view().pointAt(nullptr);
    type("5");
    strike(Qt::Key_F1);
    EXPECT_EQ(platform.helpTopics.back(), 510);
    strike(Qt::Key_Tab, "\t");
    strike(Qt::Key_Tab, "\t");
    strike(Qt::Key_Tab, "\t");
    view().pointAt(&form().cmdEnter);
    strike(Qt::Key_F1);
    ASSERT_NE(form().tabbedTo, nullptr);
    const auto led = static_cast<std::size_t>(form().tabbedTo->index);
    EXPECT_EQ(platform.helpTopics.back(), keypadTable(Keypad::Standard).rows.at(led).helpTopic);
    EXPECT_EQ(platform.helpTopics.size(), 4U);
}

}  // namespace
}  // namespace tallyforge
