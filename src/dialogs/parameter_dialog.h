// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one dialog of the light blue keys: groups of option keys, made from a table, that choose the
// units, the shape or the material that a key computes with. A group over a range of a units word
// changes that word; a group with captions of its own changes what its owner holds. Nothing is
// changed before "Use Selected Units", but in a dialog that closes with the click on an option.
//
//     constexpr ParameterGroup kGroups[] = {{.options = "OptLen", .frame = "Length", .range = &kMagLen}};
//     constexpr ParameterTable kLs{.form = "frmLs", .title = "Select ...", .groups = kGroups};
//     ParameterDialog{calc, kLs, {.saveUnits = keys.saveUnits}}.ask();
#pragma once

#include "dialogs/unit_tables.h"
#include "platform/form.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

struct ParameterGroup {
    std::string_view options;                      ///< control array, "OptLen"
    std::string_view frame;                        ///< heading
    const UnitRange* range = nullptr;              ///< its rows and, where no bit is a choice too, its `none`; else
    std::span<const std::string_view> captions{};  ///< rows of a choice that the owner holds
};

/// What is chosen while the dialog is open.
struct ParameterChoice {
    UnitWords units;
    std::optional<std::size_t> row;  ///< of the group with captions of its own
    double number = 0.0;             ///< of the field
    char decimal = '.';              ///< in texts
};

struct ParameterTable {
    std::string_view form;
    std::string_view title;
    int helpTopic = 0;
    std::span<const ParameterGroup> groups;
    const UnitRange* tick = nullptr;  ///< a range of one row, as a box to tick
    std::string_view tickName{};
    std::string_view fieldName{};   ///< a field for a number, empty for 0
    std::string_view fieldTitle{};  ///< "Cd (pF)"
    std::string_view note{};
    /// The relation that the key computes, with the numbers that follow from the choice.
    std::string (*formula)(const ParameterChoice&) = nullptr;
    bool closesOnChoice = false;
    /// Leaving by cmdOk wants a row of the group with captions of its own.
    bool wantsRow = false;
    bool hasValues = false;  ///< "&Typical Values"
};

/// What the owner gives and gets.
struct ParameterOwner {
    std::optional<std::size_t>* row = nullptr;  ///< of the group with captions of its own
    double* number = nullptr;                   ///< of the field
    /// Asks whether the units in force of these ranges are to be the default; whether they are now.
    std::function<bool(std::span<const UnitRange* const>)> saveUnits{};
    /// Opens a list of typical values over the dialog; the key is disabled where there is none.
    std::function<void()> showValues{};
};

class ParameterDialog final : public Form {
public:
    ParameterDialog(Engine& engine, const ParameterTable& parameterTable, ParameterOwner parameterOwner);

    /// Shows the dialog; returns when the user has left it.
    void ask();

    Control cmdOk, cmdCancel, cmdDefault, cmdValues;

private:
    struct Group {
        const ParameterGroup* of = nullptr;
        Control frame;
        std::deque<Control> options;
    };

    void makeGroups();
    void makeOthers();
    void hangKeys();
    void enrolAll();
    void arrange();
    int arrangeGroups();
    [[nodiscard]] std::optional<std::size_t> chosenOf(const ParameterGroup& group) const;
    void option_Click(const ParameterGroup& group, std::size_t row);
    void typeNumber(int& key);
    [[nodiscard]] bool readNumberField();
    void putInForce();
    void cmdOk_Click();
    void cmdDefault_Click();
    void showFormula();

    Engine& calc;
    const ParameterTable& table;
    ParameterOwner owner;
    ParameterChoice chosen_;
    std::deque<Group> groups_;
    Control tick_, lblField_, field_, lblNote_, lblFormula_;
};

}  // namespace tallyforge
