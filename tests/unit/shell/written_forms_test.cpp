// SPDX-License-Identifier: GPL-3.0-or-later
//
// How every form stands: places, fonts, captions, tips, order, and what each control hears. The
// text of each is in tests/forms.
#include "calculators/pictures.h"
#include "engine/key_names.h"
#include "reference/charts.h"
#include "support/all_dialogs.h"
#include "support/calculator_fixture.h"
#include "support/written_form.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <vector>

namespace tallyforge {
namespace {

class WrittenForms : public ::testing::Test, protected CalculatorAtHand {
protected:
    void addView(std::string_view words) {
        lines.push_back("-- " + std::string(words));
        lines.push_back(formLine(form()));
        for (const Control* control : form().controls()) {
            const std::string line = controlLine(*control);
            std::string& known = seen[control];
            if (known != line) {
                lines.push_back(line);
                known = line;
            }
        }
    }
    Lines lines;
    std::map<const Control*, std::string> seen;
};

TEST_F(WrittenForms, TheMainFormStandsInEachViewAsItIsWritten) {
    addView("as it starts");
    clickWith(kCtrl, form().cmdDigits);
    addView("tall");
    clickWith(kAlt, form().cmdView);
    addView("tall, with y");
    clickWith(kCtrl, form().cmdView);
    addView("tall, with y and last x");
    form().fill(900, 2000);
    addView("in a window that is larger");
    form().fill(0, 5000);
    addView("in a very wide window");
    choose(form().cmdView);
    addView("extended, in a very wide window");
    form().fill(400, 1000);
    addView("extended, in a window that is larger");
    form().fill(0, 0);
    addView("extended");
    expectAsWritten("main_form", lines);
}

TEST_F(WrittenForms, TheKeypadsHaveTheKeysThatAreWritten) {
    for (const KeypadTable* table : keypadTables()) {
        calc().keypads().ShowKeypad(table->id);
        enter("7");
        for (std::uint8_t mask = 0; mask < 8; ++mask) {
            if (mask != 0) {
                holdModifiers(form(), mask);
            }
            lines.push_back("-- keypad " + std::to_string(static_cast<int>(table->id)) + ", keys held " +
                            std::to_string(mask) + ", " + written::quoted(form().lineFor(nullptr)));
            for (const Control& key : form().cmdFunctions) {
                const std::string words = key.words ? key.words() : "";
                const std::string line = written::quoted(key.text, key.font.face) + " " + written::font(key.font) +
                                         written::properties(key) + (key.idle && key.idle() ? ", idle " : " ") +
                                         written::quoted(words) + " " + written::quoted(form().lineFor(&key));
                std::string& known = seen[&key];
                if (known != line) {
                    lines.push_back(key.fullName() + " " + line);
                    known = line;
                }
            }
            if (mask != 0) {
                releaseModifiers(form());
            }
        }
    }
    expectAsWritten("keypads", lines);
}

TEST_F(WrittenForms, EachDialogOpensAsItIsWritten) {
    // Tips and the about box are opened from the menus, the others from the bank.
    writeFile("TIPOFDAY.TXT", "A tip\n");
    platform.inDialog = [this](Form& dialog) {
        writeForm(dialog, lines);
        closeForm(dialog);
    };
    choose(form().mnuTip);
    choose(form().mnuAbout);
    openAllDialogs([this](Form& dialog) { writeForm(dialog, lines); });
    for (std::string& line : lines) {
        if (const auto version = line.find("\"Version "); version != line.npos) {
            line.erase(version + 1, line.find("  by", version) - version - 1);
        }
    }
    expectAsWritten("dialogs", lines);
}

TEST_F(WrittenForms, EachChartOpensAsItIsWritten) {
    std::filesystem::copy(std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data/charts", platform.folder / "charts");
    platform.inDialog = [this](Form& dialog) {
        writeForm(dialog, lines);
        Control& rows = *dialog.find("lstRows");
        for (const std::size_t row : {rows.rows->count() / 2, rows.rows->count() - 1}) {
            clickRow(dialog, rows, row);
            lines.push_back("row " + std::to_string(row) + " " + written::quoted(rows.rows->row(row)));
            writePicture(dialog.find("picFigure")->drawing, lines);
        }
        closeForm(dialog);
    };
    for (const ChartId id : {ChartId::Nails, ChartId::SteelWire, ChartId::WoodScrews, ChartId::PipeThreads,
                             ChartId::FineThreads, ChartId::CoarseThreads, ChartId::Colours}) {
        showChart(calc(), id);
    }
    expectAsWritten("charts", lines);
}

class PrintedPages : public WrittenForms {
protected:
    void addPage() {
        for (const PrintLine& line : platform.printed) {
            lines.push_back(written::font(line.font) + " " + written::quoted(line.text, line.font.face));
        }
        for (const Drawing& picture : platform.printedPictures) {
            writePicture(picture, lines);
        }
    }
};

TEST_F(PrintedPages, TheTapeAndTheRegistersArePrintedAsTheyAreWritten) {
    for (const char* line : {"12.5", "-3", "1e30", "0"}) {
        enter(line);
    }
    type("+");
    type("7");
    clickWith(kShift, form().cmdSTO);
    calc().s.memory.Registers.at(24) = 1.5;
    choose(form().mnuPrint);
    addPage();
    expectAsWritten("printed_tape", lines);
}

TEST_F(PrintedPages, ChartsArePrintedAsTheyAreWritten) {
    std::filesystem::copy(std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data/charts", platform.folder / "charts");
    platform.inDialog = [this](Form& dialog) {
        pressKey(dialog, {.keyCode = 'P', .shift = kCtrl, .character = 'P' - '@'});
        platform.printedPictures.clear();
        addPage();
        closeForm(dialog);
    };
    for (const ChartId id : {ChartId::Nails, ChartId::PipeThreads, ChartId::Colours}) {
        showChart(calc(), id);
    }
    expectAsWritten("printed_charts", lines);
}

TEST_F(PrintedPages, ADialogIsPrintedAsItIsWritten) {
    platform.inDialog = [this](Form& dialog) {
        for (const char* value : {"20", "2"}) {
            strikeAll(dialog, value);
            strike(dialog, kKeyEnter, 13, 0);
        }
        pressKey(dialog, {.keyCode = 'P', .shift = kCtrl, .character = 'P' - '@'});
        addPage();
        closeForm(dialog);
    };
    calc().keypads().ShowKeypad(Keypad::Engineering);
    choose(form().cmdFunctions.at(key::OhmsLaw));
    expectAsWritten("printed_dialog", lines);
}

TEST(WrittenPictures, TheNetworksRootsAndBalancesAreDrawnAsTheyAreWritten) {
    Lines lines;
    const std::vector<std::string> elements{"Rp", "Ls", "Cp", "rs", "Cs", "Lp"};
    for (const std::size_t count : {0U, 1U, 3U, 6U}) {
        writePicture(ladderPicture(std::span(elements).first(count)), lines);
    }
    const std::vector<std::string> many{"Rp", "Ls", "Cp", "rs", "Rp", "Ls", "Cp", "Cs", "Lp"};
    writePicture(ladderPicture(many), lines);
    const std::vector<std::complex<double>> roots{{3.0, 4.0}, {3.0, -4.0}, {-5.0, 0.0}};
    writePicture(rootsPicture(roots), lines);
    writePicture(rootsPicture(std::vector<std::complex<double>>{{0.0, 0.0}}), lines);
    writePicture(balancePicture(0.01, 36.0), lines);
    writePicture(balancePicture(0.0, 12.0), lines);
    expectAsWritten("drawn_results", lines);
}

}  // namespace
}  // namespace tallyforge
