// SPDX-License-Identifier: GPL-3.0-or-later
//
// All units by their names, for who has no dialog before the eyes. A name may be several units
// ("min" is a minute and a minim); the other name of the pair then decides.
#pragma once

#include "dialogs/conversion_table.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyforge {

/// A unit of one of the tables.
struct UnitPlace {
    const ConversionTable* table = nullptr;
    int group = 0;
    int unit = 0;

    [[nodiscard]] const UnitGroup& of() const { return table->group(group); }
    [[nodiscard]] const Unit& row() const { return of().at(unit); }
    [[nodiscard]] bool sameGroup(const UnitPlace& other) const { return table == other.table && group == other.group; }
};

/// Two units that convert into each other, or why there are none.
struct NamedPair {
    std::optional<UnitPlace> from{};
    std::optional<UnitPlace> to{};
    std::string problem{};  ///< for the user; empty where both are there
};

class UnitNames {
public:
    UnitNames();

    /// The units of that name: those that are written exactly so, or else in any case and without
    /// blanks and signs.
    [[nodiscard]] std::vector<UnitPlace> find(std::string_view name) const;
    /// "inch mm", "square feet acre", "psi to bar": every way to part the words is tried.
    [[nodiscard]] NamedPair findPair(std::string_view words) const;

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    using Index = std::unordered_map<std::string, std::vector<UnitPlace>, Hash, std::equal_to<>>;

    static void add(Index& index, std::string_view name, const UnitPlace& place);
    [[nodiscard]] std::vector<UnitPlace> loosely(std::string_view name) const;

    Index exact_;
    Index folded_;
};

/// "inch (Convert Length)".
[[nodiscard]] std::string describe(const UnitPlace& place);

}  // namespace tallyforge
