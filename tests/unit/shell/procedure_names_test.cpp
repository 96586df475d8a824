// SPDX-License-Identifier: GPL-3.0-or-later
//
// The name that a message of a failure has in its title: the procedure that ran last.
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tallyforge {
namespace {

class ProcedureNames : public ::testing::Test, protected CalculatorAtHand {
protected:
    void expectName(std::string_view name, const std::function<void()>& act) {
        s().CurrentProc = "nothing ran";
        act();
        EXPECT_EQ(std::string(std::string_view(s().CurrentProc)), name);
        platform.boxes.clear();
    }
};

TEST_F(ProcedureNames, AreThoseOfTheKeysAndMenus) {
    MainForm& f = form();
    expectName("cmdEnter", [&] { enter("12"); });
    expectName("cmdEnter", [&] { choose(f.cmdEnter); });
    expectName("cmdEnter", [&] { choose(f.cmdMath.at(3)); });
    expectName("cmdEnter", [&] { clickWith(0, f.cmdFunctions.at(1)); });
    expectName("cmdSTO", [&] { choose(f.cmdSTO); });
    expectName("cmdDigits_Click", [&] {
        type("3");
        choose(f.cmdDigits);
    });
    expectName("cmdView", [&] { clickWith(kAlt, f.cmdView); });
    expectName("mnuAOT", [&] { choose(f.mnuAOT); });
    expectName("mnuPosition", [&] { choose(f.mnuPosition); });
    expectName("mnuLoad", [&] { choose(f.mnuLoad); });
    expectName("mnuSkins", [&] { choose(f.mnuSkins); });
    expectName("mnuSave", [&] { choose(f.mnuSave); });
    expectName("mnuPrint", [&] { choose(f.mnuPrint); });
    expectName("mnuExportText_Click", [&] { choose(f.mnuExportText); });
    expectName("mnuExportCsv_Click", [&] { choose(f.mnuExportCsv); });
    expectName("mnuExportHtml_Click", [&] { choose(f.mnuExportHtml); });
    expectName("", [&] { choose(f.mnuTape); });
}

TEST_F(ProcedureNames, OfTheBinaryKeypadIsItsFormat) {
    enter("5");
    expectName("SaveDisplay", [&] { choose(form().mnuEngBinary); });
}

TEST_F(ProcedureNames, StandInTheTitleOfTheirFailures) {
    const auto title = [this](const std::function<void()>& act) {
        platform.boxes.clear();
        act();
        return platform.boxes.empty() ? "no box" : platform.boxes.back().title;
    };
    enter("1e308");
    EXPECT_EQ(title([&] { type("<"); }), "txtXreg Error!");
    EXPECT_EQ(title([&] {
                  enter("1e308");
                  type("*");
              }),
              "cmdMath Error!");
    EXPECT_EQ(title([&] {
                  enter("5");
                  type("\\");
                  choose(form().cmdFunctions.at(2));
              }),
              "cmdFunctions Error!");
    platform.texts = {"there is none"};
    EXPECT_EQ(title([&] {
                  platform.answers = {Answer::Yes, Answer::Yes};
                  choose(form().mnuTape);
              }),
              "mnuTape Error!");
}

TEST_F(ProcedureNames, TellWhereALineOfTheTapeFailed) {
    expectName("Add2Display", [&] { calc().commit.TapeLine("a line of text"); });
    expectName("numDisplay", [&] {
        try {
            static_cast<void>(calc().display.numDisplay(ValueCell("no number")));
        } catch (const Failure&) {
            return;
        }
    });
}

}  // namespace
}  // namespace tallyforge
