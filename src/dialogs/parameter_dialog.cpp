// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/parameter_dialog.h"

#include "dialogs/dialog_support.h"
#include "dialogs/dressing.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

// Lengths in twips.
constexpr int kMargin = 120;
constexpr int kFrameWidth = 2500;
constexpr int kFrameHead = 240;
constexpr int kLine = 260;
constexpr int kFieldHeight = 300;
constexpr int kKeyWidth = 2200;
constexpr int kKeyHeight = 375;
constexpr int kLeastWidth = 2 * kKeyWidth + 3 * kMargin;
constexpr int kCharacter = 95;  ///< width of an average character

/// Lines that `text` takes in a label of that width.
int linesOf(std::string_view text, int width) {
    int lines = 0;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        lines += 1 + static_cast<int>(end) * kCharacter / width;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

ParameterDialog::ParameterDialog(Engine& engine, const ParameterTable& parameterTable, ParameterOwner parameterOwner)
    : Form(std::string(parameterTable.form), std::string(parameterTable.title)),
      calc(engine),
      table(parameterTable),
      owner(std::move(parameterOwner)),
      chosen_{.units = engine.units,
              .row = owner.row != nullptr ? *owner.row : std::nullopt,
              .number = owner.number != nullptr ? *owner.number : 0.0,
              .decimal = engine.s.format.DecimalChar} {
    helpTopic = table.helpTopic;
    makeGroups();
    makeOthers();
    hangKeys();
    enrolAll();
    showFormula();
    arrange();
    placing = [this] {
        const DialogPlace at = placeCalculator(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.left = at.DialogLeft;
        place.top = at.DialogTop;
    };
}

void ParameterDialog::ask() {
    calc.platform.showDialog(*this);
}

void ParameterDialog::makeGroups() {
    for (const ParameterGroup& group : table.groups) {
        Group& made = groups_.emplace_back();
        made.of = &group;
        dress(made.frame, ControlKind::Frame, "fra" + std::string(group.options.substr(3)), group.frame);
        std::vector<std::string_view> captions(group.captions.begin(), group.captions.end());
        if (group.range != nullptr) {
            for (const UnitRow& row : group.range->rows) {
                captions.push_back(row.caption);
            }
            if (!group.range->none.caption.empty()) {
                captions.push_back(group.range->none.caption);
            }
        }
        const auto chosen = chosenOf(group);
        for (std::size_t row = 0; row < captions.size(); ++row) {
            Control& option = made.options.emplace_back();
            dress(option, ControlKind::Option, group.options, captions.at(row), static_cast<int>(row));
            option.checked = chosen == row;
            option.click = [this, &group, row] { option_Click(group, row); };
        }
    }
}

void ParameterDialog::makeOthers() {
    dress(tick_, ControlKind::Check, table.tickName, table.tick != nullptr ? table.tick->rows.front().caption : "");
    tick_.visible = table.tick != nullptr;
    tick_.checked = table.tick != nullptr && chosenRow(*table.tick, chosen_.units).has_value();
    tick_.click = [this] {
        chooseRow(*table.tick, tick_.checked ? 0 : -1, chosen_.units);
        showFormula();
    };
    const bool hasField = !table.fieldName.empty();
    dress(lblField_, ControlKind::Label, "lblField", table.fieldTitle);
    dress(field_, ControlKind::Field, table.fieldName, "");
    lblField_.visible = field_.visible = hasField;
    field_.rightAligned = true;
    field_.spoken = table.fieldTitle;
    field_.maxLength = 15;
    if (chosen_.number != 0.0) {
        field_.text = plainText(chosen_.number, calc.s.format.DecimalChar);
        field_.caret = field_.text.size();
    }
    field_.keyPress = [this](int& key) { typeNumber(key); };
    field_.changed = [this] {
        chosen_.number = tryReadNumber(field_.text, calc.s.format.DecimalChar).value_or(0.0);
        showFormula();
    };
    dress(lblNote_, ControlKind::Label, "lblNote", table.note);
    lblNote_.visible = !table.note.empty();
    dress(lblFormula_, ControlKind::Label, "lblFormula", "");
    lblFormula_.visible = table.formula != nullptr;
}

void ParameterDialog::hangKeys() {
    dress(cmdOk, ControlKind::Key, "cmdOk", "&Use Selected Units");
    dress(cmdCancel, ControlKind::Key, "cmdCancel", "&Return with no Change");
    dress(cmdDefault, ControlKind::Key, "cmdDefault", "&Default");
    dress(cmdValues, ControlKind::Key, "cmdValues", "&Typical Values");
    cmdDefault.tip = " Set Selected Units as Default ";
    cmdOk.visible = !table.closesOnChoice;
    cmdDefault.visible =
        table.tick != nullptr || std::any_of(table.groups.begin(), table.groups.end(),
                                             [](const ParameterGroup& g) { return g.range != nullptr; });
    cmdValues.visible = table.hasValues;
    cmdValues.enabled = static_cast<bool>(owner.showValues);
    cmdOk.click = [this] { cmdOk_Click(); };
    cmdCancel.click = [this] { open = false; };
    cmdDefault.click = [this] { cmdDefault_Click(); };
    cmdValues.click = [this] { owner.showValues(); };
    defaultKey = cmdOk.visible ? &cmdOk : nullptr;
    cancelKey = &cmdCancel;
}

void ParameterDialog::enrolAll() {
    for (Group& group : groups_) {
        enrol(group.frame);
        for (Control& option : group.options) {
            enrol(option);
        }
    }
    for (Control* control :
         {&tick_, &lblField_, &field_, &lblNote_, &lblFormula_, &cmdOk, &cmdCancel, &cmdDefault, &cmdValues}) {
        if (control->visible) {
            enrol(*control);
        }
    }
    Control& first = groups_.front().options.front();
    const auto checked = std::find_if(groups_.front().options.begin(), groups_.front().options.end(),
                                      [](const Control& option) { return option.checked; });
    setFocus(checked == groups_.front().options.end() ? first : *checked);
}

int ParameterDialog::arrangeGroups() {
    int left = kMargin;
    int bottom = 0;
    for (Group& group : groups_) {
        const int height = kFrameHead + static_cast<int>(group.options.size()) * kLine + kMargin / 2;
        group.frame.place = {.left = left, .top = kMargin, .width = kFrameWidth, .height = height};
        int top = kMargin + kFrameHead;
        for (Control& option : group.options) {
            option.place = {.left = left + kMargin, .top = top, .width = kFrameWidth - 2 * kMargin, .height = kLine};
            top += kLine;
        }
        bottom = std::max(bottom, kMargin + height);
        left += kFrameWidth + kMargin;
    }
    place.width = std::max(left, kLeastWidth);
    return bottom + kMargin;
}

void ParameterDialog::arrange() {
    int top = arrangeGroups();
    const int width = place.width - 2 * kMargin;
    if (tick_.visible) {
        tick_.place = {.left = kMargin, .top = top, .width = width, .height = kLine};
        top += kLine + kMargin;
    }
    if (field_.visible) {
        lblField_.place = {.left = kMargin, .top = top, .width = width / 2, .height = kFieldHeight};
        field_.place = {.left = kMargin + width / 2, .top = top, .width = width / 2, .height = kFieldHeight};
        top += kFieldHeight + kMargin;
    }
    for (Control* label : {&lblFormula_, &lblNote_}) {
        if (label->visible) {
            const int height = linesOf(label->text, width) * kLine;
            label->place = {.left = kMargin, .top = top, .width = width, .height = height};
            top += height + kMargin;
        }
    }
    int left = kMargin;
    for (Control* key : {&cmdOk, &cmdCancel, &cmdDefault, &cmdValues}) {
        if (!key->visible) {
            continue;
        }
        if (left + kKeyWidth > place.width - kMargin) {
            left = kMargin;
            top += kKeyHeight + kMargin / 2;
        }
        key->place = {.left = left, .top = top, .width = kKeyWidth, .height = kKeyHeight};
        left += kKeyWidth + kMargin;
    }
    place.height = top + kKeyHeight + kMargin;
}

std::optional<std::size_t> ParameterDialog::chosenOf(const ParameterGroup& group) const {
    if (group.range == nullptr) {
        return chosen_.row;
    }
    if (const auto row = chosenRow(*group.range, chosen_.units); row) {
        return static_cast<std::size_t>(*row);
    }
    return group.range->none.caption.empty() ? std::nullopt : std::optional(group.range->rows.size());
}

void ParameterDialog::option_Click(const ParameterGroup& group, std::size_t row) {
    if (group.range == nullptr) {
        chosen_.row = row;
    } else {
        chooseRow(*group.range, row < group.range->rows.size() ? static_cast<int>(row) : -1, chosen_.units);
    }
    if (table.closesOnChoice) {
        putInForce();
        open = false;
        return;
    }
    showFormula();
}

void ParameterDialog::typeNumber(int& key) {
    DialogKeyFilter filter(calc.s.format.DecimalChar);
    filter.EexActive = field_.text.find('e') != std::string::npos;
    filter.exponentSign = field_.text.find("e-") != std::string::npos;
    const std::string result = filter.filter(key, field_.text);
    const bool isCode = result != "chs" && result != "esc";
    key = isCode ? std::stoi(result) : 0;
}

bool ParameterDialog::readNumberField() {
    if (table.fieldName.empty() || field_.text.empty()) {
        chosen_.number = 0.0;
        return true;
    }
    const auto number = tryReadNumber(field_.text, calc.s.format.DecimalChar);
    if (!number) {
        calc.message(BoxKind::Stop, "Error!", std::string(table.fieldTitle) + ": this is no number!");
        setFocus(field_);
        return false;
    }
    chosen_.number = *number;
    return true;
}

void ParameterDialog::putInForce() {
    calc.units = chosen_.units;
    if (owner.row != nullptr) {
        *owner.row = chosen_.row;
    }
    if (owner.number != nullptr) {
        *owner.number = chosen_.number;
    }
}

void ParameterDialog::cmdOk_Click() {
    if (table.wantsRow && !chosen_.row) {
        calc.message(BoxKind::Stop, "Nothing to convert!", "Are you sure? There's nothing to do!");
        return;
    }
    if (readNumberField()) {
        putInForce();
        open = false;
    }
}

void ParameterDialog::cmdDefault_Click() {
    std::vector<const UnitRange*> ranges;
    for (const ParameterGroup& group : table.groups) {
        if (group.range != nullptr) {
            ranges.push_back(group.range);
        }
    }
    if (table.tick != nullptr) {
        ranges.push_back(table.tick);
    }
    const UnitWords before = std::exchange(calc.units, chosen_.units);
    if (!owner.saveUnits || !owner.saveUnits(ranges)) {
        calc.units = before;
    }
}

void ParameterDialog::showFormula() {
    if (table.formula != nullptr) {
        lblFormula_.text = table.formula(chosen_);
    }
}

}  // namespace tallyforge
