// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_fixture.h"

#include "program/program_text.h"

#include <chrono>
#include <fstream>

namespace tallyforge {
namespace {

class Load : public ProgramAtHand {
protected:
    std::string fileFor(const std::string& answer) {
        forget();
        platform.texts.push_back(answer);
        choose(form().mnuProgram);
        return said().empty() ? programState().ProgramFile : said().front();
    }
};

TEST_F(Load, AsksForAFileAndEntersProgramMode) {
    writeProgram("# aa\nlbl init\nend\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    ASSERT_EQ(platform.inputs.size(), 1U);
    EXPECT_EQ(platform.inputs.front().title, "Load Program");
    EXPECT_EQ(platform.inputs.front().prompt,
              "Please enter a file name, or\nClick OK to accept the default.\n\n(Do not enter the Folder name.)");
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(form().lblName.text, "test.rec");
    EXPECT_EQ(s().files.DefaultProgram, "test.rec");
    EXPECT_EQ(programState().ProgramFolder, platform.folder / "programs");
}

TEST_F(Load, AddsTheExtension) {
    writeProgram("#\nlbl a\nend\n", "abc.rec");
    writeProgram("#\nlbl a\nend\n", "abc.text.rec");
    EXPECT_EQ(fileFor("abc"), "Replace file?: Do you want to replace the default file with this?");
    EXPECT_EQ(programState().ProgramFile, "abc.rec");
    platform.answers = {Answer::Yes};
    fileFor("abc.rec");
    EXPECT_EQ(programState().ProgramFile, "abc.rec");
    platform.answers = {Answer::Yes};
    fileFor("abc.text");
    EXPECT_EQ(programState().ProgramFile, "abc.text.rec");
}

TEST_F(Load, AFileThatIsNotThereIsSaidSoTwiceAndChangesNothing) {
    runSection("aa = 5");
    platform.texts.push_back("missing");
    choose(form().mnuProgram);
    EXPECT_EQ(said(), (Said{"Program Error!: File not found!",
                            "Illegal File Extension!: Please rename your program with the \".rec\" extension."}));
    EXPECT_EQ(programState().ProgramFile, "test.rec");
    EXPECT_EQ(variable("aa"), 5.0);
    EXPECT_TRUE(s().modes.ProgramMode);
}

TEST_F(Load, ACancelledOrRefusedLoadChangesNothing) {
    writeProgram("# zz\nlbl init\nend\n", "other.rec");
    runSection("aa = 5");
    platform.texts.push_back("");
    choose(form().mnuProgram);
    EXPECT_EQ(said(), Said{});
    platform.texts.push_back("other");
    choose(form().mnuProgram);
    EXPECT_EQ(said(), Said{"Overwrite?: This will overwrite your current program, continue?"});
    EXPECT_EQ(platform.boxes.front().kind, BoxKind::Info);
    EXPECT_EQ(programState().ProgramFile, "test.rec");
    EXPECT_EQ(variable("aa"), 5.0);
    EXPECT_EQ(s().files.DefaultProgram, "test.rec");
}

TEST_F(Load, TheDefaultIsWrittenToTheSettingsWhereTheUserAgrees) {
    writeProgram("#\nlbl a\nend\n", "mine.rec");
    loadFile("mine");
    start();
    EXPECT_EQ(s().files.DefaultProgram, "mine.rec");
    writeProgram("#\nlbl a\nend\n", "other.rec");
    fileFor("other");
    EXPECT_EQ(s().files.DefaultProgram, "other.rec");
    start();
    EXPECT_EQ(s().files.DefaultProgram, "mine.rec");
}

TEST_F(Load, TheDefaultIsLoadedAtTheStartWhereAsked) {
    writeProgram("# aa\nlbl init\nname a start\naa = 7\nend\n", "mine.rec");
    loadFile("mine");
    choose(form().mnuLoad);
    forget();
    start();
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(caption(kKeyA), "start");
    EXPECT_EQ(variable("aa"), 7.0);
    EXPECT_EQ(platform.inputs.size(), 0U);
    EXPECT_EQ(said(), Said{});
}

TEST_F(Load, TheUsersOwnProgramComesBeforeTheOneBesideTheExecutable) {
    class Elsewhere : public TestPlatform {
    public:
        std::filesystem::path home;
        std::filesystem::path installedFolder() const override { return home; }
    } desktop;
    desktop.home = desktop.folder / "bin";
    Calculator other(desktop);
    other.start();
    const auto put = [&](const std::filesystem::path& folder, const char* word) {
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "which.rec") << "# aa\nlbl init\naa = " << word << "\nend\n";
    };
    const auto loaded = [&] {
        desktop.texts.push_back("which");
        desktop.answers = {Answer::Yes, Answer::Yes};
        click(other.engine().form, other.engine().form.mnuProgram);
        return other.programs().state.variables.GetProgramVariable("aa");
    };
    put(desktop.folder / "share/tallyforge/programs", "3");
    EXPECT_EQ(loaded(), 3.0);
    put(desktop.home / "programs", "2");
    EXPECT_EQ(loaded(), 2.0);
    put(desktop.folder / "programs", "1");
    EXPECT_EQ(loaded(), 1.0);
}

TEST_F(Load, ANameWithAFolderIsTakenByItsLastPart) {
    writeProgram("#\nlbl a\nend\n");
    EXPECT_EQ(fileFor("/elsewhere/../test.rec"), "Replace file?: Do you want to replace the default file with this?");
    EXPECT_EQ(programState().ProgramFile, "test.rec");
}

TEST_F(Load, CapitalsInANameDoNotMatterWhereNoFileHasExactlyIt) {
    writeProgram("#\nlbl a\nend\n", "Loan.rec");
    loadFile("loan");
    EXPECT_EQ(programState().ProgramFile, "Loan.rec");
    writeProgram("#\nlbl a\nend\n", "loan.rec");
    loadFile("loan");
    EXPECT_EQ(programState().ProgramFile, "loan.rec");
}

TEST_F(Load, ADeclarationNamesTheVariables) {
    loadProgram("free text\n# aa bb2 x 3d\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarNames, (std::vector<std::string>{"xreg", "aa", "bb2", "x", "3d"}));
    EXPECT_EQ(programState().variables.ProgramVarCount, 4);
    EXPECT_EQ(programState().variables.ProgramVarScan, 4);
}

TEST_F(Load, ADeclarationWithoutNamesHasOneEmptyName) {
    loadProgram("#\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarNames, (std::vector<std::string>{"xreg", ""}));
    EXPECT_EQ(programState().variables.ProgramVarCount, 1);
}

TEST_F(Load, KeepsLosingTheFirstLetterOfANameWrittenBehindTheMark) {
    loadProgram("#aa bb\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarNames, (std::vector<std::string>{"xreg", "a", "bb"}));
}

TEST_F(Load, ABadNameIsNamedAndEntersTheTable) {
    writeProgram("# aa b $c\nlbl init\nend\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said(), (Said{"Replace file?: Do you want to replace the default file with this?",
                            "Program Error!: Letter Variables must be 2 characters long!",
                            "Program Error!: Variables must begin with a letter or number only!"}));
    EXPECT_EQ(programState().variables.ProgramVarCount, 3);
    EXPECT_EQ(programState().variables.find("$c"), 3);
}

TEST_F(Load, KeepsTheOnlyNameOfADeclarationUnchecked) {
    writeProgram("# b\nlbl init\nend\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said().size(), 1U);
}

TEST_F(Load, AProgramWithoutADeclarationIsSaidSo) {
    writeProgram("aa bb\nlbl init\nend\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said().back(), "Program Error!: Program not initialized, first unignored character has to be \"#\" !");
    EXPECT_EQ(platform.boxes.back().kind, BoxKind::Stop);
    EXPECT_TRUE(s().modes.ProgramMode);
}

TEST_F(Load, AProgramWithoutLabelsIsSaidSoOnce) {
    writeProgram("# aa\nno label\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said().back(), "Program Error!: Error 62 (Input past end of file)");
    EXPECT_EQ(said().size(), 2U);
}

TEST_F(Load, AFileThatIsTooLargeForAProgramIsToldAndTheOldOneStays) {
    const std::string sections = "#\nlbl a\nend\n";
    const std::size_t room = (std::size_t{4} << 20U) - sections.size();
    writeProgram(sections + std::string(room, '\''), "largest.rec");
    writeProgram(sections + std::string(room + 1, '\''), "larger.rec");
    const std::size_t lines = 299'999 - 3;
    writeProgram(sections + std::string(lines, '\n'), "longest.rec");
    writeProgram(sections + std::string(lines + 1, '\n'), "longer.rec");
    platform.answers = {Answer::Yes};
    fileFor("largest");
    EXPECT_EQ(programState().ProgramFile, "largest.rec");
    platform.answers = {Answer::Yes, Answer::No};
    fileFor("larger");
    EXPECT_EQ(platform.boxes.back().text, "Error 7 (Out of memory)");
    EXPECT_EQ(programState().ProgramFile, "largest.rec");
    platform.answers = {Answer::Yes, Answer::No};
    fileFor("longest");
    EXPECT_EQ(programState().ProgramFile, "longest.rec");
    platform.answers = {Answer::Yes, Answer::No};
    fileFor("longer");
    EXPECT_EQ(platform.boxes.back().text, "Error 7 (Out of memory)");
    EXPECT_EQ(programState().ProgramFile, "longest.rec");
}

TEST_F(Load, AnEmptyFileIsNoProgram) {
    writeProgram("");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said().back(), "Program Error!: Program not initialized, first unignored character has to be \"#\" !");
}

TEST_F(Load, AnUndeclaredVariableInInitEndsTheLoad) {
    writeProgram("# aa\n# bb\nlbl init\nbb = 1\nend\n");
    platform.texts.push_back("test");
    choose(form().mnuProgram);
    EXPECT_EQ(said().back(), "Program Error!: Error 21 Variable \"bb\" not declared near line 4");
    EXPECT_EQ(programState().variables.find("bb"), -1);
}

TEST_F(Load, EachDeclarationDeclaresAfresh) {
    loadProgram("# aa\n# bb cc\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarNames, (std::vector<std::string>{"xreg", "bb", "cc"}));
}

TEST_F(Load, ASecondLoadForgetsTheNamesOfKeys) {
    loadProgram("# aa\nlbl init\nname a first\nend\n");
    EXPECT_EQ(caption(kKeyA), "first");
    loadProgram("# aa\nlbl init\nend\n");
    EXPECT_EQ(caption(kKeyA), "A");
}

TEST_F(Load, ASecondLoadLeavesTheValuesUntilItsDeclaration) {
    loadProgram("# aa bb\nlbl init\nend\nlbl a\naa = 5\nbb = 6\nend\n");
    run();
    loadProgram("no declaration\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarValues, (std::vector<double>{0.0, 5.0, 6.0}));
    EXPECT_EQ(variable("aa"), 0.0) << "the names are forgotten";
    loadProgram("# cc\nlbl init\nend\n");
    EXPECT_EQ(programState().variables.ProgramVarValues, (std::vector<double>{0.0, 0.0}));
}

TEST_F(Load, InitClearsFlagsVariablesAndMarks) {
    loadProgram("# aa\nlbl init\nend\nlbl a\naa = 5\nsf-3\nend\n");
    run();
    EXPECT_TRUE(bold(kKeyA));
    run(kInit);
    EXPECT_EQ(variable("aa"), 0.0);
    EXPECT_FALSE(programState().ProgramFlags.at(3));
    EXPECT_FALSE(bold(kKeyA));
}

TEST_F(Load, ANewProgramBeginsWithAllFlagsClear) {
    loadProgram("# aa\nlbl init\nend\nlbl a\nsf-0\nsf-3\nsf-18\nend\n");
    run();
    EXPECT_TRUE(programState().ProgramFlags.at(18));
    loadProgram("# bb\nlbl init\nbb = 1\nend\nlbl a\nbb = 2\nend\n");
    for (const bool flag : programState().ProgramFlags) {
        EXPECT_FALSE(flag);
    }
}

TEST_F(Load, AJumpToInitClearsFlagsAndMarks) {
    loadProgram("# aa\nlbl init\naa = aa + 1\nend\nlbl a\nsf-3\nglb init\nend\n");
    run();
    EXPECT_EQ(said(), Said{});
    EXPECT_FALSE(programState().ProgramFlags.at(3));
    EXPECT_FALSE(bold(kKeyA));
}

TEST_F(Load, ReadsAllKindsOfLineEndsAndMarks) {
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        const std::string program = "# aa" + end + "lbl init" + end + "end" + end + "lbl a" + end + "aa = 5" + end +
                                    "end" + end + "'" + end + "end";
        for (const std::string mark : {"", "\xEF\xBB\xBF"}) {
            start();
            loadProgram(mark + program);
            run();
            EXPECT_EQ(variable("aa"), 5.0);
            EXPECT_EQ(said(), Said{});
        }
    }
}

TEST_F(Load, CapitalsCountAsSmallLettersAndTabsAsBlanks) {
    loadProgram(
        "# AA\r\nLBL INIT\nNAME A Gr\xC3\x96\xC3\x9F"
        "e\nEND\n\tlbl gr\xC3\xB6\xC3\x9F"
        "e\n\t aa\t=  5\t\nEnd\n'\n");
    EXPECT_EQ(caption(kKeyA), std::string("gr\xF6\xDF"
                                          "e"));
    run();
    EXPECT_EQ(variable("aa"), 5.0);
}

TEST_F(Load, NoiseIsReadWithoutHarm) {
    std::string noise;
    unsigned seed = 7;
    for (int i = 0; i < 300000; ++i) {
        seed = seed * 1664525U + 1013904223U;
        noise += static_cast<char>(seed >> 24);
    }
    writeProgram(noise);
    loadFile();
    run();
    SUCCEED() << "whatever is said, the calculator stands";
    EXPECT_TRUE(s().modes.ProgramMode);
    enter("5");
    EXPECT_EQ(x(), "5");
}

TEST_F(Load, TwoHundredThousandLinesAreNoBurden) {
    std::string program = "# nn\nlbl init\nend\n";
    for (int i = 0; i < 199990; ++i) {
        program += "' a comment\n";
    }
    program += "lbl a\nnn = 0\nglb more\nend\nlbl more\nnn = nn 1 +\nif nn < 999 then\nglb more\nendif\nend\n'\n";
    loadProgram(program);
    const auto before = std::chrono::steady_clock::now();
    run();
    EXPECT_EQ(variable("nn"), 999.0);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5)) << "no scan for each jump";
}

TEST(ProgramTextFile, IndexesItsLabels) {
    const ProgramText text("lbl a\nend\nlbl  two words \nlbl a\nlbl last");
    EXPECT_EQ(text.count(), 5);
    EXPECT_EQ(text.label("a"), 1);
    EXPECT_EQ(text.label(" two words"), 3);
    EXPECT_EQ(text.label("last"), std::nullopt);
}

TEST(ProgramTextFile, CountsNoLinesOfTextsThatGoOn) {
    const ProgramText text("if 1 = 1\n\\text#_\nif more#_\nend of it\nendif\nlbl a\nend\n");
    const ProgramCounts counts = text.counts();
    EXPECT_EQ(counts.ifs, 1);
    EXPECT_EQ(counts.endifs, 1);
    EXPECT_EQ(counts.labels, 1);
    EXPECT_EQ(counts.ends, 2);
}

}  // namespace
}  // namespace tallyforge
