// SPDX-License-Identifier: GPL-3.0-or-later
//
// "Try it" in the window of the help, from the link to the calculator's tape.
#include "apps/tallyforge/example_trial.h"

#include "desktops/headless/headless_platform.h"
#include "desktops/qt/help_window.h"
#include "help/help_file.h"
#include "platform/file_store.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// The examples of the one page, by their numbers.
enum Example { Sum, Product, OneNumber, BoxesAndDialogs, NoSuchControl, Files };
const std::vector<std::string> kKeys{
    "type 2\nkey Enter\ntype 3+\nshow x tape\n",
    "type 4\ntype *\n",
    "type 7\nkey Enter\n",
    "type 4\\\nclick cmdFunctions(2)\nmenu mnuConvert\nclick cmdFunctions(16)\ntype planck\nkey Enter\nhold Shift\n",
    "type 2\nkey Enter\nclick lstNameSym(1)\n",
    "menu mnuSaveTape\n",
};

std::vector<HelpPage> onePage() {
    HelpPage page;
    page.name = "sum";
    page.title = "Sum";
    page.topics = {530};
    page.index = {"sum"};
    for (const std::string& keys : kKeys) {
        page.body += "```keys\n" + keys + "```\n```out\n```\n";
    }
    return {page};
}

/// The calculator in its window with a desktop of its own, and the help beside it.
class ExampleTrial : public testing::Test {
protected:
    ExampleTrial() : calculator(platform) {
        // The tip of a start is read by a hand.
        HeadlessPlatform hand({}, [](std::string_view) {});
        hand.driveDialog = [](Form& dialog) { dialog.open = false; };
        platform.setStandIn(&hand);
        calculator.start();
        platform.setStandIn(nullptr);
        platform.setWindow(&window);
        platform.help.tryIt = [this](const HelpExample& example) { tryExample(platform, calculator, window, example); };
        window.present();
        window.show();
    }

    Engine& engine() { return calculator.engine(); }
    std::string tapeLine(std::size_t line) {
        return engine().tape.row(static_cast<std::size_t>(engine().tape.fillers()) + line);
    }
    /// Follows the link below the example; each box is noted and answered, the questions by `answer`.
    void follow(Example example, QMessageBox::StandardButton answer) {
        const auto file = folder.path / kHelpFile;
        writeWhole(file, writeHelpFile(onePage()));
        ASSERT_EQ(platform.help.showTopic(file, 530), "");
        QTimer answering;
        QObject::connect(&answering, &QTimer::timeout, &answering, [this, answer] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); box != nullptr) {
                told.push_back(box->windowTitle().toStdString() + ": " + box->text().toStdString());
                tapeWhenAsked.push_back(engine().tape.lines());
                QAbstractButton* key = box->button(answer);
                (key != nullptr ? key : box->buttons().front())->click();
            }
        });
        answering.start(1);
        emit platform.help.window()->browser().anchorClicked(QUrl("try:" + QString::number(example)));
    }

    TemporaryFolder folder;
    qt::QtPlatform platform;
    Calculator calculator;
    qt::MainWindow window{calculator.engine().form, '.'};
    std::vector<std::string> told;
    std::vector<std::size_t> tapeWhenAsked;
};

constexpr const char* kQuestion =
    "Try it: Press the keys of this example in your calculator?\n\nIts numbers go on your stack and your tape.";

TEST_F(ExampleTrial, AsksAndThenPressesTheKeysInTheCalculator) {
    follow(Sum, QMessageBox::Yes);
    EXPECT_EQ(told, std::vector<std::string>{kQuestion});
    EXPECT_EQ(tapeWhenAsked, std::vector<std::size_t>{0}) << "nothing is pressed before the answer";
    ASSERT_EQ(engine().tape.lines(), 3U);
    EXPECT_NE(tapeLine(2).find("5.00"), std::string::npos) << tapeLine(2);
    EXPECT_EQ(engine().s.stack.depth(), 1);
    EXPECT_FALSE(platform.isBusy());
    follow(Product, QMessageBox::Yes);
    EXPECT_NE(tapeLine(4).find("20.00"), std::string::npos) << "it goes on with what is there";
}

TEST_F(ExampleTrial, NoLeavesAllAsItIs) {
    follow(OneNumber, QMessageBox::Yes);
    click(engine().form, engine().form.cmdNumPad.at(9));
    const std::string entry = engine().form.txtXreg.text;
    follow(Sum, QMessageBox::No);
    EXPECT_EQ(told, (std::vector<std::string>{kQuestion, kQuestion}));
    EXPECT_EQ(engine().tape.lines(), 1U);
    EXPECT_EQ(engine().s.stack.depth(), 1);
    EXPECT_EQ(engine().form.txtXreg.text, entry) << "what is being typed stays";
}

TEST_F(ExampleTrial, BoxesAndDialogsOfTheExampleAreAnsweredByIt) {
    follow(BoxesAndDialogs, QMessageBox::Yes);
    EXPECT_EQ(told, std::vector<std::string>{kQuestion}) << "the message of the key needs no hand";
    EXPECT_EQ(engine().text(engine().s.stack.Xreg), "6.626196e-34");
    EXPECT_EQ(engine().s.modifiers.ModifierMask, 0) << "no modifier stays down";
}

TEST_F(ExampleTrial, WhatCannotGoOnIsTold) {
    follow(NoSuchControl, QMessageBox::Yes);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told.back(), "Try it: The example cannot go on here: line 3: no control 'lstNameSym(1)'");
    EXPECT_EQ(engine().tape.lines(), 1U);
    EXPECT_FALSE(platform.isBusy());
}

TEST_F(ExampleTrial, AnExampleThatTouchesFilesIsNotOfferedNorRun) {
    follow(Files, QMessageBox::Yes);
    EXPECT_EQ(platform.help.window()->browser().toPlainText().count("Try it"), kKeys.size() - 1);
    EXPECT_EQ(told, std::vector<std::string>{"Try it: This example uses files or settings and is only to be read."});
}

TEST_F(ExampleTrial, WhileSomebodyStandsInItWaits) {
    HeadlessPlatform hand({}, [](std::string_view) {});
    platform.setStandIn(&hand);
    follow(Sum, QMessageBox::Yes);
    platform.setStandIn(nullptr);
    EXPECT_EQ(engine().tape.lines(), 0U);
}

}  // namespace
}  // namespace tallyforge
