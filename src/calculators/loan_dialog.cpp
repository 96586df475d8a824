// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/loan_dialog.h"

#include "calculators/loan.h"
#include "calculators/pictures.h"
#include "dialogs/dialog_hand_over.h"
#include "dialogs/tape_posting.h"
#include "engine/engine.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

struct LoanField {
    std::string_view caption;
    std::string_view tip;
    std::string_view pattern;  ///< how the field shows its number; "%" in front scales it by 100
    std::string_view label;    ///< behind the field
};
constexpr std::array<LoanField, LoanDialog::kFields> kLoanFields{{
    {"Amount of loan", "or, total amount due", "$#,###.00", ""},
    {"length of loan", "length of loan in years (lol)", "", "years"},
    {"payments per year", "number of payments per year (ppy)", "", ""},
    {"payments remaining", "or, total number of compounding periods (ppy x lol)", "", ""},
    {"APR", "annual interest rate", "%0.000", ""},
    {"periodic interest", "APR ÷ ppy"_t, "%0.0000", ""},
    {"Payment", "periodic payment", "$###.00", ""},
    {"Total of Payments", "Payment x n", "$#,###.00", ""},
}};

constexpr CalculatorLook kLook{.form = "frmCmpdInt",
                               .title = "Compound Interest Calculator",
                               .name = "Compound Interest",
                               .procedure = "CmpdInt",
                               .helpTopic = 1018,
                               .hasUnits = false,
                               .hasPicture = true,
                               .clearCaption = "Clear",
                               .clearTip = " Reset Values ",
                               .symbolWidth = 1700,
                               .unitWidth = 1400};

constexpr double kPercent = 100.0;

/// "$" and "%" stand where they are written, and "%" scales by 100 besides.
std::string byPattern(double value, std::string_view pattern, char decimal) {
    const bool percent = pattern.starts_with('%');
    return pattern.front() + formatPattern(percent ? value * kPercent : value, pattern.substr(1), decimal);
}

}  // namespace

LoanDialog::LoanDialog(Engine& calculator, DialogHandOver& handOver)
    : CalculatorForm(calculator, kLook), asked_(handOver.DialogCalcId), brought_(handOver.DialogValue) {
    handOver.ClearHandOver();
    for (const LoanField& field : kLoanFields) {
        addField(field.caption, field.caption, {});
    }
    finish();
    for (int i = 0; i < kFields; ++i) {
        txtVal(i).tip = " " + std::string(kLoanFields.at(static_cast<std::size_t>(i)).tip) + " ";
    }
    clearAll();
    activate = [this] { takeX(); };
}

// Under Shift X is the amount.
void LoanDialog::takeX() {
    if (asked_ != kShift || calc.s.stack.depth() == 0) {
        return;
    }
    const auto number = brought_.tryNumber(calc.s.format.DecimalChar);
    if (!number) {
        txtVal(LoanAmount).text = calc.text(brought_);
        report(Failure{FailureNumber::TypeMismatch});
    } else if (*number != 0.0) {
        offerClear();
        if (take(LoanAmount, *number)) {
            nextField(LoanAmount);
        }
    }
}

void LoanDialog::clearAll() {
    value_ = {};
    target_.reset();
    again_ = false;
    showPicture(balancePicture(0.0, 1.0));
    reset();
    for (int i = 0; i < kFields; ++i) {
        lblUnits(i).text = kLoanFields.at(static_cast<std::size_t>(i)).label;
    }
    txtVal(Total).visible = false;
    txtVal(Total).enabled = false;
}

LoanDialog::Quantity LoanDialog::quantityOf(int field) {
    switch (field) {
        case LoanAmount:
            return kAmount;
        case Apr:
        case PeriodRate:
            return kInterest;
        case Payment:
            return kPayment;
        default:
            return kPeriods;
    }
}

bool LoanDialog::knows(Quantity quantity) const {
    static constexpr std::array<Field, kQuantities> kTells{LoanAmount, Periods, PeriodRate, Payment};
    return value_.at(kTells.at(quantity)).has_value();
}

int LoanDialog::known() const {
    int count = 0;
    for (const Quantity quantity : {kAmount, kPeriods, kInterest, kPayment}) {
        count += knows(quantity) ? 1 : 0;
    }
    return count;
}

void LoanDialog::set(int field, std::optional<double> value) {
    value_.at(static_cast<std::size_t>(field)) = value;
    showField(field);
}

void LoanDialog::showField(int field) {
    const auto at = static_cast<std::size_t>(field);
    const std::optional<double> value = value_.at(at);
    const char decimal = calc.s.format.DecimalChar;
    const std::string_view pattern = kLoanFields.at(at).pattern;
    Control& text = txtVal(field);
    if (!value) {
        text.text.clear();
    } else if (pattern.empty()) {
        text.text = plainText(roundHalfEven(*value, 2), decimal);
    } else {
        text.text = byPattern(*value, pattern, decimal);
    }
    if (field == Apr || field == PeriodRate) {
        // The field's pattern scales by 100; the plain rate stands beside it.
        constexpr int kPlaces = 6;
        lblUnits(field).text = value ? plainText(roundHalfEven(*value, kPlaces), decimal) + " %" : "";
    }
}

bool LoanDialog::commit(int index) {
    bool movesOn = false;
    goOn([this](const Failure& failure) { report(failure); }, [&] { movesOn = take(index, numberIn(txtVal(index))); });
    return movesOn;
}

/// Takes a number into its field, and solves where three are known. Returns whether the focus is to
/// move on.
bool LoanDialog::take(int index, double number) {
    if (number == 0.0 && quantityOf(index) != kInterest) {
        clearAll();
        return false;
    }
    if (index == Periods && !value_[Years] && !value_[Ppy]) {
        calc.message(BoxKind::Notice, "Missing Parameter", "At least payments per year is required!");
    }
    value_.at(static_cast<std::size_t>(index)) = number;
    txtVal(index).enabled = false;
    derive(index);
    for (int i = 0; i < Total; ++i) {
        if (value_.at(static_cast<std::size_t>(i))) {
            showField(i);
        }
    }
    const int missing = kQuantities - known();
    const Quantity before = std::exchange(last_, quantityOf(index));
    if (again_) {
        return missing != 1 || !solve(*target_);
    }
    if (missing == 0) {
        // A negative interest was refused, and another one is given: what came last before it gives way.
        return !solve(before);
    }
    if (missing != 1) {
        return true;
    }
    for (const Quantity quantity : {kAmount, kPeriods, kInterest, kPayment}) {
        if (!knows(quantity)) {
            return !solve(quantity);
        }
    }
    return true;
}

/// What follows from the value given last: periods from years, interest a period from that of a year.
void LoanDialog::derive(int given) {
    auto& [amount, years, ppy, periods, apr, rate, payment, total] = value_;
    if (given == Periods) {
        if (years && !ppy) {
            ppy = quotient(*periods, *years);
        } else if (ppy) {
            years = quotient(*periods, *ppy);
        }
    } else if (years && ppy && (given == Years || given == Ppy)) {
        periods = *ppy * *years;
    } else if (given == Ppy && periods) {
        years = quotient(*periods, *ppy);
    } else if (given == Years && periods) {
        ppy = quotient(*periods, *years);
    }
    if (rate && ppy && (given == PeriodRate || !apr)) {
        apr = *rate * *ppy;
    } else if (apr && ppy) {
        rate = quotient(*apr, *ppy);
    }
}

void LoanDialog::empty(Quantity quantity) {
    switch (quantity) {
        case kAmount:
            set(LoanAmount, {});
            break;
        case kPeriods:
            set(Periods, {});
            set(Years, {});
            break;
        case kInterest:
            set(Apr, {});
            set(PeriodRate, {});
            break;
        default:
            set(Payment, {});
            break;
    }
}

/// Returns whether there is nothing more to ask for.
bool LoanDialog::solve(Quantity missing) {
    const auto onFailure = [this](const Failure& failure) {
        report(failure);
        showFailed();
    };
    bool refused = false;
    goOn(onFailure, [&] {
        findMissing(missing);
        refused = refuseNegative();
        if (!refused) {
            target_ = missing;
            again_ = false;
            showResult();
        }
    });
    return !refused;
}

void LoanDialog::findMissing(Quantity missing) {
    auto& [amount, years, ppy, periods, apr, rate, payment, total] = value_;
    switch (missing) {
        case kAmount:
            amount = loanAmount(*rate / kPercent, *periods, *payment);
            break;
        case kPayment:
            payment = loanPayment(*rate / kPercent, *periods, *amount);
            break;
        case kInterest:
            rate = loanRate(*periods, *payment, *amount) * kPercent;
            if (ppy) {
                apr = *rate * *ppy;
            }
            break;
        default:
            periods = loanPeriods(*rate / kPercent, *payment, *amount);
            if (ppy) {
                years = quotient(*periods, *ppy);
            }
            break;
    }
}

bool LoanDialog::refuseNegative() {
    if (value_[PeriodRate] >= 0.0) {
        return false;
    }
    calc.message(BoxKind::Notice, "", "Negative Interest!");
    empty(kInterest);
    for (const int field : {Apr, PeriodRate}) {
        txtVal(field).enabled = true;
    }
    return true;
}

void LoanDialog::showResult() {
    value_[Total] = checked(roundHalfEven(*value_[Payment], 2) * *value_[Periods]);
    for (int i = 0; i < kFields; ++i) {
        showField(i);
    }
    txtVal(Total).visible = true;
    showPicture(balancePicture(*value_[PeriodRate] / kPercent, *value_[Periods]));
    showSolved();
    for (int i = 0; i < kFields; ++i) {
        optCalc(i).visible = i == LoanAmount || i == Apr || i == Payment;
    }
}

// One value is given anew, and what was solved before is solved again; where it is the same one, the
// amount, or for the amount the payment.
void LoanDialog::use(int index) {
    const Quantity given = quantityOf(index);
    if (target_ == given) {
        target_ = given == kAmount ? kPayment : kAmount;
    }
    again_ = true;
    empty(given);
    empty(*target_);
    set(Total, {});
    txtVal(Total).visible = false;
    keepOption(index);
    showEntering();
    txtVal(index).enabled = true;
    // Without the payments a year the interest can only be that of a period.
    txtVal(PeriodRate).enabled = index == Apr;
    setFocus(txtVal(index));
}

/// Says what is needed to find `wanted`, which was left blank in `field`.
void LoanDialog::require(Quantity wanted, int field) {
    static constexpr std::array<std::string_view, kQuantities> kFinding{"Amount of loan", "payments remaining", "APR",
                                                                        "Payment"};
    const std::string solvingFor = "Missing Parameter -- Solving for " + std::string(kFinding.at(wanted));
    const auto tell = [&](std::string_view boxTitle, std::string_view text, int needed) {
        calc.message(BoxKind::Notice, boxTitle, text);
        setFocus(txtVal(needed));
    };
    if (wanted == kPayment) {
        tell("Missing Parameter",
             "The length of loan AND payments per year, OR,\n payments remaining, \nor APR is required!",
             knows(kPeriods) ? Apr : Years);
    } else if (!knows(kPayment)) {
        const MessageBox box{.kind = BoxKind::Notice,
                             .title = solvingFor,
                             .text = "The amount of Payment is required!",
                             .buttons = BoxButtons::OkCancel};
        setFocus(txtVal(calc.platform.messageBox(box) == Answer::Ok ? static_cast<int>(Payment) : field));
    } else if (!knows(kInterest)) {
        tell("Missing Parameter -- Solving for Amount of loan", "The APR (Annual Percentage Rate) is required!", Apr);
    } else {
        tell("Missing Parameter -- Solving for Amount of loan",
             "When payments remaining is blank, both\nLength of loan and payments per year\nare required!", Years);
    }
}

bool LoanDialog::passEmpty(int index) {
    if (again_) {
        return false;
    }
    const bool noPeriods = !value_[Years] && !value_[Ppy] && !value_[Periods];
    if (index == Apr && value_[LoanAmount] && !value_[Payment] && noPeriods) {
        calc.message(BoxKind::Notice, "Missing Parameter -- Solving fo Amount of loan",
                     "One, but not both is required:\nlength of loan\npayments per year");
        setFocus(txtVal(Years));
        return false;
    }
    const Quantity wanted = quantityOf(index);
    if (known() != 2 || knows(wanted)) {
        return true;
    }
    require(wanted, index);
    return false;
}

void LoanDialog::addToTape() {
    std::vector<PostedLine> lines;
    for (std::size_t i = 0; i < value_.size(); ++i) {
        if (value_.at(i)) {
            lines.push_back({.value = *value_.at(i), .label = std::string(kLoanFields.at(i).caption)});
        }
    }
    postLines(calc, lines);
}

}  // namespace tallyforge
