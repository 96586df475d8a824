// SPDX-License-Identifier: GPL-3.0-or-later
//
// Arithmetic with dates of the form mm.ddyyyy: 7.041776 is the fourth of July 1776. A date is an
// ordinary number on the stack, and is read from its text.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;
class Failure;

/// The day that a text such as "7.041776", "12.25" or "7.4" names: month and day of one or two
/// digits, and a year of four, without which `thisYear` is meant. A month or day beyond its range
/// runs over into the next year or month. Raises 13 for all other texts.
[[nodiscard]] std::chrono::sys_days ParseDate(std::string_view text, char decimal, int thisYear);

/// What a press of a date key does.
enum class DateOperation {
    Today = 0,
    DayOfWeek = 1,
    DaysToWeeks = 2,
    DaysBetween = 3,
    DaysFromDate1 = 4,
    AddDays = 5,
    AddWeeks = 6,
    ShowDate1 = 7,
};

class Dates {
public:
    explicit Dates(Engine& calculator) : calc(calculator) {}

    /// Shows its own failures in a box and then commits nothing.
    void Calander(DateOperation operation);

private:
    void perform(DateOperation operation);
    void daysToWeeks();
    void daysBetween();
    void daysFromDate1();
    void add(double daysEach, bool weeks);
    [[nodiscard]] std::chrono::sys_days readX(std::string_view which);
    [[nodiscard]] std::chrono::sys_days read(std::string_view text, std::string_view which);
    void ShowDate(std::chrono::sys_days date, int operands, std::string_view tail);
    [[nodiscard]] std::optional<std::string> DateS(std::chrono::year_month_day date);
    void report(std::string_view text);
    void reportIn(std::string_view procedure, const Failure& failure);

    Engine& calc;
    /// First date of the day count; kept between key presses.
    std::optional<std::chrono::sys_days> Date1;
    std::string_view reading_ = "Date1";  ///< the date that is being read, for the message
};

}  // namespace tallyforge
