// SPDX-License-Identifier: GPL-3.0-or-later
//
// The conversion dialog under a hand: search, keyboard, names for the ear, help.
#include "dialogs/conversion_dialog.h"

#include "convert/conversion_tables.h"
#include "convert/find_unit.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "support/bank_fixture.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace tallyforge;

class ConversionDialogTest : public BankAtHand {
protected:
    /// Shows the dialog of a table with X in it, lets `acts` play, and returns what was chosen.
    std::optional<ConversionChoice> show(const ConversionTable& table, double x,
                                         const std::function<void(ConversionDialog&)>& acts,
                                         std::optional<UnitPair> former = std::nullopt) {
        if (!dialog_ || dialog_->title != table.title) {
            dialog_ = std::make_unique<ConversionDialog>(table, calc(), 1400 + table.key);
        }
        platform.inDialog = [&](Form& form) {
            form.open = true;
            acts(static_cast<ConversionDialog&>(form));
            form.open = false;
        };
        return dialog_->ask({.x = x, .former = former});
    }
    static void key(Form& dialog, int keyCode, int character = 0) {
        pressKey(dialog, {.keyCode = keyCode, .character = character});
        releaseKey(dialog, {.keyCode = keyCode});
    }
    static void typeIn(Form& dialog, std::string_view text) {
        for (const char each : text) {
            const auto byte = static_cast<unsigned char>(each);
            key(dialog, keyCodeOf(byte), byte);
        }
    }
    static std::vector<std::string> visibleFrom(const ConversionDialog& dialog) {
        std::vector<std::string> captions;
        for (const Control* control : dialog.controls()) {
            if (control->visible && control->group.ends_with("From")) {
                captions.push_back(control->text);
            }
        }
        return captions;
    }
    static std::string focused(const Form& dialog) { return dialog.focus == nullptr ? "" : dialog.focus->fullName(); }

private:
    std::unique_ptr<ConversionDialog> dialog_;
};

TEST_F(ConversionDialogTest, LettersEnterLettersEnterEnterConverts) {
    const auto choice = show(kLengthTable, 12, [](ConversionDialog& dialog) {
        EXPECT_EQ(focused(dialog), "txtFind");
        typeIn(dialog, "inch");
        EXPECT_EQ(visibleFrom(dialog), std::vector<std::string>{"inch"});
        key(dialog, kKeyEnter, 13);
        EXPECT_EQ(dialog.txtFind.text, "");
        EXPECT_TRUE(dialog.find("OptLength", 16)->checked);
        EXPECT_EQ(visibleFrom(dialog).size(), 59U);
        typeIn(dialog, "millimeters");
        key(dialog, kKeyEnter, 13);
        EXPECT_EQ(dialog.lblResult.text, "12 inch = 304.8 mm");
        EXPECT_TRUE(dialog.open);
        key(dialog, kKeyEnter, 13);
        EXPECT_FALSE(dialog.open);
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->pair, (UnitPair{0, 16, 12}));
}

TEST_F(ConversionDialogTest, TheSearchKnowsSymbolsPluralsAndOtherNames) {
    struct Row {
        const ConversionTable& table;
        std::string_view typed;
        std::string_view found;
    };
    const Row rows[] = {{kAreaTable, "sqft", "sqr feet"},
                        {kAreaTable, "sq ft", "sqr feet"},
                        {kAreaTable, "ft2", "sqr feet"},
                        {kDensityTable, "kg/m3", "kilogram/meter\xB3"},
                        {kPressureTable, "psi", "pound (force) per inches\xB2"},
                        {kPressureTable, "PSI", "pound (force) per inches\xB2"},
                        {kVolumeTable, "litre", "liter"},
                        {kVolumeTable, "Litres", "liter"},
                        {kLengthTable, "meter", "meter"},
                        {kLengthTable, "inches", "inch"},
                        {kLengthTable, "feet", "foot"},
                        {kLengthTable, "m", "meter"},
                        {kMassTable, "lbs", "pound (a)"},
                        {kSpeedTable, "knots", "nautical miles per hour"},
                        {kEnergyTable, "kWh", "kilowatt hour"},
                        {kTemperatureTable, "degF", "Fahrenheit"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed);
        show(row.table, 1, [&](ConversionDialog& dialog) {
            typeIn(dialog, row.typed);
            key(dialog, kKeyEnter, 13);
            std::string chosen;
            for (const Control* control : dialog.controls()) {
                chosen = control->checked && control->group.ends_with("From") ? control->text : chosen;
            }
            EXPECT_EQ(chosen, row.found);
        });
    }
}

TEST_F(ConversionDialogTest, HiddenButtonsKeepTheirIndexAndComeBack) {
    show(kPowerTable, 1, [](ConversionDialog& dialog) {
        typeIn(dialog, "watt");
        EXPECT_FALSE(dialog.find("OptPower", 0)->visible);
        EXPECT_TRUE(dialog.find("OptPower", 4)->visible);
        EXPECT_TRUE(dialog.find("OptPower", 33)->visible);
        for (int i = 0; i < 4; ++i) {
            key(dialog, kKeyBackspace, 8);
        }
        EXPECT_TRUE(dialog.find("OptPower", 0)->visible);
    });
    show(kPowerTable, 1, [](ConversionDialog& dialog) {
        EXPECT_EQ(dialog.txtFind.text, "");
        typeIn(dialog, "nothing at all");
        EXPECT_TRUE(visibleFrom(dialog).empty());
        key(dialog, kKeyEnter, 13);
        EXPECT_TRUE(dialog.open);
    });
    show(kPowerTable, 1, [](ConversionDialog& dialog) { EXPECT_EQ(visibleFrom(dialog).size(), 19U); });
}

TEST_F(ConversionDialogTest, TheFormerUnitCanBeTypedAgain) {
    const auto choice = show(
        kLengthTable, 1,
        [](ConversionDialog& dialog) {
            typeIn(dialog, "mm");
            key(dialog, kKeyEnter, 13);
            typeIn(dialog, "in");
            key(dialog, kKeyEnter, 13);
            key(dialog, kKeyEnter, 13);
        },
        UnitPair{0, 16, 12});
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->pair, (UnitPair{0, 12, 16}));
}

TEST_F(ConversionDialogTest, AClickInOneGroupClearsTheOthers) {
    const auto choice = show(kMagneticsTable, 1, [](ConversionDialog& dialog) {
        click(dialog, *dialog.find("OptMF", 0));
        click(dialog, *dialog.find("OptMF", 8));
        click(dialog, *dialog.find("OptIndn", 0));
        EXPECT_FALSE(dialog.find("OptMF", 0)->checked);
        EXPECT_FALSE(dialog.find("OptMF", 8)->checked);
        EXPECT_TRUE(dialog.find("OptMF", 9)->enabled);
        EXPECT_EQ(dialog.lblResult.text, "");
        click(dialog, *dialog.find("OptIndn", 4));
        EXPECT_EQ(dialog.lblResult.text, "1 Gausses = 0.0001 T");
        click(dialog, dialog.cmdOK);
    });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->pair, (UnitPair{2, 0, 3}));
}

TEST_F(ConversionDialogTest, TabWalksFromToAndKeysAndArrowsStayInTheBank) {
    show(
        kForceTable, 1,
        [](ConversionDialog& dialog) {
            const auto tab = [&] {
                key(dialog, kKeyTab, 9);
                return focused(dialog);
            };
            EXPECT_EQ(tab(), "OptForce(2)");
            EXPECT_EQ(tab(), "OptForce(16)");
            dialog.setFocus(*dialog.find("OptForce", 2));
            key(dialog, kKeyDown);
            EXPECT_EQ(focused(dialog), "OptForce(3)");
            EXPECT_TRUE(dialog.find("OptForce", 3)->checked);
            key(dialog, kKeyDown);
            key(dialog, kKeyDown);
            EXPECT_EQ(focused(dialog), "OptForce(6)") << "the twin of the To unit is passed over";
            key(dialog, kKeyUp);
            EXPECT_EQ(focused(dialog), "OptForce(4)");
            key(dialog, 'S', 's');
            EXPECT_EQ(focused(dialog), "OptForce(8)");
            key(dialog, 'K', 'k');
            EXPECT_EQ(focused(dialog), "OptForce(9)");
            key(dialog, 'K', 'k');
            EXPECT_EQ(focused(dialog), "OptForce(7)");
            key(dialog, kKeyUp);
            EXPECT_EQ(dialog.txtFind.text, "") << "letters on a button are no search";
        },
        UnitPair{0, 2, 5});
}

TEST_F(ConversionDialogTest, TabStopsAtTheChosenUnitOrAtTheFirstThatIsFound) {
    const auto stops = [](const ConversionDialog& dialog) {
        std::vector<std::string> names;
        for (const Control* control : dialog.controls()) {
            if (control->kind == ControlKind::Option && control->name == "OptForce" && control->tabStop) {
                names.push_back(control->fullName());
            }
        }
        return names;
    };
    using Names = std::vector<std::string>;
    show(kForceTable, 1, [&](ConversionDialog& dialog) {
        EXPECT_EQ(stops(dialog), (Names{"OptForce(0)", "OptForce(21)"})) << "nothing is chosen yet";
        click(dialog, *dialog.find("OptForce", 2));
        EXPECT_EQ(stops(dialog), (Names{"OptForce(2)", "OptForce(21)"}));
        click(dialog, *dialog.find("OptForce", 16));
        EXPECT_EQ(stops(dialog), (Names{"OptForce(2)", "OptForce(16)"}));
        dialog.setFocus(dialog.txtFind);
        typeIn(dialog, "kilo");
        const auto found = visibleFrom(dialog);
        ASSERT_FALSE(found.empty());
        for (const std::string& name : stops(dialog)) {
            const int index = std::stoi(name.substr(name.find('(') + 1));
            EXPECT_TRUE(dialog.find("OptForce", index)->visible) << name;
        }
        EXPECT_NE(stops(dialog), (Names{"OptForce(2)", "OptForce(16)"}));
        typeIn(dialog, " nothing");
        for (int i = 0; i < 12; ++i) {
            key(dialog, kKeyBackspace, 8);
        }
        EXPECT_EQ(stops(dialog), (Names{"OptForce(2)", "OptForce(16)"}));
        click(dialog, dialog.cmdSwap);
        EXPECT_EQ(stops(dialog), (Names{"OptForce(5)", "OptForce(19)"}));
    });
}

TEST_F(ConversionDialogTest, EnterIsOkAndEscapeIsCancel) {
    const UnitPair pair{0, 2, 5};
    const auto enter = [](ConversionDialog& dialog) {
        dialog.setFocus(*dialog.find("OptForce", 2));
        key(dialog, kKeyEnter, 13);
        EXPECT_FALSE(dialog.open);
    };
    EXPECT_TRUE(show(kForceTable, 1, enter, pair));
    const auto escape = [](ConversionDialog& dialog) {
        key(dialog, kKeyEscape, 27);
        EXPECT_FALSE(dialog.open);
    };
    EXPECT_FALSE(show(kForceTable, 1, escape, pair));
}

TEST_F(ConversionDialogTest, TheRightButtonOpensTheKeysTopic) {
    show(kForceTable, 1, [](ConversionDialog& dialog) {
        EXPECT_EQ(dialog.helpTopic, 1423);
        rightClick(dialog, *dialog.find("OptForce", 3), 0);
        rightClick(dialog, dialog.cmdOK, 0);
    });
    EXPECT_EQ(platform.helpTopics, (std::vector<int>{1423, 1423}));
}

TEST_F(ConversionDialogTest, KeysHaveTheirCaptionsAndTips) {
    show(kLengthTable, 1, [](ConversionDialog& dialog) {
        EXPECT_EQ(dialog.cmdOK.text, "OK");
        EXPECT_EQ(dialog.cmdOK.tip, "Use Selected Units");
        EXPECT_EQ(dialog.cmdCancel.text, "Cancel");
        EXPECT_EQ(dialog.cmdCancel.tip, "Return with no Change");
        EXPECT_EQ(dialog.cmdDef.text, "&Default");
        EXPECT_EQ(dialog.OptExact[0].text, "Table");
        EXPECT_EQ(dialog.OptExact[1].text, "Exact");
        EXPECT_TRUE(dialog.OptExact[0].checked);
    });
}

// What every dialog of the family owes: names for the ear, tips, columns that do not overlap.
TEST_F(ConversionDialogTest, EveryButtonHasANameATipAndAPlaceOfItsOwn) {
    for (const ConversionTable* table : conversionTables()) {
        SCOPED_TRACE(table->title);
        show(*table, 1, [&](ConversionDialog& dialog) {
            std::set<std::string> spoken;
            std::vector<const Control*> shown;
            for (const Control* control : dialog.controls()) {
                const Place& place = control->place;
                if (control->visible) {
                    shown.push_back(control);
                    EXPECT_LE(place.left + place.width, dialog.place.width) << control->fullName();
                    EXPECT_LE(place.top + place.height, dialog.place.height) << control->fullName();
                }
                if (control->group.empty() || !control->visible) {
                    continue;
                }
                EXPECT_TRUE(spoken.insert(control->group + control->spoken).second) << control->spoken;
                EXPECT_TRUE(control->spoken.starts_with("From ") || control->spoken.starts_with("To "));
                EXPECT_NE(control->tip.find(" ("), std::string::npos) << control->tip;
            }
            for (std::size_t i = 0; i < shown.size(); ++i) {
                for (std::size_t j = i + 1; j < shown.size(); ++j) {
                    const Place& a = shown[i]->place;
                    const Place& b = shown[j]->place;
                    const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left ||
                                       a.top + a.height <= b.top || b.top + b.height <= a.top;
                    EXPECT_TRUE(apart) << shown[i]->fullName() << " over " << shown[j]->fullName();
                }
            }
            // 1366 x 768 pixels, ten twips each, without the desktop's bars.
            EXPECT_LE(dialog.place.width, 13660);
            EXPECT_LE(dialog.place.height, 7000);
        });
    }
}

TEST_F(ConversionDialogTest, CtrlFFindsAUnitOnAnyKeypadAndConvertsWithIt) {
    std::vector<std::string> forms;
    platform.inDialog = [&](Form& dialog) {
        forms.push_back(dialog.name);
        dialog.open = true;
        if (dialog.name == "frmFindUnit") {
            typeIn(dialog, "psi to bar");
            key(dialog, kKeyEnter, 13);
        } else {
            EXPECT_EQ(dialog.find("lblResult")->text, "30 pound (force) per inches\xB2 = 2.06842716 bar");
            click(dialog, *dialog.find("cmdOK"));
        }
        dialog.open = false;
    };
    choose(form().mnuTrig);
    type("30");
    press('F', 6, kCtrl);
    EXPECT_EQ(forms, (std::vector<std::string>{"frmFindUnit", "frmPressure"}));
    EXPECT_EQ(x(), "2.06842716");
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Trigonometry);
    EXPECT_EQ(s().stack.depth(), 1);
    press(kKeyF10);
    EXPECT_EQ(x(), "0.142613030540856");
}

TEST_F(ConversionDialogTest, ArrowsWalkTheFoundUnitsWhileTheLettersStay) {
    platform.inDialog = [&](Form& dialog) {
        dialog.open = true;
        const ListRows& rows = *dialog.find("lstUnits")->rows;
        typeIn(dialog, "inch");
        ASSERT_GT(rows.count(), 2U);
        EXPECT_EQ(rows.selected(), 0U);
        key(dialog, kKeyUp);
        EXPECT_EQ(rows.selected(), 0U);
        key(dialog, kKeyDown);
        EXPECT_EQ(rows.selected(), 1U);
        key(dialog, kKeyDown);
        key(dialog, kKeyUp);
        EXPECT_EQ(rows.selected(), 1U);
        for (std::size_t row = 0; row < rows.count() + 2; ++row) {
            key(dialog, kKeyDown);
        }
        EXPECT_EQ(rows.selected(), rows.count() - 1);
        EXPECT_EQ(dialog.find("txtFind")->text, "inch");
        EXPECT_EQ(focused(dialog), "txtFind");
        key(dialog, kKeyEscape, 27);
    };
    put({"4"});
    press('F', 6, kCtrl);
    EXPECT_EQ(x(), "4");
}

TEST_F(ConversionDialogTest, LeftAndRightGoFromColumnToColumn) {
    show(kAreaTable, 1, [](ConversionDialog& dialog) {
        Control& first = *dialog.find("OptArea", 0);
        click(dialog, first);
        key(dialog, kKeyRight);
        ASSERT_NE(dialog.focus, &first);
        EXPECT_EQ(dialog.focus->place.top, first.place.top);
        EXPECT_GT(dialog.focus->place.left, first.place.left);
        EXPECT_TRUE(dialog.focus->checked);
        key(dialog, kKeyLeft);
        EXPECT_EQ(dialog.focus, &first);
        key(dialog, kKeyLeft);
        EXPECT_EQ(dialog.focus, &first) << "there is none to the left";
    });
}

TEST_F(ConversionDialogTest, CtrlFLeftWithEscapeChangesNothing) {
    platform.inDialog = [&](Form& dialog) {
        dialog.open = true;
        key(dialog, kKeyEscape, 27);
        EXPECT_FALSE(dialog.open);
    };
    put({"4"});
    const auto before = tape();
    press('F', 6, kCtrl);
    EXPECT_EQ(tape(), before);
    EXPECT_EQ(x(), "4");
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(platform.dialogs, std::vector<std::string>{"frmFindUnit"});
}

TEST_F(ConversionDialogTest, TheKeyboardGoesBackToTheEntryLineAlsoWhereNothingIsConverted) {
    form().setFocus(form().cmdDown);
    calc().keypads().PerformConvertFn();
    EXPECT_EQ(form().focus, &form().txtXreg);
    press(kKeyF12);
    form().setFocus(form().cmdDown);
    calc().keypads().FindUnit();
    EXPECT_EQ(form().focus, &form().txtXreg);
}

TEST_F(ConversionDialogTest, CtrlFRestsInTheModes) {
    press(kKeyF12);
    press('F', 6, kCtrl);
    press(kKeyF12);
    EXPECT_TRUE(platform.dialogs.empty());
}

TEST_F(ConversionDialogTest, TheListOfFoundUnitsHasTheBestFirst) {
    FoundRows rows;
    rows.search("");
    EXPECT_EQ(rows.count(), 382U);
    rows.search("meter");
    EXPECT_EQ(rows.row(0), "meter (Length)");
    rows.search("psi to bar");
    EXPECT_EQ(rows.row(0), "pound (force) per inches\xB2 to bar (Pressure)");
    rows.search("psi to meter");
    for (std::size_t i = 0; i < rows.count(); ++i) {
        EXPECT_NE(rows.row(i).find("Pressure"), std::string::npos) << rows.row(i);
    }
    rows.search("no such unit");
    EXPECT_EQ(rows.count(), 0U);
    EXPECT_EQ(rows.chosen(), nullptr);
}
