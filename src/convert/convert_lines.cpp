// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/convert_lines.h"

#include "dialogs/unit_tips.h"
#include "numbers/failure.h"
#include "numbers/value_cell.h"

#include <charconv>
#include <optional>

namespace tallyforge {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    const auto first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<double> readAmount(std::string_view word, char decimal) {
    std::string text(word.starts_with('+') ? word.substr(1) : word);
    const char other = decimal == '.' ? ',' : '.';
    if (text.find(other) != std::string::npos) {
        return std::nullopt;
    }
    if (const auto point = text.find(decimal); point != std::string::npos) {
        text[point] = '.';
    }
    const bool numeral = text.find_first_not_of("+-.0123456789eE") == std::string::npos;
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = result.ec == std::errc{} && result.ptr == text.data() + text.size();
    return numeral && whole ? std::optional{value} : std::nullopt;
}

}  // namespace

LineConverter::Known& LineConverter::lookUp(std::string_view words, bool& isNew) {
    const auto found = known_.find(words);
    isNew = found == known_.end();
    if (!isNew) {
        return found->second;
    }
    constexpr std::size_t kMost = 4096;
    if (known_.size() >= kMost) {
        known_.clear();
    }
    Known known{.pair = names_.findPair(words), .warning = {}};
    if (known.pair.problem.empty() && sizes_ == Sizes::Table) {
        const UnitPlace& from = *known.pair.from;
        known.warning = deviationText(from.of(), {from.group, from.unit, known.pair.to->unit}, decimal_);
    }
    return known_.emplace(words, std::move(known)).first->second;
}

LineConverter::Answer LineConverter::convert(std::string_view line) {
    line = trimmed(line);
    const auto blank = line.find_first_of(" \t");
    const auto number = readAmount(line.substr(0, blank), decimal_);
    if (!number) {
        return {.text = "no number: " + std::string(line)};
    }
    bool isNew = false;
    const Known& known = lookUp(blank == line.npos ? std::string_view{} : trimmed(line.substr(blank)), isNew);
    if (!known.pair.problem.empty()) {
        return {.text = known.pair.problem};
    }
    const UnitPlace& from = *known.pair.from;
    try {
        const Conversion result = tallyforge::convert(from.of(), from.unit, known.pair.to->unit, *number, sizes_);
        if (result.withoutRatio && from.unit != known.pair.to->unit) {
            return {.text = "no factor between " + describe(from) + " and " + std::string(known.pair.to->row().from)};
        }
        return {.text = ValueCell{result.value}.text(decimal_),
                .converted = true,
                .warning = isNew ? std::string_view(known.warning) : std::string_view{}};
    } catch (const Failure& failure) {
        return {.text = std::string(description(failure.number()))};
    }
}

}  // namespace tallyforge
