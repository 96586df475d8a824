// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tape as text, CSV and HTML: each file is read back by a reader of this test's own.
#include "shell/tape_export.h"
#include "shell/tape_columns.h"
#include "support/calculator_fixture.h"
#include "support/failing_disk.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

namespace tallyforge {
namespace {

using Row = std::vector<std::string>;

/// Rows of a table of comma-separated values, by the rules of RFC 4180.
std::vector<Row> readCsv(std::string_view text) {
    std::vector<Row> rows;
    Row row(1);
    bool quoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (quoted) {
            if (character != '"') {
                row.back() += character;
            } else if (at + 1 < text.size() && text[at + 1] == '"') {
                row.back() += text[++at];
            } else {
                quoted = false;
            }
        } else if (character == '"') {
            quoted = true;
        } else if (character == ',') {
            row.emplace_back();
        } else if (character == '\r' && text.substr(at, 2) == "\r\n") {
            rows.push_back(std::exchange(row, Row(1)));
            ++at;
        } else {
            row.back() += character;
        }
    }
    EXPECT_FALSE(quoted);
    EXPECT_EQ(row, Row(1)) << "the last line has its end";
    return rows;
}

std::string between(std::string_view& text, std::string_view before, std::string_view behind) {
    const auto from = text.find(before);
    const auto to = from == text.npos ? text.npos : text.find(behind, from + before.size());
    if (to == text.npos) {
        text = {};
        return {};
    }
    const std::string found(text.substr(from + before.size(), to - from - before.size()));
    text.remove_prefix(to);
    return found;
}

std::string unescaped(std::string text) {
    for (const auto& [code, character] :
         {std::pair{"&lt;", "<"}, std::pair{"&gt;", ">"}, std::pair{"&quot;", "\""}, std::pair{"&amp;", "&"}}) {
        for (auto at = text.find(code); at != text.npos; at = text.find(code, at + 1)) {
            text.replace(at, std::string_view(code).size(), character);
        }
    }
    return text;
}

std::vector<Row> readHtml(std::string_view text) {
    std::vector<Row> rows;
    while (text.find("<tr><td>") != text.npos) {
        const std::string label = between(text, "<tr><td>", "</td>");
        const std::string exact = between(text, "<data value=\"", "\">");
        rows.push_back({unescaped(label), unescaped(exact), unescaped(between(text, "\">", "</data>"))});
    }
    return rows;
}

class TapeExportTest : public ::testing::Test, protected CalculatorAtHand {
protected:
    void write(Control& entry, const std::string& name) {
        platform.texts = {name};
        choose(entry);
    }
    void add(std::string_view line, const ValueCell& value) const { calc().tape.add(line, value); }
    [[nodiscard]] std::vector<Row> csv() const {
        auto rows = readCsv(exportedTape(calc(), ExportFormat::Csv));
        EXPECT_EQ(rows.front(), (Row{"label", "value", "shown"}));
        rows.erase(rows.begin());
        return rows;
    }
};

TEST_F(TapeExportTest, TextHoldsTheLinesAsTheyAreShown) {
    enter("12.5");
    type("2/");
    write(form().mnuExportText, "a.txt");
    EXPECT_EQ(file("a.txt"), "12.50\n2.00\n÷                  6.25\n");
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(TapeExportTest, ATableHoldsLabelValueAndWhatIsShown) {
    enter("2");
    type("3/");
    write(form().mnuExportCsv, "a.csv");
    EXPECT_EQ(file("a.csv"), "label,value,shown\r\n,2,2.00\r\n,3,3.00\r\n÷,0.666666666666667,0.67\r\n");
    write(form().mnuExportHtml, "a.html");
    EXPECT_EQ(readHtml(file("a.html")),
              (std::vector<Row>{{"", "2", "2.00"}, {"", "3", "3.00"}, {"÷", "0.666666666666667", "0.67"}}));
}

TEST_F(TapeExportTest, SignsOfTablesAndPagesComeBackAsTheyWere) {
    add("a \"b\", <c> & d'     1.50", 1.5);
    add("\xE3 \xFB x\xFD \xF6 \xEA     -2.00", -2.0);
    add(" inch to mm       25.40", "25.4");
    add("=1+1,\"         7.00", 7.0);
    add("#1FFh", "#1FFh");
    add("no value", {});
    const std::vector<Row> rows{{"a \"b\", <c> & d'", "1.5", "1.50"},
                                {"π √ x² ÷ Ω", "-2", "-2.00"},
                                {"inch to mm", "25.4", "25.40"},
                                {"=1+1,\"", "7", "7.00"},
                                {"", "#1FFh", "#1FFh"},
                                {"no", "", "value"}};
    EXPECT_EQ(csv(), rows);
    EXPECT_EQ(readHtml(exportedTape(calc(), ExportFormat::Html)), rows);
}

TEST_F(TapeExportTest, AnEmptyTapeIsAnEmptyText) {
    EXPECT_EQ(exportedTape(calc(), ExportFormat::Text), "");
    EXPECT_TRUE(csv().empty());
    EXPECT_TRUE(readHtml(exportedTape(calc(), ExportFormat::Html)).empty());
    write(form().mnuExportText, "empty.txt");
    EXPECT_TRUE(std::filesystem::exists(platform.folder / "empty.txt"));
    EXPECT_EQ(file("empty.txt"), "");
}

TEST_F(TapeExportTest, ValuesHaveAPointInEveryLocaleAndWhatIsShownHasTheLocalesComma) {
    platform.decimal = ',';
    start();
    enter("1234,5");
    type("4/");
    EXPECT_EQ(csv(), (std::vector<Row>{{"", "1234.5", "1 234,50"}, {"", "4", "4,00"}, {"÷", "308.625", "308,62"}}));
}

TEST(TapeColumnsTest, AValueGroupedByBlanksStaysWhole) {
    const auto cut = [](std::string_view line) {
        const TapeColumns columns = columnsOf(line);
        return std::pair{std::string(columns.label), std::string(columns.value)};
    };
    using Cut = std::pair<std::string, std::string>;
    EXPECT_EQ(cut("m/s      299 792 500,00"), Cut("m/s", "299 792 500,00"));
    EXPECT_EQ(cut("-          -1 234,50   "), Cut("-", "-1 234,50"));
    EXPECT_EQ(cut("reg 1          12,00"), Cut("reg 1", "12,00"));
    EXPECT_EQ(cut("reg 1       1 234"), Cut("reg 1", "1 234"));
    EXPECT_EQ(cut("reg 1 234.50"), Cut("reg 1", "234.50")) << "a point has commas between groups";
    EXPECT_EQ(cut("1234 567,00"), Cut("1234", "567,00"));
    EXPECT_EQ(cut(""), Cut("", ""));
    EXPECT_EQ(cut("   "), Cut("", ""));
}

TEST_F(TapeExportTest, ANameIsCompletedAndGoesToTheDataFolder) {
    enter("1");
    write(form().mnuExportCsv, "prices");
    EXPECT_FALSE(file("prices.csv").empty());
    EXPECT_EQ(platform.inputs.back().writes, ".csv");
    EXPECT_TRUE(platform.inputs.back().fileName);
    const std::filesystem::path elsewhere = platform.folder / "deep" / "er";
    std::filesystem::create_directories(elsewhere);
    write(form().mnuExportHtml, (elsewhere / "Preisliste für Zoë.htm").string());
    EXPECT_EQ(readHtml(file("deep/er/Preisliste für Zoë.htm")).size(), 1U);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(TapeExportTest, AFolderThatIsNotThereIsToldAndTheNameAskedForAgain) {
    enter("1");
    platform.texts = {"/no/such/folder/a.txt", "a.txt"};
    choose(form().mnuExportText);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "Export Running Tape");
    EXPECT_EQ(platform.boxes[0].text, "There is no folder /no/such/folder, please enter another name.");
    EXPECT_EQ(file("a.txt"), "1.00\n");
}

TEST_F(TapeExportTest, NamesThatAreNoneOrTheCalculatorsOwnAreRefused) {
    enter("1");
    const std::string settings = file(".settings.rec");
    for (const char* name : {"undo.rec", ".settings.rec", "..", "a/", " ", "a\nb", "/"}) {
        platform.boxes.clear();
        write(form().mnuExportText, name);
        EXPECT_EQ(platform.boxes.size(), 1U) << name;
    }
    EXPECT_EQ(file(".settings.rec"), settings);
}

TEST_F(TapeExportTest, AFileThatExistsIsReplacedAfterAQuestionOnly) {
    enter("1");
    writeFile("a.txt", "former");
    write(form().mnuExportText, "a.txt");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, "File Exists!");
    EXPECT_EQ(file("a.txt"), "former");
    platform.answers = {Answer::Yes};
    write(form().mnuExportText, "a.txt");
    EXPECT_EQ(file("a.txt"), "1.00\n");
}

TEST_F(TapeExportTest, AFullDiskAndAReadOnlyFolderLeaveTheFormerFileAndTheTape) {
    for (int line = 0; line < 100; ++line) {
        enter("1");
    }
    writeFile("a.csv", "former");
    platform.answers = {Answer::Yes, Answer::Yes};
    {
        const FullDisk full;
        write(form().mnuExportCsv, "a.csv");
    }
    EXPECT_EQ(file("a.csv"), "former");
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_NE(platform.boxes[1].text.find("Error 61"), std::string::npos) << platform.boxes[1].text;
    {
        const ReadOnlyFolder locked(platform.folder);
        if (!locked.holds()) {
            GTEST_SKIP() << "this root may write anywhere";
        }
        write(form().mnuExportCsv, "a.csv");
    }
    EXPECT_EQ(file("a.csv"), "former");
    ASSERT_EQ(platform.boxes.size(), 4U);
    EXPECT_NE(platform.boxes[3].text.find("Error 75"), std::string::npos) << platform.boxes[3].text;
    EXPECT_EQ(tape().size(), 100U);
}

TEST_F(TapeExportTest, AMillionLinesTakeSeconds) {
    for (int line = 0; line < 1'000'000; ++line) {
        calc().tape.addNumber({}, TapeLabel("+"), line / 8.0);
    }
    const auto before = std::chrono::steady_clock::now();
    write(form().mnuExportCsv, "million.csv");
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - before;
    EXPECT_LT(taken.count(), 30.0) << "even in a debug build on a busy machine";
    RecordProperty("seconds", std::to_string(taken.count()));
    const std::string written = file("million.csv");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 1'000'001);
    EXPECT_TRUE(written.ends_with("+,124999.875,\"124,999.88\"\r\n")) << written.substr(written.size() - 50);
}

class OpenedFiles : public ::testing::Test, protected CalculatorAtHand {
protected:
    [[nodiscard]] std::string put(const std::string& name, std::string_view text) const {
        writeFile(name, text);
        return (platform.folder / name).string();
    }
};

TEST_F(OpenedFiles, ATapeIsRetrievedAfterTheQuestionOfItsMenuEntry) {
    enter("5");
    platform.texts = {"saved.tape"};
    choose(form().mnuSaveTape);
    const auto before = stackAndTape();
    enter("6");
    platform.boxes.clear();
    calculator->openFile(platform.folder / "saved.tape");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "This will overwrite all your current information, continue?");
    EXPECT_EQ(x(), "6") << "the answer was no";
    platform.answers = {Answer::Yes};
    calculator->openFile(platform.folder / "saved.tape");
    EXPECT_EQ(stackAndTape(), before);
}

TEST_F(OpenedFiles, ADamagedTapeAndOneThatIsNotThereGetTheirMessage) {
    enter("6");
    platform.answers = {Answer::Yes, Answer::Yes};
    calculator->openFile(put("bad.tape", "nonsense"));
    calculator->openFile(platform.folder / "none.tape");
    ASSERT_EQ(platform.boxes.size(), 4U);
    EXPECT_EQ(platform.boxes[1].text, "File error #54");
    EXPECT_EQ(platform.boxes[3].text, "File not found!");
    EXPECT_EQ(x(), "6");
}

TEST_F(OpenedFiles, AProgramIsLoadedFromAnyFolder) {
    const std::string program = put("Mine.rec", "# aa\nlbl init\nstop\nlbl A\nstop\n");
    platform.answers = {Answer::No};
    calculator->openFile(program);
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(s().files.DefaultProgram, "Mine.rec");
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes[0].title, "Replace file?");
}

TEST_F(OpenedFiles, WhatIsNoFileOfTheCalculatorIsTold) {
    calculator->openFile(put("letter.doc", "Dear"));
    calculator->openFile(platform.folder / "none.rec");
    std::filesystem::create_directory(platform.folder / "folder.rec");
    calculator->openFile(platform.folder / "folder.rec");
    ASSERT_EQ(platform.boxes.size(), 3U);
    EXPECT_EQ(platform.boxes[0].text, "letter.doc is no program (.rec) and no running tape (.tape).");
    EXPECT_EQ(platform.boxes[1].text, "File not found!");
    EXPECT_EQ(platform.boxes[2].text, "File not found!");
    EXPECT_FALSE(s().modes.ProgramMode);
}

}  // namespace
}  // namespace tallyforge
