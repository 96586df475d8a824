// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of a list or a choice that are known when the form is built: texts, and which of them
// is selected.
#pragma once

#include "platform/form.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tallyforge {

class RowTexts final : public ListRows {
public:
    RowTexts() = default;
    explicit RowTexts(std::vector<std::string> rows) : rows_(std::move(rows)), selected_(rows_.size()) {}

    /// Other rows; none of them is selected.
    void assign(std::vector<std::string> rows) {
        rows_ = std::move(rows);
        selected_ = rows_.size();
        ++revision_;
    }
    [[nodiscard]] std::size_t count() const override { return rows_.size(); }
    [[nodiscard]] std::string row(std::size_t index) const override { return rows_.at(index); }
    [[nodiscard]] std::size_t selected() const override { return selected_; }
    /// Selects row `index`; one beyond the last selects none.
    void select(std::size_t index) override {
        selected_ = std::min(index, rows_.size());
        ++revision_;
    }
    [[nodiscard]] std::uint64_t revision() const override { return revision_; }

private:
    std::vector<std::string> rows_;
    std::size_t selected_ = 0;
    std::uint64_t revision_ = 0;
};

}  // namespace tallyforge
