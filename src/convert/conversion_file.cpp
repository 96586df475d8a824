// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_file.h"

#include "convert/conversion_tables.h"

#include <charconv>
#include <vector>

namespace tallyforge {

namespace {

constexpr std::string_view kFirstLine = "tallyforge conversions 1";
constexpr std::string_view kLastLine = "end ";

std::vector<std::string_view> split(std::string_view text, char at) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto end = text.find(at);
        parts.push_back(text.substr(0, end));
        text = end == text.npos ? std::string_view{} : text.substr(end + 1);
    }
    return parts;
}

std::optional<int> readIndex(std::string_view word, int limit) {
    int value = -1;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    const bool whole = result.ec == std::errc{} && result.ptr == word.data() + word.size();
    return whole && value >= 0 && value < limit ? std::optional{value} : std::nullopt;
}

/// One of two words.
std::optional<bool> readWord(std::string_view word, std::string_view yes, std::string_view no) {
    return word == yes ? std::optional{true} : word == no ? std::optional{false} : std::nullopt;
}

std::optional<UnitPair> readPair(const ConversionTable& table, const std::vector<std::string_view>& words) {
    const auto group = readIndex(words[1], static_cast<int>(table.groups.size()));
    if (!group) {
        return std::nullopt;
    }
    const int units = static_cast<int>(table.group(*group).units.size());
    const auto from = readIndex(words[2], units);
    const auto to = readIndex(words[3], units);
    return from && to && *from != *to ? std::optional<UnitPair>{{*group, *from, *to}} : std::nullopt;
}

bool readLine(std::string_view line, ConversionMemory& memory, char decimal) {
    constexpr std::size_t kWords = 7;
    const auto words = split(line, ' ');
    const auto key = words.size() == kWords ? readIndex(words[0], kBankKeys) : std::nullopt;
    const ConversionTable* const table = key ? conversionTableOf(*key) : nullptr;
    const auto pair = table != nullptr ? readPair(*table, words) : std::nullopt;
    if (!pair || memory.former.at(static_cast<std::size_t>(*key))) {
        return false;
    }
    const auto exact = readWord(words[4], "exact", "table");
    const auto held = readWord(words[5], "held", "free");
    const auto marked = readWord(words[6], "marked", "plain");
    if (!exact || !held || !marked || (*marked && (!*held || memory.marked))) {
        return false;
    }
    const Sizes sizes = *exact ? Sizes::Exact : Sizes::Table;
    const auto at = static_cast<std::size_t>(*key);
    if (*held) {
        const auto others = memory.marked;
        const Conversion unit = convert(table->group(pair->group), pair->from, pair->to, 1.0, sizes);
        memory.keep(*table, *pair, sizes, unit, decimal);
        memory.marked = *marked ? std::optional{*key} : others;
    }
    memory.former.at(at) = pair;
    memory.sizes.at(at) = sizes;
    return true;
}

}  // namespace

std::string conversionFileText(const ConversionMemory& memory) {
    std::string text = std::string(kFirstLine) + "\n";
    int lines = 0;
    for (int key = 0; key < kBankKeys; ++key) {
        const auto at = static_cast<std::size_t>(key);
        const auto& pair = memory.former.at(at);
        if (!pair) {
            continue;
        }
        const bool held = memory.holds(key);
        text += std::to_string(key) + " " + std::to_string(pair->group) + " " + std::to_string(pair->from) + " " +
                std::to_string(pair->to) + (memory.sizes.at(at) == Sizes::Exact ? " exact" : " table") +
                (held ? " held" : " free") + (held && memory.marked == key ? " marked\n" : " plain\n");
        ++lines;
    }
    return text + std::string(kLastLine) + std::to_string(lines) + "\n";
}

std::optional<ConversionMemory> readConversionFile(std::string_view text, char decimal) {
    if (!text.ends_with('\n')) {
        return std::nullopt;
    }
    const auto lines = split(text, '\n');
    if (lines.size() < 2 || lines.front() != kFirstLine ||
        lines.back() != std::string(kLastLine) + std::to_string(lines.size() - 2)) {
        return std::nullopt;
    }
    ConversionMemory memory;
    for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
        if (!readLine(lines[i], memory, decimal)) {
            return std::nullopt;
        }
    }
    return memory;
}

}  // namespace tallyforge
