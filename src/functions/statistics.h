// SPDX-License-Identifier: GPL-3.0-or-later
//
// Statistics of one or two variables: sums, means and sample deviations of the numbers that were
// put in.
#pragma once

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
        double StatSumX = 0.0;
        double StatSumY = 0.0;
        double StatSumXX = 0.0;
        double StatSumYY = 0.0;
        double StatSumXY = 0.0;
    };

    void enter(double sign);
    [[nodiscard]] bool yIsPartOfEntry() const;
    void show(double ofY, std::string_view labelY, double ofX, std::string_view labelX);
    void clear();
    [[nodiscard]] double deviation(double sumOfSquares, double sum) const;

    Engine& calc;
    Sums Stats;
    bool pressed_ = false;  ///< since the last reset
    int entrySlot_ = 0;     ///< where the last entry left its X; 0 for none
};

}  // namespace tallyforge
