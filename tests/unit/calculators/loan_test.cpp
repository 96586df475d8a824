// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/loan.h"

#include "calculator_fixture.h"
#include "calculators/loan_dialog.h"

#include <cmath>

namespace tallyforge {
namespace {

/// What is left of a loan after its payments, one after the other.
double leftAfter(double rate, int periods, double payment, double amount) {
    for (int i = 0; i < periods; ++i) {
        amount = amount * (1.0 + rate) - payment;
    }
    return amount;
}

TEST(Loan, AScheduleOfPaymentsEndsAtNothing) {
    for (const double rate : {0.0, 1e-12, 0.0001, 0.01, 0.2, 1.5}) {
        for (const int periods : {1, 12, 60}) {
            const double payment = loanPayment(rate, periods, 1000.0);
            const double growth = std::pow(1.0 + rate, periods);
            EXPECT_NEAR(leftAfter(rate, periods, payment, 1000.0) / growth, 0.0, 1e-9) << rate << " " << periods;
            EXPECT_NEAR(loanAmount(rate, periods, payment), 1000.0, 1e-9);
            if (payment > 1000.0 * rate * (1.0 + 1e-6)) {
                EXPECT_NEAR(loanPeriods(rate, payment, 1000.0) / periods, 1.0, 1e-7) << rate << " " << periods;
                EXPECT_NEAR(loanRate(periods, payment, 1000.0), rate, 1e-9) << rate << " " << periods;
            }
        }
    }
}

TEST(Loan, ARateIsFoundWhereverOneExistsAboveMinusOne) {
    for (const double rate : {-0.99, -0.5, -0.01, -1e-6, 1e-6, 0.5, 10.0, 1000.0}) {
        for (const double periods : {0.5, 1.0, 7.0, 360.0}) {
            const double worth = -std::expm1(-periods * std::log1p(rate)) / rate;
            if (!std::isfinite(worth)) {
                continue;
            }
            const double found = loanRate(periods, 1.0, worth);
            const double again = -std::expm1(-periods * std::log1p(found)) / found;
            EXPECT_NEAR(again / worth, 1.0, 1e-12) << rate << " " << periods;
        }
    }
    EXPECT_EQ(loanRate(10, 100, 1000), 0.0);
}

TEST(Loan, APaymentBelowTheInterestNeverEnds) {
    EXPECT_THROW(static_cast<void>(loanPeriods(0.01, 5.0, 1000.0)), Failure);
    EXPECT_THROW(static_cast<void>(loanPeriods(0.01, 10.0, 1000.0)), Failure);
}

class LoanTest : public CalculatorTest {
protected:
    void openLoan(const std::function<void(DialogAtHand)>& hand) {
        LoanDialog dialog(calc, handOver);
        platform.inDialog = [&](Form& form) { hand(DialogAtHand(form)); };
        platform.showDialog(dialog);
        platform.inDialog = nullptr;
    }
    /// 1000 for a year in twelve payments at 12 percent.
    static void example(const DialogAtHand& hand) {
        giveAThousandForAYear(hand);
        hand.enter("12");
    }
    /// The same, but for the interest.
    static void giveAThousandForAYear(const DialogAtHand& hand) {
        for (const char* value : {"1000", "1", "12"}) {
            hand.enter(value);
        }
    }
    static void enterIn(const DialogAtHand& hand, int field, const char* value) {
        hand.clickOn("txtVal", field);
        hand.enter(value);
    }
};

TEST_F(LoanTest, TheExample) {
    openLoan([&](DialogAtHand hand) {
        hand.enter("1000");
        EXPECT_EQ(hand.field(0), "$1,000.00");
        hand.enter("1");
        hand.enter("12");
        EXPECT_EQ(hand.field(3), "12") << "payments remaining, derived";
        EXPECT_EQ(hand.focus(), "txtVal(4)");
        EXPECT_FALSE(hand.at("txtVal", 7).visible);
        hand.enter("12");
        EXPECT_EQ(hand.field(6), "$88.85");
        EXPECT_EQ(hand.field(7), "$1,066.20");
        EXPECT_TRUE(hand.at("txtVal", 7).visible);
        EXPECT_EQ(hand.field(4), "%1200.000");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "12 %");
        EXPECT_EQ(hand.at("lblUnits", 5).text, "1 %");
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(hand.at("optCalc", i).visible, i == 0 || i == 4 || i == 6) << i;
        }
        hand.enter();
    });
    const std::vector<double> lines = posted();
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(lines[4], 12.0) << "the plain rate";
    EXPECT_NEAR(lines[6], 88.8487886783, 1e-9);
    EXPECT_NEAR(lines[7], 1066.2, 1e-9) << "of the rounded payment";
}

TEST_F(LoanTest, XIsTheAmountUnderShift) {
    calc.s.stack.Xreg = "1000";
    calc.s.entry.EntryOpen = true;
    calc.commit.deliverX();
    calc.s.modifiers.ModifierMask = kShift;
    handOver.EnterDialog();
    openLoan([&](DialogAtHand hand) {
        EXPECT_EQ(hand.field(0), "$1,000.00");
        EXPECT_EQ(hand.focus(), "txtVal(1)");
    });
}

TEST_F(LoanTest, TheRatesPatternKeepsItsScale) {
    openLoan([&](DialogAtHand hand) {
        hand.clickOn("txtVal", 4);
        hand.enter("6.5");
        EXPECT_EQ(hand.field(4), "%650.000");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "6.5 %");
    });
}

TEST_F(LoanTest, EachOfTheFourIsFoundFromTheOthers) {
    openLoan([&](DialogAtHand hand) {
        hand.clickOn("txtVal", 1);
        hand.enter("1");
        hand.enter("12");
        hand.clickOn("txtVal", 4);
        hand.enter("12");
        hand.clickOn("txtVal", 6);
        hand.enter("88.85");
        EXPECT_EQ(hand.field(0), "$1,000.01");
    });
    openLoan([&](DialogAtHand hand) {
        giveAThousandForAYear(hand);
        hand.clickOn("txtVal", 6);
        hand.enter("88.8487886783");
        hand.enter();
    });
    EXPECT_NEAR(posted().at(4), 12.0, 1e-9);
    openLoan([&](DialogAtHand hand) {
        hand.enter("1000");
        hand.clickOn("txtVal", 2);
        hand.enter("12");
        hand.clickOn("txtVal", 4);
        hand.enter("12");
        hand.clickOn("txtVal", 6);
        hand.enter("88.85");
        EXPECT_EQ(hand.field(3), "12");
        EXPECT_EQ(hand.field(1), "1");
    });
}

TEST_F(LoanTest, APeriodicInterestNeedsNoYears) {
    openLoan([&](DialogAtHand hand) {
        hand.enter("1000");
        hand.clickOn("txtVal", 3);
        hand.enter("12");
        EXPECT_EQ(platform.boxes.at(0).kind, BoxKind::Notice);
        expectBox("Missing Parameter", "At least payments per year is required!");
        hand.clickOn("txtVal", 5);
        hand.enter("1");
        EXPECT_EQ(hand.field(6), "$88.85");
    });
}

TEST_F(LoanTest, PeriodsAndYearsTellThePaymentsAYear) {
    openLoan([&](DialogAtHand hand) {
        hand.clickOn("txtVal", 1);
        hand.enter("2");
        hand.clickOn("txtVal", 3);
        hand.enter("24");
        EXPECT_EQ(hand.field(2), "12");
    });
}

TEST_F(LoanTest, OfYearsPaymentsAYearAndPeriodsTheThirdFollowsInAnyOrder) {
    enum { kYears = 1, kPpy, kPeriods };
    const auto given = [&](int first, const char* one, int second, const char* other) {
        std::vector<std::string> fields;
        openLoan([&](DialogAtHand hand) {
            enterIn(hand, first, one);
            enterIn(hand, second, other);
            fields = {hand.field(kYears), hand.field(kPpy), hand.field(kPeriods)};
        });
        platform.boxes.clear();
        return fields;
    };
    const std::vector<std::string> all{"5", "12", "60"};
    EXPECT_EQ(given(kYears, "5", kPpy, "12"), all);
    EXPECT_EQ(given(kPpy, "12", kYears, "5"), all);
    EXPECT_EQ(given(kYears, "5", kPeriods, "60"), all);
    EXPECT_EQ(given(kPeriods, "60", kYears, "5"), all);
    EXPECT_EQ(given(kPpy, "12", kPeriods, "60"), all);
    EXPECT_EQ(given(kPeriods, "60", kPpy, "12"), all);
}

TEST_F(LoanTest, InterestsOfAYearAndOfAPeriodFollowFromEachOther) {
    enum { kPpy = 2, kApr = 4, kRate = 5 };
    const auto given = [&](int first, const char* one, int second, const char* other) {
        std::vector<std::string> fields;
        openLoan([&](DialogAtHand hand) {
            enterIn(hand, first, one);
            enterIn(hand, second, other);
            fields = {hand.at("lblUnits", kApr).text, hand.at("lblUnits", kRate).text};
        });
        return fields;
    };
    const std::vector<std::string> all{"6 %", "0.5 %"};
    EXPECT_EQ(given(kPpy, "12", kApr, "6"), all);
    EXPECT_EQ(given(kApr, "6", kPpy, "12"), all);
    EXPECT_EQ(given(kPpy, "12", kRate, "0.5"), all);
    EXPECT_EQ(given(kRate, "0.5", kPpy, "12"), all);
}

TEST_F(LoanTest, ANegativeInterestIsRefused) {
    openLoan([&](DialogAtHand hand) {
        giveAThousandForAYear(hand);
        hand.clickOn("txtVal", 6);
        hand.enter("50");
        expectBox("", "Negative Interest!");
        EXPECT_EQ(hand.field(4), "");
        EXPECT_EQ(hand.field(5), "");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
        hand.clickOn("txtVal", 4);
        hand.enter("12");
        EXPECT_EQ(hand.field(6), "$88.85") << "the payment, given last, is found from another interest";
    });
}

TEST_F(LoanTest, APaymentBelowTheInterestShowsItsBox) {
    openLoan([&](DialogAtHand hand) {
        hand.enter("1000");
        hand.clickOn("txtVal", 2);
        hand.enter("12");
        hand.clickOn("txtVal", 4);
        hand.enter("12");
        hand.clickOn("txtVal", 6);
        hand.enter("5");
        expectBox("CmpdInt Error!", "Error number 5");
        EXPECT_EQ(hand.field(0), "$1,000.00") << "what was given stays";
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
    });
}

TEST_F(LoanTest, AZeroAmountStartsAnewAndAZeroRateIsANumber) {
    openLoan([&](DialogAtHand hand) {
        giveAThousandForAYear(hand);
        hand.enter("0");
        EXPECT_EQ(hand.field(6), "$83.33");
        hand.clickOn("cmdClear");
        EXPECT_EQ(hand.at("cmdClear").text, "Clear");
        EXPECT_EQ(hand.at("cmdClear").tip, " Reset Values ");
        hand.enter("1000");
        hand.enter("0");
        EXPECT_EQ(hand.field(0), "");
        EXPECT_TRUE(platform.boxes.empty());
    });
}

TEST_F(LoanTest, UseGivesOneValueAnewAndSolvesTheSameAgain) {
    openLoan([&](DialogAtHand hand) {
        example(hand);
        hand.clickOn("optCalc", 0);
        EXPECT_EQ(hand.field(0), "");
        EXPECT_FALSE(hand.at("optCalc", 4).visible);
        hand.enter("2000");
        EXPECT_EQ(hand.field(6), "$177.70") << "the payment again";
        hand.clickOn("optCalc", 4);
        hand.enter("0");
        EXPECT_EQ(hand.field(6), "$166.67");
        hand.clickOn("optCalc", 6);
        hand.enter("100");
        EXPECT_EQ(hand.field(0), "$1,200.00") << "the payment is given, so the amount is found";
        hand.clickOn("optCalc", 0);
        hand.enter("600");
        EXPECT_EQ(hand.field(6), "$50.00") << "and for the amount the payment";
    });
}

TEST_F(LoanTest, EnterOnABlankFieldAsksForWhatIsNeeded) {
    openLoan([&](DialogAtHand hand) {
        giveAThousandForAYear(hand);
        platform.answers.push_back(Answer::Ok);
        hand.enter();
        EXPECT_EQ(platform.boxes.at(0).buttons, BoxButtons::OkCancel);
        expectBox("Missing Parameter -- Solving for APR", "The amount of Payment is required!");
        EXPECT_EQ(hand.focus(), "txtVal(6)");
        hand.clickOn("txtVal", 4);
        platform.answers.push_back(Answer::Cancel);
        hand.enter();
        EXPECT_EQ(hand.focus(), "txtVal(4)");
        platform.boxes.clear();
        hand.clickOn("txtVal", 6);
        hand.enter();
        expectBox("Missing Parameter",
                  "The length of loan AND payments per year, OR,\n payments remaining, \nor APR is required!");
    });
    openLoan([&](DialogAtHand hand) {
        hand.enter("1000");
        hand.clickOn("txtVal", 4);
        hand.enter();
        expectBox("Missing Parameter -- Solving fo Amount of loan",
                  "One, but not both is required:\nlength of loan\npayments per year");
        hand.clickOn("cmdClear");
        hand.clickOn("txtVal", 2);
        hand.enter("12");
        hand.clickOn("txtVal", 4);
        hand.enter("12");
        hand.clickOn("txtVal", 6);
        hand.enter("88.85");
        hand.clickOn("txtVal", 0);
        hand.enter();
        expectBox("Missing Parameter -- Solving for Amount of loan",
                  "When payments remaining is blank, both\nLength of loan and payments per year\nare required!");
    });
}

}  // namespace
}  // namespace tallyforge
