// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/unit_search.h"

#include "platform/text.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr std::string_view kIgnored = " -.^()·"_t;
constexpr char kSquared = "²"_t[0];
constexpr char kCubed = "³"_t[0];

char folded(char character) {
    if (character >= 'A' && character <= 'Z') {
        return static_cast<char>(character - 'A' + 'a');
    }
    return character == kSquared ? '2' : character == kCubed ? '3' : character;
}

std::string withoutPlural(std::string_view word) {
    constexpr std::size_t kShortest = 3;
    if (word.size() <= kShortest || !word.ends_with('s')) {
        return {};
    }
    const bool long_ = word.ends_with("ches") || word.ends_with("xes") || word.ends_with("shes");
    return std::string(word.substr(0, word.size() - (long_ ? 2 : 1)));
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string foldName(std::string_view name) {
    std::string text;
    text.reserve(name.size());
    for (const char character : name) {
        if (kIgnored.find(character) == kIgnored.npos) {
            text.push_back(folded(character));
        }
    }
    return text;
}

UnitQuery::UnitQuery(std::string_view typed)
    : typed_(trimmed(typed)), folded_(foldName(typed_)), singular_(withoutPlural(folded_)) {}

Hit UnitQuery::matchName(std::string_view name) const {
    if (name == typed_) {
        return Hit::Exact;
    }
    const std::string candidate = foldName(name);
    if (candidate == folded_ || (!singular_.empty() && candidate == singular_)) {
        return Hit::Whole;
    }
    const std::size_t at = candidate.find(folded_);
    if (at == std::string::npos) {
        return Hit::None;
    }
    return at == 0 ? Hit::Beginning : Hit::Inside;
}

Hit UnitQuery::match(const Unit& unit) const {
    Hit best = Hit::None;
    forEachName(unit, [&](std::string_view name) { best = std::min(best, matchName(name)); });
    return best;
}

}  // namespace tallyforge
