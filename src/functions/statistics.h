// SPDX-License-Identifier: GPL-3.0-or-later
//
// Statistics of one or two variables: sums, means and sample deviations of the numbers that were
// put in. The sums are exact, so that equal entries have no deviation and close ones keep all digits
// of theirs.
#pragma once

#include "numbers/exact_decimal.h"
#include "numbers/value_cell.h"

#include <string_view>

namespace tallyforge {

class Engine;

class Statistics {
public:
    explicit Statistics(Engine& calculator) : calc(calculator) {}

    /// An entry in, or out again. X alone is an entry with a Y of 0; with two numbers put on the
    /// stack since the last press, Y counts too. The entry's X stays on the stack in the place of
    /// the one before. Raise 6.
    void addEntry();
    void takeEntryOut();
    void showSums();
    void showSumsOfSquares();
    void showSumOfProducts();
    /// Raises 11 for no entries.
    void showMeans();
    /// Sample deviations. Raises 5 where one has no value, 11 for too few entries.
    void showDeviations();
    /// Forgets all entries.
    void startAnew();

private:
    struct Sums {
        double StatCount = 0.0;
        ExactDecimal StatSumX;
        ExactDecimal StatSumY;
        ExactDecimal StatSumXX;
        ExactDecimal StatSumYY;
        ExactDecimal StatSumXY;
    };

    void begin();
    void finish();
    void enter(double sign);
    [[nodiscard]] bool yIsPartOfEntry() const;
    void show(double ofY, std::string_view labelY, double ofX, std::string_view labelX);
    void clear();
    void left(const ValueCell& x);
    void forgetLostEntry();
    [[nodiscard]] double mean(const ExactDecimal& sum) const;
    [[nodiscard]] double deviation(const ExactDecimal& sumOfSquares, const ExactDecimal& sum) const;

    Engine& calc;
    Sums Stats;
    bool pressed_ = false;  ///< since the last reset
    int entrySlot_ = 0;     ///< where the last entry left its X; 0 for none
    ValueCell entryX_;      ///< that X
};

}  // namespace tallyforge
