// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/dates.h"

#include "engine/engine.h"
#include "engine/results.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tallyforge {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kDateDigits = 6;
constexpr double kDaysOfWeek = 7.0;
constexpr int kLastYear = 9999;
/// Days that lie further off than any date that can be written.
constexpr double kMostDays = 4e6;

// Failures of the date keys, shown by themselves.
constexpr FailureNumber kDate1Empty{2};
constexpr FailureNumber kDaysNotWhole{4};
constexpr FailureNumber kWeeksNotWhole{8};

struct Message {
    FailureNumber number;
    std::string_view text;
};
constexpr std::array<Message, 3> kMessages{{{kDate1Empty, "Date1 is empty"},
                                            {kDaysNotWhole, "Days must be an integer"},
                                            {kWeeksNotWhole, "Weeks must be an intger"}}};

constexpr std::string_view kTitle = "Date Arithmetic";

constexpr std::array<std::string_view, 7> kWeekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                    "Thursday", "Friday", "Saturday"};

/// A whole number of `least` to `most` digits and nothing else.
int wholeNumber(std::string_view digits, std::size_t least, std::size_t most) {
    const bool onlyDigits = std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (digits.size() < least || digits.size() > most || !onlyDigits) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    int number = 0;
    for (const char digit : digits) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

std::string twoDigits(unsigned day) {
    return (day < 10 ? "0" : "") + std::to_string(day);
}

std::string fourDigits(int year) {
    std::string text = std::to_string(year);
    return std::string(4 - std::min<std::size_t>(text.size(), 4), '0') + text;
}

/// Whole days as a duration. Raises 6 where no date is so far off.
days wholeDays(double count) {
    if (std::abs(count) > kMostDays) {
        throw Failure{FailureNumber::Overflow};
    }
    return days{static_cast<int>(count)};
}

sys_days todayOf(const Engine& calc) {
    const LocalTime now = calc.platform.now();
    return sys_days{std::chrono::year{now.year} / now.month / now.day};
}

}  // namespace

sys_days ParseDate(std::string_view text, char decimal, int thisYear) {
    constexpr std::size_t kYearDigits = 4;
    constexpr std::size_t kLongestWithoutYear = 5;
    const auto point = text.find(decimal);
    if (point == text.npos) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    std::string whole{text};
    if (text.size() <= kLongestWithoutYear) {
        whole += fourDigits(thisYear);
    }
    const std::string_view date{whole};
    const std::string_view behind = date.substr(point + 1);
    if (behind.size() <= kYearDigits) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    const int month = wholeNumber(date.substr(0, point), 1, 2);
    const std::string_view dayText = behind.substr(0, behind.size() - kYearDigits);
    const int day = wholeNumber(dayText, 1, 2);
    const int year = wholeNumber(behind.substr(behind.size() - kYearDigits), kYearDigits, kYearDigits);
    // A single 0 is the head of a day whose year has lost a digit.
    if (year == 0 || dayText == "0") {
        throw Failure{FailureNumber::TypeMismatch};
    }
    const auto first = std::chrono::year{year} / std::chrono::January + std::chrono::months{month - 1};
    return sys_days{first / 1} + days{day - 1};
}

void Dates::Calander(DateOperation operation) {
    if (calc.s.functions.takeReset(ResetBit::Dates)) {
        Date1.reset();
    }
    reading_ = "Date1";
    goOn([&](const Failure& failure) { reportIn("Calander", failure); }, [&] { perform(operation); });
}

void Dates::perform(DateOperation operation) {
    switch (operation) {
        case DateOperation::Today:
            return ShowDate(todayOf(calc), 0, "");
        case DateOperation::DayOfWeek: {
            const std::chrono::weekday weekday{readX("Date1")};
            calc.display.SaveDisplay(kDateDigits);
            calc.s.delivery.FnLabel = kWeekdays.at(weekday.c_encoding());
            return;
        }
        case DateOperation::DaysToWeeks:
            return daysToWeeks();
        case DateOperation::DaysBetween:
            return daysBetween();
        case DateOperation::DaysFromDate1:
            return daysFromDate1();
        case DateOperation::AddDays:
            return add(1.0, false);
        case DateOperation::AddWeeks:
            return add(kDaysOfWeek, true);
        case DateOperation::ShowDate1:
            if (!Date1) {
                throw Failure{kDate1Empty};
            }
            return ShowDate(*Date1, 0, "");
    }
}

// A broken number of weeks counts the days left over behind the point.
void Dates::daysToWeeks() {
    const double count = calc.xNumber();
    if (count != std::trunc(count)) {
        throw Failure{kDaysNotWhole};
    }
    const double left = std::fmod(count, kDaysOfWeek);
    calc.display.SaveDisplay(1);
    if (left == 0.0) {
        replaceX(calc, {count / kDaysOfWeek, "weeks"});
    } else {
        replaceX(calc, {std::trunc(count / kDaysOfWeek) + left / 10.0, "weeks.days"});
    }
}

void Dates::daysBetween() {
    Date1 = read(calc.text(cellBelow(calc, 1)), "Date1");
    const days between = readX("Date2") - *Date1;
    calc.display.SaveDisplay(0);
    replaceOperands(calc, 2, {static_cast<double>(between.count()), "days"});
}

void Dates::daysFromDate1() {
    const sys_days second = readX("Date2");
    if (!Date1) {
        throw Failure{kDate1Empty};
    }
    calc.display.SaveDisplay(0);
    replaceX(calc, {static_cast<double>((second - *Date1).count()), "days"});
}

void Dates::add(double daysEach, bool weeks) {
    const double count = calc.xNumber();
    if (count != std::trunc(count)) {
        throw Failure{weeks ? kWeeksNotWhole : kDaysNotWhole};
    }
    const sys_days from = read(calc.text(cellBelow(calc, 1)), "Date1");
    ShowDate(from + wholeDays(count * daysEach), 2, weeks ? " w+" : " d+");
}

sys_days Dates::readX(std::string_view which) {
    return read(calc.text(calc.s.stack.Xreg), which);
}

sys_days Dates::read(std::string_view text, std::string_view which) {
    reading_ = which;
    return ParseDate(text, calc.s.format.DecimalChar, calc.platform.now().year);
}

// The text, not the number, so that the last zeros of a year stay. With operands the date is the
// result of an addition, which is the first date of the next day count.
void Dates::ShowDate(sys_days date, int operands, std::string_view tail) {
    const year_month_day parts{date};
    auto label = DateS(parts);
    if (!label) {
        return;
    }
    const std::string number = std::to_string(static_cast<unsigned>(parts.month())) + calc.s.format.DecimalChar +
                               twoDigits(static_cast<unsigned>(parts.day())) +
                               fourDigits(static_cast<int>(parts.year()));
    *label += tail;
    calc.display.SaveDisplay(kDateDigits);
    if (operands == 0) {
        pushOnX(calc, {number, *label});
    } else {
        Date1 = date;
        replaceOperands(calc, operands, {number, *label});
    }
}

/// "7/04/1776"; empty, after a box, for a date whose year has not one to four digits.
std::optional<std::string> Dates::DateS(year_month_day date) {
    const int year = static_cast<int>(date.year());
    if (year < 1 || year > kLastYear) {
        reportIn("DateS", Failure{FailureNumber::Overflow});
        return std::nullopt;
    }
    return std::to_string(static_cast<unsigned>(date.month())) + "/" + twoDigits(static_cast<unsigned>(date.day())) +
           "/" + fourDigits(year);
}

void Dates::report(std::string_view text) {
    calc.message(BoxKind::Stop, kTitle, text);
    leaveNothing(calc);
}

void Dates::reportIn(std::string_view procedure, const Failure& failure) {
    const FailureNumber number = failure.number();
    if (number == FailureNumber::TypeMismatch) {
        report(std::string(reading_) + " is not formatted correctly (mm.ddyyyy)");
        return;
    }
    const auto* const known = std::find_if(kMessages.begin(), kMessages.end(),
                                           [number](const Message& message) { return message.number == number; });
    if (known != kMessages.end()) {
        report(known->text);
        return;
    }
    report("Error " + std::to_string(failure.code()) + " (" + std::string(description(number)) + ") in procedure " +
           std::string(procedure) + " of Form " + calc.form.name);
}

}  // namespace tallyforge
