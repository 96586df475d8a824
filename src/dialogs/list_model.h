// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands in a list dialog at the moment: the table's rows that the filter leaves, and the one
// that is chosen. The lists side by side are columns of one model, so that they select together.
#pragma once

#include "platform/form.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// A row of a list, in the characters of the table's face. Values have a decimal point.
struct ListRow {
    std::string_view name;
    std::string_view value;
    std::string_view unit{};  ///< unit or symbol; empty where the row has none
};

struct ListTable {
    std::string_view form;    ///< "frmConstants"
    std::string_view title;   ///< of its window
    std::string_view help{};  ///< the text in `lblHelp`, Latin-1; none where empty
    std::string_view valueHead{};
    std::string_view unitHead{};  ///< the table has units where this is not empty
    std::span<const ListRow> rows{};
    Face face = Face::Arial;  ///< what the rows' characters are
    int helpTopic = 0;
};

/// What a list keeps between two showings in a session.
struct ListMemory {
    std::optional<std::size_t> chosen;  ///< row of the table that was chosen last
};

/// `value` with the decimal character of the locale in the place of the point.
[[nodiscard]] std::string localValue(std::string_view value, char decimal);

/// The text that the filter looks into: the row's name, value and unit in small letters, with
/// Greek letters and raised figures spelled, too; UTF-8.
[[nodiscard]] std::string searchText(const ListRow& row, Face face);

class ListModel {
public:
    /// The row that `memory` holds is chosen at first; a choice is kept there.
    ListModel(const ListTable& shown, ListMemory& memory);

    [[nodiscard]] const ListTable& table() const { return table_; }
    /// Rows of the table that stand in the lists, topmost first.
    [[nodiscard]] const std::vector<std::size_t>& rows() const { return rows_; }
    /// The chosen place among rows(), or its size where none is.
    [[nodiscard]] std::size_t selected() const { return selected_; }
    /// The chosen row of the table; empty where none is chosen.
    [[nodiscard]] std::optional<std::size_t> chosenRow() const;
    [[nodiscard]] std::uint64_t revision() const { return revision_; }

    void select(std::size_t place);
    /// The choice goes a row down or up; without one it comes in from the end.
    void step(bool down);
    /// Leaves the rows that hold `text` (Latin-1, as typed) in any letter case; all for none.
    void filter(std::string_view text);
    /// A letter typed into a list: goes to the row that begins with what was typed so far, or to
    /// the next one with this letter.
    void jump(char letter);

private:
    void choose(std::size_t place);
    [[nodiscard]] std::optional<std::size_t> placeOf(std::string_view beginning, std::size_t from) const;

    const ListTable& table_;
    ListMemory& memory_;
    std::vector<std::size_t> rows_;
    std::size_t selected_ = 0;
    std::uint64_t revision_ = 0;
    std::string typed_;
};

/// One column of the model as the rows of a list control.
class ListColumn final : public ListRows {
public:
    using Text = std::string (*)(const ListRow& row, char decimal);
    ListColumn(ListModel& model, char decimal, Text text) : model_(model), decimal_(decimal), text_(text) {}

    [[nodiscard]] std::size_t count() const override { return model_.rows().size(); }
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override { return model_.selected(); }
    void select(std::size_t index) override { model_.select(index); }
    [[nodiscard]] std::uint64_t revision() const override { return model_.revision(); }

private:
    ListModel& model_;
    char decimal_;
    Text text_;
};

}  // namespace tallyforge
