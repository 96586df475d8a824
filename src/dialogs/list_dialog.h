// SPDX-License-Identifier: GPL-3.0-or-later
//
// The family of dialogs that are lists of values to pick from: names, values and units stand in
// lists side by side that select together, a field above them filters, and Select takes the value
// of the chosen row. A dialog is a table of rows; the caller shows one with ListDialog::pick and
// gets what was chosen.
#pragma once

#include "dialogs/list_model.h"
#include "platform/form.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

/// A value from another source than the table's own, that a second key takes.
struct OtherValue {
    std::string value;   ///< with a decimal point
    std::string spread;  ///< how sure it is, as it is shown behind the value
};

/// What some lists offer beside Select.
struct ListExtras {
    /// The other value of a row of the table; `cmdCodata` takes it. None for lists without.
    std::function<std::optional<OtherValue>(std::size_t row)> other{};
    std::string_view sources{};  ///< where both values come from, in `lblSource`
    /// `cmdSave` was clicked on this row. None for lists without.
    std::function<void(const ListRow& row)> toMemory{};
};

/// The row that the user took, and its value as a text in the user's locale.
struct ListChoice {
    std::size_t row = 0;
    std::string value;
};

class ListDialog final : public Form {
public:
    ListDialog(Engine& calculator, const ListTable& table, ListMemory& memory, ListExtras extras = {});

    /// Shows the dialog until it is closed; what was taken, or nothing where it was cancelled.
    [[nodiscard]] std::optional<ListChoice> pick();

    Control txtFind, lblFind;
    Control lstNameSym, lstValue, lstUnits;
    Control lblValue, lblUnits;  ///< heads of the lists
    Control txtValue, txtUnits;  ///< what is chosen, where the list shows it
    Control txtCodata, lblCodata, lblSource;
    Control lblHelp;
    Control cmdOk, cmdSave, cmdCodata, cmdCancel;

private:
    void dressLists();
    void dressLabels();
    void dressKeys();
    void put(Control& control, ControlKind kind, std::string_view controlName, std::string_view text = {});
    void arrange();
    int arrangeLists(int top);
    int arrangeChosen(int top);
    void arrangeKeys(int top);
    void showChosen();
    bool ownKey(KeyEvent event);
    void take();
    void takeOther();
    void finish(std::string_view value);
    [[nodiscard]] const ListTable& table() const { return model_.table(); }
    [[nodiscard]] bool hasUnits() const { return !table().unitHead.empty(); }

    Engine& calc;
    ListExtras extras_;
    ListModel model_;
    ListColumn names_, values_, units_;
    std::optional<ListChoice> taken_;
};

}  // namespace tallyforge
