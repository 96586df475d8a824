// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/lookup_table.h"

#include "numbers/number_format.h"

#include <algorithm>
#include <array>

namespace tallyforge {

std::string plainSize(int size) {
    return std::to_string(size);
}

std::string gaugeSize(int awg) {
    constexpr int kMostZeros = 4;
    const int zeros = 1 - awg;
    return awg < 0 && zeros <= kMostZeros ? std::string(static_cast<std::size_t>(zeros), '0') : std::to_string(awg);
}

std::string gaugeName(double awg, char decimal) {
    constexpr std::array kNamed{-3.0, -2.0, -1.0};
    const bool named = std::find(kNamed.begin(), kNamed.end(), awg) != kNamed.end();
    return named ? gaugeSize(static_cast<int>(awg)) : plainText(awg, decimal);
}

std::optional<double> LookupTable::at(double size) const {
    const auto found = std::lower_bound(rows.begin(), rows.end(), size,
                                        [](const TableRow& row, double wanted) { return row.size < wanted; });
    const bool held = found != rows.end() && static_cast<double>(found->size) == size;
    return held ? std::optional{found->value} : std::nullopt;
}

}  // namespace tallyforge
