// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pictures beside the fields, before a solution and for several of them. Their text is in
// tests/forms.
#include "calculators/calculators.h"
#include "calculators/pictures.h"
#include "support/written_form.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyforge {
namespace {

void write(const CalculatorTable& table, const Values& values, bool solved, Lines& lines) {
    lines.push_back("-- " + std::string(table.form) + (solved ? ", solved" : ""));
    writePicture(table.picture(values, solved), lines);
}

TEST(WrittenPictures, EachCalculatorDrawsWhatIsWritten) {
    Lines lines;
    for (const CalculatorTable* table : calculatorTables()) {
        write(*table, {}, false, lines);
        write(*table, table->example, true, lines);
    }
    expectAsWritten("calculator_pictures", lines);
}

TEST(WrittenPictures, TheyFollowTheValues) {
    Lines lines;
    enum { R1 = 1, R2, T1, T2 };
    // A resistance that falls, and one that is measured from the warm end.
    write(kTemperatureCoefficient, {-0.004, 100.0, 90.0, 20.0, 45.0}, true, lines);
    write(kTemperatureCoefficient, {0.004, 100.0, 90.0, 45.0, 20.0}, true, lines);
    write(kTemperatureCoefficient, {0.0, 100.0, 100.0, 20.0, 20.0}, true, lines);
    // Circuits at and beside their resonance, at 1 / 2 pi; the last is too lossy to resonate.
    write(kSeriesResonance, {0.5, 1.0, 1.0, 20.0, 0.15915494309189535}, true, lines);
    write(kSeriesResonance, {0.5, 1.0, 1.0, 20.0, 0.3}, true, lines);
    write(kParallelResonance, {0.2, 1.0, 1.0, 0.15}, true, lines);
    write(kParallelResonance, {1.0, 1.0, 1.0, 0.0}, true, lines);
    write(kParallelResonance, {3.0, 1.0, 1.0, 0.15}, true, lines);
    // A narrow band and one that reaches beyond the scale.
    write(kGeometricMean, {10.0, 2.0, 9.0499, 11.0499}, true, lines);
    write(kGeometricMean, {10.0, 990.0, 0.1, 990.1}, true, lines);
    // Arcs from a sliver to more than half the circle.
    for (const double angle : {0.1, 1.0, 4.0}) {
        write(kArc, {1.0, 1.0, angle}, true, lines);
    }
    // Cores whose window is high, wide, and small.
    write(kCCore, {1.0, 1.0, 4.0, 1.0}, true, lines);
    write(kCCore, {1.0, 0.5, 1.0, 6.0}, true, lines);
    write(kCCore, {1.0, 4.0, 0.5, 0.5}, true, lines);
    expectAsWritten("followed_values", lines);
}

}  // namespace
}  // namespace tallyforge
