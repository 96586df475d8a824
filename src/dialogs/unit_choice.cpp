// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/unit_choice.h"

#include "engine/engine.h"
#include "numbers/failure.h"
#include "records/settings_file.h"

#include <array>
#include <utility>

namespace tallyforge {

namespace {

/// Characters of captions and the bytes that read alike on the tape.
constexpr std::array<std::pair<char, char>, 4> kTapeGlyphs{{
    {"²"_t[0], "ý"_t[0]},
    {"µ"_t[0], "æ"_t[0]},
    {"°"_t[0], "ø"_t[0]},
    {"·"_t[0], "ú"_t[0]},
}};

const UnitRange* rangeNamed(std::string_view name) {
    for (const UnitRange* range : kUnitRanges) {
        if (range->name == name) {
            return range;
        }
    }
    return nullptr;
}

void append(std::string& text, std::string_view pattern, const UnitWords& words) {
    while (!pattern.empty()) {
        const auto open = pattern.find('{');
        const auto close = pattern.find('}', open);
        if (close == pattern.npos) {
            text += pattern;
            return;
        }
        text += pattern.substr(0, open);
        if (const UnitRange* range = rangeNamed(pattern.substr(open + 1, close - open - 1)); range != nullptr) {
            const UnitRow& unit = chosenUnit(*range, words);
            append(text, unit.inTip.empty() ? unit.label : unit.inTip, words);
        } else {
            text += pattern.substr(open, close + 1 - open);
        }
        pattern.remove_prefix(close + 1);
    }
}

}  // namespace

std::optional<int> chosenRow(const UnitRange& range, const UnitWords& words) {
    for (int row = 0; row < static_cast<int>(range.rows.size()); ++row) {
        if ((words.*range.word & bitOf(range, row)) != 0) {
            return row;
        }
    }
    return std::nullopt;
}

const UnitRow& chosenUnit(const UnitRange& range, const UnitWords& words) {
    const auto row = chosenRow(range, words);
    return row ? range.rows[static_cast<std::size_t>(*row)] : range.none;
}

double unitScale(const UnitRange& range, const UnitWords& words) {
    return chosenUnit(range, words).scale;
}

std::uint32_t bitOf(const UnitRange& range, int row) {
    return 1U << (range.firstBit + row);
}

std::uint32_t bitsOf(const UnitRange& range) {
    return ((1U << range.rows.size()) - 1U) << range.firstBit;
}

void chooseRow(const UnitRange& range, int row, UnitWords& words) {
    std::uint32_t& word = words.*range.word;
    word = (word & ~bitsOf(range)) | (row < 0 ? 0U : bitOf(range, row));
}

std::string withUnits(std::string_view pattern, const UnitWords& words) {
    std::string text;
    append(text, pattern, words);
    return text;
}

std::string MapUnitText(std::string_view label) {
    std::string text(label);
    for (char& character : text) {
        for (const auto& [caption, tape] : kTapeGlyphs) {
            character = character == caption ? tape : character;
        }
    }
    return text;
}

bool askToSaveUnits(Engine& calc, SettingsFile& settings, std::span<const UnitRange* const> ranges) {
    const MessageBox question{.kind = BoxKind::Plain,
                              .title = "SAVE!",
                              .text = "Would you like to save these units as default?",
                              .buttons = BoxButtons::YesNo};
    if (calc.platform.messageBox(question) != Answer::Yes) {
        return false;
    }
    goOn(calc, [&] {
        for (const UnitRange* range : ranges) {
            settings.replaceUnits(range->word, bitsOf(*range), calc.units.*range->word);
        }
    });
    return true;
}

}  // namespace tallyforge
