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

    /// Plain and Ctrl: an entry in, or out again. X alone is an entry with a Y of 0; with two
    /// numbers put on the stack since the last press, Y counts too. The entry's X stays on the
    /// stack in the place of the one before. Alt: means. Ctrl+Alt: sample deviations. Shift,
    /// Shift+Ctrl, Shift+Alt: the sums. All three: clears. Raises 5 where a deviation has no value,
    /// 6, 11 for too few entries.
    void key();

private:
    struct Sums {
        double StatCount = 0.0;
        ExactDecimal StatSumX;
        ExactDecimal StatSumY;
        ExactDecimal StatSumXX;
        ExactDecimal StatSumYY;
        ExactDecimal StatSumXY;
    };

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
