// SPDX-License-Identifier: GPL-3.0-or-later
//
// The family of dialogs that are charts: a table of published values with a figure drawn from it.
// A double click takes the chief number of a row; a click shows the row in the figure. Ctrl+C
// copies the chart as text with tabs, Ctrl+P prints it.
#pragma once

#include "platform/drawing.h"
#include "platform/form.h"
#include "platform/row_texts.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

struct ChartColumn {
    std::string head;  ///< "Length"
    std::string unit;  ///< "in"; empty for a count or a name
    bool number = true;
};

struct ChartRow {
    std::vector<std::string> cells;  ///< as many as columns, in the user's locale
    std::string value;               ///< the chief number, a text in the user's locale
    std::string label;               ///< of its tape line
};

struct Chart {
    std::string form;   ///< "frmNails"
    std::string title;  ///< of its window
    std::vector<ChartColumn> columns;
    std::vector<ChartRow> rows;
    std::string note{};    ///< how to read it
    std::string source{};  ///< where its numbers come from
    int helpTopic = 0;
    /// The figure with a row brought out, or with none.
    std::function<Drawing(std::optional<std::size_t> row)> figure{};
};

/// Head of a column with its unit: "Length (in)".
[[nodiscard]] std::string columnHead(const ChartColumn& column);
/// A row as text with tabs.
[[nodiscard]] std::string rowText(const ChartRow& row);
/// The whole chart as lines of text with tabs, the heads first.
[[nodiscard]] std::string chartText(const Chart& chart);

class ChartDialog final : public Form {
public:
    ChartDialog(Engine& calculator, const Chart& chart);

    /// Shows the dialog until it is closed; the row that was taken by a double click.
    [[nodiscard]] std::optional<std::size_t> pick();

    Control lstRows;
    std::vector<Control> lblHead;  ///< head of each column
    Control picFigure;
    Control lblHelp, lblSource;
    Control cmdCopy, cmdPrint, cmdCancel;

private:
    void put(Control& control, ControlKind kind, std::string_view controlName, std::string_view text = {});
    void dress();
    void dressKeys();
    void arrange();
    int arrangeTable(int top);
    void showRow();
    [[nodiscard]] std::optional<std::size_t> chosen() const;
    bool ownKey(KeyEvent event);
    void copy();
    void print();

    Engine& calc;
    const Chart& chart_;
    RowTexts rows_;
    std::optional<std::size_t> taken_;
};

}  // namespace tallyforge
