// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/chart_dialog.h"

#include "dialogs/chart_page.h"
#include "dialogs/dialog_support.h"
#include "engine/engine.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr int kMargin = 120;
constexpr int kGap = 60;
constexpr int kLine = 240;
constexpr int kRowHeight = 200;
constexpr int kMostRows = 20;    ///< rows that a chart shows without scrolling
constexpr int kCharacter = 100;  ///< width of one in a row, about
constexpr int kBetween = 200;    ///< between two columns
constexpr int kScrollBar = 200;
constexpr int kKeyWidth = 1100;
constexpr int kKeyHeight = 360;
constexpr int kLeastWidth = 5400;

}  // namespace

std::string columnHead(const ChartColumn& column) {
    return column.unit.empty() ? column.head : column.head + " (" + column.unit + ")";
}

std::string rowText(const ChartRow& row) {
    std::string text;
    for (const std::string& cell : row.cells) {
        text += (&cell == row.cells.data() ? "" : "\t") + cell;
    }
    return text;
}

std::string chartText(const Chart& chart) {
    std::string text;
    for (const ChartColumn& column : chart.columns) {
        text += (&column == chart.columns.data() ? "" : "\t") + columnHead(column);
    }
    for (const ChartRow& row : chart.rows) {
        text += "\n" + rowText(row);
    }
    return text;
}

ChartDialog::ChartDialog(Engine& calculator, const Chart& chart)
    : Form(chart.form, chart.title), calc(calculator), chart_(chart) {
    helpTopic = chart.helpTopic;
    std::vector<std::string> texts;
    for (const ChartRow& row : chart.rows) {
        texts.push_back(rowText(row));
    }
    rows_.assign(std::move(texts));
    dress();
    dressKeys();
    showRow();
    arrange();
    setFocus(lstRows);
    preview = [this](KeyEvent event) { return ownKey(event); };
    placing = [this] { placeBeside(calc, *this); };
}

std::optional<std::size_t> ChartDialog::pick() {
    taken_.reset();
    calc.dialogOpen = true;
    calc.platform.showDialog(*this);
    calc.dialogOpen = false;
    return taken_;
}

void ChartDialog::put(Control& control, ControlKind kind, std::string_view controlName, std::string_view text) {
    control.name = controlName;
    control.kind = kind;
    control.text = text;
    control.tabStop = kind == ControlKind::Key || kind == ControlKind::List;
    enrol(control);
}

void ChartDialog::dress() {
    lblHead.resize(chart_.columns.size());
    for (std::size_t column = 0; column < lblHead.size(); ++column) {
        put(lblHead[column], ControlKind::Label, "lblHead", columnHead(chart_.columns[column]));
        lblHead[column].index = static_cast<int>(column);
        lblHead[column].font = {.points = 8.0F, .bold = true};
    }
    put(lstRows, ControlKind::List, "lstRows");
    lstRows.spoken = chart_.title;
    lstRows.rows = &rows_;
    lstRows.font.points = 9.0F;
    lstRows.click = [this] { showRow(); };
    lstRows.doubleClick = [this] {
        taken_ = chosen();
        open = false;
    };
    put(picFigure, ControlKind::Picture, "picFigure");
    if (!chart_.note.empty()) {
        put(lblHelp, ControlKind::Label, "lblHelp", chart_.note);
    }
    put(lblSource, ControlKind::Label, "lblSource", chart_.source);
    lblSource.font.points = 8.0F;
}

void ChartDialog::dressKeys() {
    put(cmdCopy, ControlKind::Key, "cmdCopy", "Copy");
    cmdCopy.tip = " Copy the chart as text [Ctrl+C] ";
    cmdCopy.click = [this] { copy(); };
    put(cmdPrint, ControlKind::Key, "cmdPrint", "Print");
    cmdPrint.tip = " Print the chart [Ctrl+P] ";
    cmdPrint.click = [this] { print(); };
    put(cmdCancel, ControlKind::Key, "cmdCancel", "Cancel");
    cmdCancel.click = [this] { open = false; };
    cancelKey = &cmdCancel;
}

std::optional<std::size_t> ChartDialog::chosen() const {
    return rows_.selected() < rows_.count() ? std::optional{rows_.selected()} : std::nullopt;
}

void ChartDialog::showRow() {
    if (chart_.figure) {
        picFigure.drawing = chart_.figure(chosen());
        picFigure.spoken = picFigure.drawing.described;
    }
}

bool ChartDialog::ownKey(KeyEvent event) {
    if (event.shift != kCtrl || (event.keyCode != 'C' && event.keyCode != 'P')) {
        return false;
    }
    event.keyCode == 'C' ? copy() : print();
    return true;
}

void ChartDialog::copy() {
    calc.platform.setClipboardText(chartText(chart_));
}

void ChartDialog::print() {
    calc.platform.print(chartPage(chart_, chosen()));
}

void ChartDialog::arrange() {
    int top = arrangeTable(kMargin + kLine);
    const int width = place.width - 2 * kMargin;
    const Drawing& figure = picFigure.drawing;
    if (figure.width > 0.0F) {
        const int height = static_cast<int>(static_cast<float>(width) * figure.height / figure.width);
        picFigure.place = {.left = kMargin, .top = top, .width = width, .height = height};
        top += height + kGap;
    }
    const auto lines = [width](const std::string& text, int characterWidth) {
        return static_cast<int>(text.size()) * characterWidth / width + 1;
    };
    if (!chart_.note.empty()) {
        const int height = lines(chart_.note, 110) * kLine;
        lblHelp.place = {.left = kMargin, .top = top, .width = width, .height = height};
        top += height + kGap;
    }
    const int height = lines(chart_.source, 95) * kRowHeight;
    lblSource.place = {.left = kMargin, .top = top, .width = width, .height = height};
    top += height + kGap;
    int left = place.width - kMargin;
    for (Control* key : {&cmdCancel, &cmdPrint, &cmdCopy}) {
        left -= kKeyWidth;
        key->place = {.left = left, .top = top, .width = kKeyWidth, .height = kKeyHeight};
        left -= kGap;
    }
    place.height = top + kKeyHeight + kMargin;
}

int ChartDialog::arrangeTable(int top) {
    std::vector<int> widths;
    int all = 0;
    for (std::size_t column = 0; column < chart_.columns.size(); ++column) {
        std::size_t most = columnHead(chart_.columns[column]).size();
        for (const ChartRow& row : chart_.rows) {
            most = std::max(most, row.cells[column].size());
        }
        widths.push_back(static_cast<int>(most) * kCharacter + kBetween);
        all += widths.back();
    }
    // A narrow chart spreads its columns over the width that its keys and texts need.
    const int spare =
        std::max(kLeastWidth - all - kScrollBar, 0) / static_cast<int>(std::max(widths.size(), std::size_t{1}));
    int left = 0;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        lblHead[column].place = {
            .left = kMargin + kGap + left, .top = top - kLine, .width = widths[column] + spare, .height = kLine};
        left += widths[column] + spare;
        lstRows.columns.push_back(left);
    }
    lstRows.columns.pop_back();
    const int rows = std::min(kMostRows, static_cast<int>(chart_.rows.size()));
    lstRows.place = {.left = kMargin, .top = top, .width = left + kScrollBar, .height = rows * kRowHeight + 20};
    place.width = left + kScrollBar + 2 * kMargin;
    return top + lstRows.place.height + 2 * kGap;
}

}  // namespace tallyforge
