// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/unit_names.h"

#include "convert/conversion_tables.h"
#include "dialogs/unit_search.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

namespace {

using Pair = std::pair<UnitPlace, UnitPlace>;

void addPairs(const std::vector<UnitPlace>& froms, const std::vector<UnitPlace>& tos, std::vector<Pair>& found) {
    for (const UnitPlace& from : froms) {
        for (const UnitPlace& to : tos) {
            if (from.sameGroup(to)) {
                found.emplace_back(from, to);
            }
        }
    }
}

std::string listed(const std::vector<UnitPlace>& places) {
    std::string text;
    for (const UnitPlace& place : places) {
        text += (text.empty() ? "" : ", ") + describe(place);
    }
    return text;
}

using Ranked = std::pair<Hit, UnitPlace>;

std::vector<Ranked> answering(const UnitQuery& query) {
    std::vector<Ranked> places;
    for (const ConversionTable* table : conversionTables()) {
        for (int group = 0; group < static_cast<int>(table->groups.size()); ++group) {
            const int units = static_cast<int>(table->group(group).units.size());
            for (int unit = 0; unit < units; ++unit) {
                if (const Hit hit = query.match(table->group(group).at(unit)); hit != Hit::None) {
                    places.emplace_back(hit, UnitPlace{table, group, unit});
                }
            }
        }
    }
    return places;
}

/// Units that answer to the longest beginning of `name` that any has, for a user who has mistyped.
std::vector<UnitPlace> similar(std::string_view name) {
    constexpr std::size_t kShortest = 3;
    constexpr std::size_t kMost = 8;
    std::vector<Ranked> ranked;
    for (std::size_t length = name.size(); length >= kShortest && ranked.empty(); --length) {
        ranked = answering(UnitQuery(name.substr(0, length)));
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const Ranked& left, const Ranked& right) { return left.first < right.first; });
    std::vector<UnitPlace> places;
    for (std::size_t i = 0; i < std::min(ranked.size(), kMost); ++i) {
        places.push_back(ranked[i].second);
    }
    return places;
}

/// The two names that the blank at `at` parts, without the "to" between them.
std::pair<std::string_view, std::string_view> parted(std::string_view words, std::size_t at) {
    if (at == words.npos) {
        return {words, {}};
    }
    constexpr std::string_view kTo = "to ";
    std::string_view second = words.substr(at);
    second.remove_prefix(std::min(second.find_first_not_of(' '), second.size()));
    return {words.substr(0, at), second.starts_with(kTo) ? second.substr(kTo.size()) : second};
}

std::string quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

std::string unknown(std::string_view name) {
    const std::string near = name.empty() ? std::string{} : listed(similar(name));
    return "unknown unit " + quoted(name) + (near.empty() ? "" : ": " + near);
}

}  // namespace

std::string describe(const UnitPlace& place) {
    return std::string(place.row().from) + " (" + std::string(place.of().heading) + ")";
}

UnitNames::UnitNames() {
    for (const ConversionTable* table : conversionTables()) {
        for (int group = 0; group < static_cast<int>(table->groups.size()); ++group) {
            const int units = static_cast<int>(table->group(group).units.size());
            for (int unit = 0; unit < units; ++unit) {
                const UnitPlace place{table, group, unit};
                forEachName(place.row(), [&](std::string_view name) {
                    add(exact_, name, place);
                    add(folded_, foldName(name), place);
                });
            }
        }
    }
}

void UnitNames::add(Index& index, std::string_view name, const UnitPlace& place) {
    auto& places = index[std::string(name)];
    const bool known = std::any_of(places.begin(), places.end(), [&](const UnitPlace& other) {
        return other.sameGroup(place) && other.unit == place.unit;
    });
    if (!known) {
        places.push_back(place);
    }
}

std::vector<UnitPlace> UnitNames::loosely(std::string_view name) const {
    std::string folded = foldName(name);
    auto found = folded_.find(folded);
    if (found == folded_.end() && folded.size() > 3 && folded.ends_with('s')) {
        folded.pop_back();
        found = folded_.find(folded);
    }
    return found == folded_.end() ? std::vector<UnitPlace>{} : found->second;
}

std::vector<UnitPlace> UnitNames::find(std::string_view name) const {
    const auto found = exact_.find(name);
    return found != exact_.end() ? found->second : loosely(name);
}

NamedPair UnitNames::findPair(std::string_view words) const {
    std::vector<Pair> found;
    std::vector<Pair> loose;
    const auto [firstName, secondName] = parted(words, words.find(' '));
    for (std::size_t at = words.find(' '); at != words.npos; at = words.find(' ', at + 1)) {
        if (words[at - 1] == ' ') {
            continue;
        }
        const auto [first, second] = parted(words, at);
        addPairs(find(first), find(second), found);
        addPairs(loosely(first), loosely(second), loose);
    }
    if (found.empty()) {
        found = std::move(loose);
    }
    if (found.size() == 1) {
        return {.from = found.front().first, .to = found.front().second};
    }
    if (found.size() > 1) {
        std::string choices;
        for (const auto& [from, to] : found) {
            choices += (choices.empty() ? "" : ", ") + describe(from) + " to " + std::string(to.row().from);
        }
        return {.problem = quoted(words) + " may be " + choices};
    }
    const auto froms = find(firstName);
    const auto tos = find(secondName);
    if (froms.empty()) {
        return {.problem = unknown(firstName)};
    }
    if (tos.empty()) {
        return {.problem = secondName.empty() ? "no unit to convert to" : unknown(secondName)};
    }
    return {.problem = "no conversion between " + listed(froms) + " and " + listed(tos)};
}

}  // namespace tallyforge
