// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finding a unit by what a user types of its name: captions, symbols, other names, singular and
// plural, in any case and without the blanks and signs between the letters ("sqft", "kg/m3").
#pragma once

#include "dialogs/conversion_table.h"

#include <string>
#include <string_view>

namespace tallyforge {

/// How well a unit answers to what was typed, the best first.
enum class Hit { Exact, Whole, Beginning, Inside, None };

/// A name reduced to what is compared: small letters, no blanks, hyphens, points, carets and
/// parentheses, raised digits as plain ones.
[[nodiscard]] std::string foldName(std::string_view name);

/// Something typed, made ready to be compared with many units.
class UnitQuery {
public:
    explicit UnitQuery(std::string_view typed);
    [[nodiscard]] bool empty() const { return folded_.empty(); }
    /// Exact in every letter, the whole name, its beginning, or a part of it; a plural that no name
    /// has counts as its singular.
    [[nodiscard]] Hit match(const Unit& unit) const;

private:
    [[nodiscard]] Hit matchName(std::string_view name) const;

    std::string typed_;
    std::string folded_;
    std::string singular_;
};

/// Runs `visit` with each name of a unit: both captions, then the others.
template <typename Visit>
void forEachName(const Unit& unit, Visit&& visit) {
    visit(unit.from);
    visit(unit.to);
    std::string_view rest = unit.names;
    while (!rest.empty()) {
        const auto end = rest.find('|');
        visit(rest.substr(0, end));
        rest = end == rest.npos ? std::string_view{} : rest.substr(end + 1);
    }
}

}  // namespace tallyforge
