// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whatever a user can meet has its page: each key in all its meanings, each dialog, word, topic,
// unit, constant and message. What is missing is listed, a line each.
#include "convert/conversion_tables.h"
#include "engine/engine.h"
#include "help/help_book.h"
#include "help/help_file.h"
#include "help_sources.h"
#include "keypads/keypad_table.h"
#include "platform/file_store.h"
#include "platform/form_input.h"
#include "program/program_words.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"
#include "shell/calculator.h"

#include "message_texts.h"
#include "support/all_dialogs.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>

namespace tallyforge {
namespace {

using Lines = std::vector<std::string>;

std::string listed(const Lines& lines) {
    std::string all;
    for (const std::string& line : lines) {
        all += line + '\n';
    }
    return all;
}

const HelpBook& book() {
    static const HelpBook kBook(helpSources());
    return kBook;
}

bool saysInText(const std::string& text) {
    return allHelpText().find(bareText(text)) != std::string::npos;
}

constexpr std::string_view kMaskNames[] = {"Key", "Shift",     "Ctrl",     "Shift+Ctrl",
                                           "Alt", "Shift+Alt", "Ctrl+Alt", "Shift+Ctrl+Alt"};

std::set<int> masksOf(const HelpPage& page) {
    std::set<int> masks;
    for (const HelpBlock& block : helpBlocks(page.body)) {
        const auto mask = block.kind == HelpBlock::Kind::Heading ? maskHeading(block.text) : std::nullopt;
        if (mask) {
            masks.insert(mask->mask);
        }
    }
    return masks;
}

TEST(HelpIsComplete, EachKeyHasAPageWithASectionForEachOfItsMeanings) {
    Lines missing;
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            const std::string key = std::string(table->name) + " key " + std::to_string(row.key) + " \"" +
                                    toUnicode(row.caption.text, row.caption.face) + "\" (topic " +
                                    std::to_string(row.helpTopic) + ")";
            const HelpPage* page = book().byTopic(row.helpTopic);
            if (page == nullptr) {
                missing.push_back(key + ": no page");
                continue;
            }
            const std::set<int> masks = masksOf(*page);
            for (int mask = 0; mask < 8; ++mask) {
                const KeyCaption& under = row.under.at(static_cast<std::uint8_t>(mask));
                const bool means = mask == 0 || !under.text.empty() || under.does != nullptr;
                if (means && !masks.contains(mask)) {
                    missing.push_back(key + ": page " + page->name + " has no section \"" +
                                      std::string(kMaskNames[mask]) + ":\"");
                }
            }
        }
    }
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

/// The topics that the right button, F1 and the menu of help lead to.
std::set<int> topicsOfTheForm() {
    TestPlatform platform;
    Calculator calculator(platform);
    calculator.start();
    MainForm& form = calculator.engine().form;
    const auto askAll = [&] {
        for (Control* control : form.controls()) {
            if (control->mouseDown) {
                control->mouseDown(MouseButton::Right, 0);
            }
            if (control->name.starts_with("mnu") && control->menu == "mnuHelp") {
                click(form, *control);
            }
        }
        rightClickForm(form, 0);
        form.help();
    };
    for (const KeypadTable* table : keypadTables()) {
        calculator.engine().keypads().ShowKeypad(table->id);
        askAll();
    }
    calculator.engine().s.modes.ProgramMode = true;
    askAll();
    return {platform.helpTopics.begin(), platform.helpTopics.end()};
}

TEST(HelpIsComplete, EachTopicHasItsPage) {
    std::set<int> topics = topicsOfTheForm();
    openAllDialogs([&](Form& dialog) { topics.insert(dialog.helpTopic); });
    topics.erase(0);
    for (const int topic : {500, 505, 510, 530, 580, 590, 600, 610,  630,  650,  830,  840,
                            850, 860, 870, 880, 890, 900, 910, 1000, 1330, 1940, 2010, 2100}) {
        topics.insert(topic);
    }
    Lines missing;
    for (const int topic : topics) {
        if (book().byTopic(topic) == nullptr) {
            missing.push_back("topic " + std::to_string(topic) + ": no page");
        }
    }
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(HelpIsComplete, EachDialogHasAPageAndATopic) {
    std::set<std::string> dialogs{"frmTip", "frmAbout", "frmFindUnit"};
    Lines missing;
    openAllDialogs([&](Form& dialog) {
        dialogs.insert(dialog.name);
        if (dialog.helpTopic == 0) {
            missing.push_back(dialog.name + ": F1 has no topic");
        }
    });
    for (const std::string& dialog : dialogs) {
        if (book().byDialog(dialog) == nullptr) {
            missing.push_back("dialog " + dialog + ": no page");
        }
    }
    EXPECT_GT(dialogs.size(), 40U);
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(HelpIsComplete, EachWordOfTheLanguageIsOnAPage) {
    std::set<std::string, std::less<>> known;
    for (const HelpPage& page : helpSources()) {
        known.insert(page.words.begin(), page.words.end());
    }
    Lines missing;
    const auto check = [&](std::string_view word) {
        if (!known.contains(toUnicode(word, Face::Arial))) {
            missing.push_back("word " + toUnicode(word, Face::Arial) + ": no page");
        }
    };
    for (const FunctionWord& word : functionWords()) {
        check(word.word);
    }
    for (const StatementRow& row : statementRows()) {
        check(row.word);
    }
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(HelpIsComplete, EachUnitAndConstantIsNamed) {
    Lines missing;
    const auto check = [&](const std::string& what, const std::string& text) {
        if (!text.empty() && !saysInText(text)) {
            missing.push_back(what + " \"" + text + "\": on no page");
        }
    };
    for (const ConversionTable* table : conversionTables()) {
        for (const UnitGroup& group : table->groups) {
            const std::string where = "unit of " + std::string(table->form) + " " + std::string(group.heading);
            for (const Unit& unit : group.units) {
                check(where, toUnicode(unit.from, Face::Arial));
            }
        }
    }
    for (const ListTable* list : {&kConstantsList, &kGravityList, &kRhoList, &kAlphaList, &kPrefixList}) {
        for (const ListRow& row : list->rows) {
            check("row of " + std::string(list->form), toUnicode(row.name, list->face));
        }
    }
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(HelpIsComplete, EachMessageIsExplained) {
    Lines missing;
    for (const MessageText& message : messageTexts()) {
        if (!saysInText(message.text)) {
            missing.push_back("message of " + message.file + ": \"" + message.text + "\": on no page");
        }
    }
    EXPECT_GT(messageTexts().size(), 80U);
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(HelpIsComplete, NoNameOrTopicIsClaimedTwiceAndNoLinkLeadsNowhere) {
    EXPECT_EQ(listed(bookFaults(helpSources())), "");
}

TEST(HelpIsComplete, EachPageOfAKeyHasAWorkedExample) {
    Lines missing;
    for (const HelpPage& page : helpSources()) {
        if (!masksOf(page).empty() && helpExamples(page.body).empty()) {
            missing.push_back(page.file + ": " + page.name + ": no example");
        }
    }
    EXPECT_TRUE(missing.empty()) << listed(missing);
}

TEST(BuiltHelp, IsThePagesAndLiesBesideTheProgramsWithTheDocuments) {
    const std::filesystem::path folder(TALLYFORGE_PROGRAMS_FOLDER);
    EXPECT_EQ(readHelpFile(readWhole(folder / kHelpFile)), helpSources());
    for (const char* document : {"manual.html", "changes.html"}) {
        EXPECT_TRUE(readWhole(folder / "doc" / document).ends_with("</html>\n")) << document;
    }
}

TEST(BuiltHelp, IsTheManualOfTheDocuments) {
    EXPECT_TRUE(readWhole(TALLYFORGE_PROGRAMS_FOLDER "/doc/manual.html") ==
                readWhole(TALLYFORGE_SOURCE_ROOT "/docs/manual.html"))
        << "run tools/manual_doc";
}

}  // namespace
}  // namespace tallyforge
