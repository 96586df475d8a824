// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/list_model.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace tallyforge {

namespace {

/// Characters that are not on every keyboard, and how a user spells them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 15> kSpellings{{
    {"µ", "mu"},
    {"Ω", "ohm"},
    {"π", "pi"},
    {"α", "alpha"},
    {"σ", "sigma"},
    {"τ", "tau"},
    {"Φ", "phi"},
    {"φ", "phi"},
    {"ε", "epsilon"},
    {"γ", "gamma"},
    {"Γ", "gamma"},
    {"∞", "infinity"},
    {"²", "2"},
    {"³", "3"},
    {"°", "deg"},
}};

std::string spelled(std::string text) {
    for (const auto& [glyph, spelling] : kSpellings) {
        for (auto at = text.find(glyph); at != std::string::npos; at = text.find(glyph, at + spelling.size())) {
            text.replace(at, glyph.size(), spelling);
        }
    }
    return text;
}

std::string small(std::string text) {
    for (char& character : text) {
        const auto byte = static_cast<unsigned char>(character);
        character = static_cast<char>(byte < 0x80 ? std::tolower(byte) : byte);
    }
    return text;
}

}  // namespace

std::string localValue(std::string_view value, char decimal) {
    std::string text(value);
    std::replace(text.begin(), text.end(), '.', decimal);
    return text;
}

std::string searchText(const ListRow& row, Face face) {
    const std::string shown = toUnicode(row.name, face) + '\n' + toUnicode(row.unit, face);
    return small(shown) + '\n' + small(spelled(shown)) + '\n' + std::string(row.value);
}

ListModel::ListModel(const ListTable& shown, ListMemory& memory) : table_(shown), memory_(memory) {
    filter({});
}

std::optional<std::size_t> ListModel::chosenRow() const {
    return selected_ < rows_.size() ? std::optional{rows_[selected_]} : std::nullopt;
}

void ListModel::choose(std::size_t place) {
    selected_ = std::min(place, rows_.size());
    if (const auto row = chosenRow()) {
        memory_.chosen = row;
    }
    ++revision_;
}

void ListModel::select(std::size_t place) {
    typed_.clear();
    choose(place);
}

void ListModel::step(bool down) {
    if (rows_.empty()) {
        return;
    }
    const std::size_t last = rows_.size() - 1;
    const std::size_t above = selected_ - std::min<std::size_t>(selected_, 1);
    const bool none = selected_ > last;
    select(down ? (none ? 0 : std::min(selected_ + 1, last)) : above);
}

void ListModel::filter(std::string_view text) {
    const std::string wanted = small(toUnicode(text, Face::Arial));
    rows_.clear();
    for (std::size_t row = 0; row < table_.rows.size(); ++row) {
        if (wanted.empty() || searchText(table_.rows[row], table_.face).find(wanted) != std::string::npos) {
            rows_.push_back(row);
        }
    }
    const auto chosen = memory_.chosen ? std::find(rows_.begin(), rows_.end(), *memory_.chosen) : rows_.end();
    select(static_cast<std::size_t>(chosen - rows_.begin()));
}

std::optional<std::size_t> ListModel::placeOf(std::string_view beginning, std::size_t from) const {
    for (std::size_t step = 0; step < rows_.size(); ++step) {
        const std::size_t place = (from + step) % rows_.size();
        if (small(std::string(table_.rows[rows_[place]].name)).starts_with(beginning)) {
            return place;
        }
    }
    return std::nullopt;
}

void ListModel::jump(char letter) {
    const std::string one = small(std::string(1, letter));
    const std::size_t present = selected_ < rows_.size() ? selected_ : 0;
    auto place = typed_.empty() ? std::nullopt : placeOf(typed_ + one, present);
    if (place) {
        typed_ += one;
    } else {
        place = placeOf(one, selected_ < rows_.size() ? selected_ + 1 : 0);
        typed_ = place ? one : std::string();
    }
    if (place) {
        choose(*place);
    }
}

std::string ListColumn::row(std::size_t index) const {
    return text_(model_.table().rows[model_.rows().at(index)], decimal_);
}

}  // namespace tallyforge
