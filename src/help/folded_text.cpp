// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/folded_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tallyforge {

namespace {

/// Signs that count as another text.
constexpr std::array<std::pair<std::string_view, std::string_view>, 44> kSame{{
    {"¹", "1"}, {"²", "2"}, {"³", "3"}, {"⁴", "4"}, {"⁵", "5"}, {"⁶", "6"},  {"⁷", "7"},  {"⁸", "8"}, {"⁹", "9"},
    {"⁰", "0"}, {"⁻", "-"}, {"₀", "0"}, {"₁", "1"}, {"₂", "2"}, {"₃", "3"},  {"−", "-"},  {"–", "-"}, {"µ", "μ"},
    {"Ω", "ω"}, {"Ω", "ω"}, {"Α", "α"}, {"Β", "β"}, {"Γ", "γ"}, {"Δ", "δ"},  {"Θ", "θ"},  {"Λ", "λ"}, {"Π", "π"},
    {"Σ", "σ"}, {"Φ", "φ"}, {"Ψ", "ψ"}, {"’", "'"}, {"‘", "'"}, {"“", "\""}, {"”", "\""}, {" ", " "}, {"Ä", "ä"},
    {"Ö", "ö"}, {"Ü", "ü"}, {"É", "e"}, {"é", "e"}, {"è", "e"}, {"Å", "å"},  {"ⁿ", "n"},  {"ˣ", "x"},
}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 15> kNames{{
    {"pi", "π"},
    {"sqrt", "√"},
    {"root", "√"},
    {"mu", "μ"},
    {"micro", "μ"},
    {"sigma", "σ"},
    {"sum", "σ"},
    {"ohm", "ω"},
    {"omega", "ω"},
    {"gamma", "γ"},
    {"theta", "θ"},
    {"alpha", "α"},
    {"phi", "φ"},
    {"degree", "°"},
    {"divide", "÷"},
}};

bool isAsciiWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

std::string foldedText(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        if (isAscii(text.front())) {
            const char c = text.front();
            out += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            text.remove_prefix(1);
            continue;
        }
        const auto same =
            std::find_if(kSame.begin(), kSame.end(), [&](const auto& pair) { return text.starts_with(pair.first); });
        if (same != kSame.end()) {
            out += same->second;
            text.remove_prefix(same->first.size());
        } else {
            out += text.front();
            text.remove_prefix(1);
        }
    }
    return out;
}

std::vector<std::string> spellingsOf(std::string_view word) {
    std::vector<std::string> all{std::string(word)};
    for (const auto& [name, sign] : kNames) {
        if (name == word) {
            all.emplace_back(sign);
        }
    }
    return all;
}

bool beginsWord(std::string_view text, std::size_t at) {
    if (at == 0 || !isAsciiWord(text[at])) {
        return true;
    }
    // A digit behind a letter ("x2") and a letter behind a digit ("2pi") begin no word of their own.
    return !isAsciiWord(text[at - 1]) && isAscii(text[at - 1]);
}

}  // namespace tallyforge
