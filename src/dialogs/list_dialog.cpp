// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/list_dialog.h"

#include "dialogs/dialog_support.h"
#include "engine/engine.h"
#include "platform/borrowed.h"
#include "platform/key_codes.h"

#include <utility>

namespace tallyforge {

namespace {

constexpr int kMargin = 120;
constexpr int kGap = 60;
constexpr int kLine = 240;  ///< height of a line of text
constexpr int kFieldHeight = 300;
constexpr int kKeyHeight = 360;
constexpr int kKeyWidth = 1200;
constexpr int kRows = 14;  ///< rows that a list shows
constexpr int kRowHeight = 200;
constexpr int kNameWidth = 3500;
constexpr int kValueWidth = 2000;
constexpr int kUnitWidth = 1500;
constexpr int kScrollBar = 200;

constexpr std::string_view kExact = "exact";

std::string nameOf(const ListRow& row, char /*decimal*/) {
    return std::string(row.name);
}

std::string valueOf(const ListRow& row, char decimal) {
    return localValue(row.value, decimal);
}

std::string unitOf(const ListRow& row, char /*decimal*/) {
    return std::string(row.unit);
}

}  // namespace

ListDialog::ListDialog(Engine& calculator, const ListTable& shown, ListMemory& memory, ListExtras extras)
    : Form(std::string(shown.form), std::string(shown.title)),
      calc(calculator),
      extras_(std::move(extras)),
      model_(shown, memory),
      names_(model_, calculator.s.format.DecimalChar, nameOf),
      values_(model_, calculator.s.format.DecimalChar, valueOf),
      units_(model_, calculator.s.format.DecimalChar, unitOf) {
    helpTopic = shown.helpTopic;
    dressLabels();
    dressLists();
    dressKeys();
    arrange();
    showChosen();
    setFocus(lstNameSym);
    preview = [this](KeyEvent event) { return ownKey(event); };
    placing = [this] { placeBeside(calc, *this); };
}

std::optional<ListChoice> ListDialog::pick() {
    taken_.reset();
    // A list may be opened from another dialog.
    const Borrowed opened{calc.dialogOpen, true};
    calc.platform.showDialog(*this);
    return taken_;
}

void ListDialog::put(Control& control, ControlKind kind, std::string_view controlName, std::string_view text) {
    control.name = controlName;
    control.kind = kind;
    control.text = text;
    control.tabStop = kind == ControlKind::Key || kind == ControlKind::Field || kind == ControlKind::List;
    enrol(control);
}

void ListDialog::dressLabels() {
    if (!table().help.empty()) {
        put(lblHelp, ControlKind::Label, "lblHelp", table().help);
    }
    put(lblFind, ControlKind::Label, "lblFind", "Find");
    put(txtFind, ControlKind::Field, "txtFind");
    txtFind.spoken = "Find";
    txtFind.changed = [this] {
        model_.filter(txtFind.text);
        showChosen();
    };
    put(lblValue, ControlKind::Label, "lblValue", table().valueHead);
    if (hasUnits()) {
        put(lblUnits, ControlKind::Label, "lblUnits", table().unitHead);
    }
}

void ListDialog::dressLists() {
    struct Column {
        Control& list;
        std::string_view name;
        ListColumn& rows;
        std::string_view spoken;
    };
    std::vector<Column> columns{{lstNameSym, "lstNameSym", names_, "Name"},
                                {lstValue, "lstValue", values_, table().valueHead}};
    if (hasUnits()) {
        columns.push_back({lstUnits, "lstUnits", units_, table().unitHead});
    }
    for (const Column& column : columns) {
        Control& list = column.list;
        put(list, ControlKind::List, column.name);
        list.rows = &column.rows;
        list.spoken = column.spoken;
        list.font = {.face = table().face, .points = 9.0F};
        list.group = "lstNameSym";
        list.click = [this] { showChosen(); };
        list.doubleClick = [this] { take(); };
    }
    if (!hasUnits()) {
        return;
    }
    put(txtValue, ControlKind::Label, "txtValue");
    put(txtUnits, ControlKind::Label, "txtUnits");
    txtUnits.font.face = table().face;
}

void ListDialog::dressKeys() {
    if (extras_.other) {
        put(lblCodata, ControlKind::Label, "lblCodata", "CODATA 2022");
        put(txtCodata, ControlKind::Label, "txtCodata");
        put(lblSource, ControlKind::Label, "lblSource", extras_.sources);
        put(cmdCodata, ControlKind::Key, "cmdCodata", "CODATA");
        cmdCodata.tip = " Take the CODATA value of 2022 ";
        cmdCodata.click = [this] { takeOther(); };
    }
    put(cmdOk, ControlKind::Key, "cmdOk", "Select");
    cmdOk.click = [this] { take(); };
    if (extras_.toMemory) {
        put(cmdSave, ControlKind::Key, "cmdSave", "To Memory");
        cmdSave.tip = " Keep the value in Register 2 ";
        cmdSave.click = [this] {
            if (const auto row = model_.chosenRow()) {
                extras_.toMemory(table().rows[*row]);
            }
        };
    }
    put(cmdCancel, ControlKind::Key, "cmdCancel", "Cancel");
    cmdCancel.click = [this] { open = false; };
    defaultKey = &cmdOk;
    cancelKey = &cmdCancel;
}

// In a list, letters lead to the row that begins with them, as many as are typed; in the field
// above the lists, arrows move the choice.
bool ListDialog::ownKey(KeyEvent event) {
    const bool inList = focus != nullptr && focus->kind == ControlKind::List;
    const bool letter =
        (event.keyCode >= 'A' && event.keyCode <= 'Z') || (event.keyCode >= '0' && event.keyCode <= '9');
    if (inList && letter && (event.shift & (kCtrl | kAlt)) == 0) {
        model_.jump(static_cast<char>(event.keyCode));
    } else if (focus == &txtFind && (event.keyCode == kKeyUp || event.keyCode == kKeyDown)) {
        model_.step(event.keyCode == kKeyDown);
    } else {
        return false;
    }
    showChosen();
    return true;
}

void ListDialog::showChosen() {
    const auto row = model_.chosenRow();
    const char decimal = calc.s.format.DecimalChar;
    txtValue.text = row ? localValue(table().rows[*row].value, decimal) : std::string();
    txtUnits.text = row ? std::string(table().rows[*row].unit) : std::string();
    if (!extras_.other) {
        return;
    }
    const auto other = row ? extras_.other(*row) : std::nullopt;
    cmdCodata.enabled = other.has_value();
    txtCodata.text.clear();
    if (other) {
        const std::string_view between = other->spread == kExact ? "  " : " ± "_t;
        txtCodata.text = localValue(other->value + std::string(between) + other->spread, decimal);
    }
}

void ListDialog::take() {
    if (const auto row = model_.chosenRow()) {
        finish(table().rows[*row].value);
    }
}

void ListDialog::takeOther() {
    const auto row = model_.chosenRow();
    if (const auto other = row ? extras_.other(*row) : std::nullopt) {
        finish(other->value);
    }
}

void ListDialog::finish(std::string_view value) {
    taken_ = ListChoice{.row = model_.chosenRow().value_or(0), .value = localValue(value, calc.s.format.DecimalChar)};
    open = false;
}

void ListDialog::arrange() {
    const int lists = kNameWidth + kValueWidth + (hasUnits() ? kUnitWidth : 0) + kScrollBar;
    place.width = lists + 2 * kMargin;
    int top = kMargin;
    if (!table().help.empty()) {
        constexpr int kHelpLines = 5;
        lblHelp.place = {.left = kMargin, .top = top, .width = lists, .height = kHelpLines * kLine};
        top += kHelpLines * kLine + kGap;
    }
    constexpr int kFindLabel = 600;
    lblFind.place = {.left = kMargin, .top = top, .width = kFindLabel, .height = kFieldHeight};
    txtFind.place = {
        .left = kMargin + kFindLabel, .top = top, .width = kNameWidth - kFindLabel, .height = kFieldHeight};
    top = arrangeLists(top + kFieldHeight + kGap);
    top = arrangeChosen(top);
    arrangeKeys(top);
    place.height = top + kKeyHeight + kMargin;
}

int ListDialog::arrangeLists(int top) {
    struct Column {
        Control& list;
        Control* head;
        int width;
    };
    int left = kMargin;
    const Column columns[] = {{lstNameSym, nullptr, kNameWidth},
                              {lstValue, &lblValue, kValueWidth + (hasUnits() ? 0 : kScrollBar)},
                              {lstUnits, &lblUnits, kUnitWidth + kScrollBar}};
    for (const auto& [list, head, width] : columns) {
        if (head != nullptr) {
            // The filter stands in the same line, over the names.
            head->place = {.left = left + kGap, .top = top - kLine - kGap, .width = width, .height = kLine};
        }
        list.place = {.left = left, .top = top, .width = width, .height = kRows * kRowHeight};
        left += width;
    }
    return top + kRows * kRowHeight + kGap;
}

int ListDialog::arrangeChosen(int top) {
    if (!hasUnits()) {
        return top + kGap;
    }
    const int width = place.width - 2 * kMargin;
    txtValue.place = {.left = kMargin + kNameWidth + kGap, .top = top, .width = kValueWidth, .height = kLine};
    txtUnits.place = {
        .left = kMargin + kNameWidth + kValueWidth + kGap, .top = top, .width = kUnitWidth, .height = kLine};
    top += kLine + kGap;
    if (!extras_.other) {
        return top + kGap;
    }
    constexpr int kSourceLines = 3;
    lblCodata.place = {.left = kMargin, .top = top, .width = kNameWidth, .height = kLine};
    txtCodata.place = {
        .left = kMargin + kNameWidth + kGap, .top = top, .width = width - kNameWidth - kGap, .height = kLine};
    top += kLine + kGap;
    lblSource.place = {.left = kMargin, .top = top, .width = width, .height = kSourceLines * kLine};
    return top + kSourceLines * kLine + 2 * kGap;
}

void ListDialog::arrangeKeys(int top) {
    int left = place.width - kMargin;
    for (Control* key : {&cmdCancel, &cmdSave, &cmdCodata, &cmdOk}) {
        if (!key->name.empty()) {
            left -= kKeyWidth;
            key->place = {.left = left, .top = top, .width = kKeyWidth, .height = kKeyHeight};
            left -= kGap;
        }
    }
}

}  // namespace tallyforge
