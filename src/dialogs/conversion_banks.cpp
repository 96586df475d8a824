// SPDX-License-Identifier: GPL-3.0-or-later
//
// The making of a conversion dialog: its controls, where they stand, and the keyboard's way through
// the banks.
#include "dialogs/conversion_dialog.h"
#include "dialogs/dialog_support.h"
#include "dialogs/unit_tips.h"
#include "engine/engine.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace tallyforge {

namespace {

// Twips.
constexpr int kMargin = 150;
constexpr int kLine = 215;  ///< from option to option
constexpr int kFieldHeight = 290;
constexpr int kHeadingTop = 560;
constexpr int kBanksTop = 800;
constexpr int kKeyWidth = 950;
constexpr int kKeyHeight = 340;
constexpr int kGroupGap = 300;
constexpr int kMostRows = 16;  ///< of a column of options
constexpr float kPoints = 8.0F;

/// Width of a column that holds captions of `letters` letters.
int columnWidth(std::size_t letters) {
    constexpr int kDot = 290;
    constexpr int kLetter = 80;
    return kDot + kLetter * static_cast<int>(letters);
}

/// Rows of a bank, so that its columns are of one height.
int rowsFor(int units) {
    const int columns = (units + kMostRows - 1) / kMostRows;
    return (units + columns - 1) / columns;
}

int columnsFor(int units) {
    return (units + rowsFor(units) - 1) / rowsFor(units);
}

void make(Control& control, std::string_view name, ControlKind kind, std::string_view text, std::string_view tip) {
    control.name = name;
    control.kind = kind;
    control.text = text;
    control.tip = tip;
    control.font.points = kPoints;
}

}  // namespace

void ConversionDialog::makeBanks() {
    const int groups = static_cast<int>(table_.groups.size());
    banks_.resize(2 * table_.groups.size());
    for (int group = 0; group < groups; ++group) {
        for (const bool isTo : {false, true}) {
            Bank& made = bank(group, isTo);
            made.group = group;
            made.isTo = isTo;
            makeButtons(made);
        }
    }
}

void ConversionDialog::makeButtons(Bank& made) {
    const UnitGroup& group = table_.group(made.group);
    const std::string side = made.isTo ? "To" : "From";
    const std::string heading = groupCount() > 1 && !made.isTo ? std::string(group.heading) + ": " + side : side;
    make(made.heading, made.isTo ? "lblTo" : "lblFrom", ControlKind::Label, heading, {});
    made.heading.index = made.group;
    made.heading.font.bold = true;
    made.units = static_cast<int>(group.units.size());
    made.buttons.resize(static_cast<std::size_t>(group.bankSize()));
    for (int unit = 0; unit < group.bankSize(); ++unit) {
        Control& button = made.buttons[static_cast<std::size_t>(unit)];
        const bool there = unit < made.units;
        make(button, group.options, ControlKind::Option, {}, {});
        button.index = made.isTo ? group.toButton(unit) : unit;
        button.group = std::string(group.options) + side;
        button.tabStop = false;
        button.visible = there;
        if (there) {
            const Unit& row = group.at(unit);
            button.text = made.isTo ? row.to : row.from;
            button.tip = unitTip(group, unit, calc.s.format.DecimalChar);
            button.spoken = side + " " + std::string(row.from);
            button.click = [this, &made, unit] { option_Click(made, unit); };
        }
    }
}

void ConversionDialog::makeKeys() {
    make(lblFind, "lblFind", ControlKind::Label, "Find", {});
    make(txtFind, "txtFind", ControlKind::Field, {}, "Letters of a unit; Enter takes the first as From, then as To");
    txtFind.spoken = "Find a unit";
    txtFind.takesEnter = true;
    make(OptExact[0], "OptExact", ControlKind::Option, "Table", "Convert by the factors of the table");
    make(OptExact[1], "OptExact", ControlKind::Option, "Exact", "Convert by the units' definitions");
    OptExact[0].index = 0;
    OptExact[1].index = 1;
    make(lblResult, "lblResult", ControlKind::Label, {}, {});
    lblResult.font.bold = true;
    make(lblNote, "lblNote", ControlKind::Label, {}, {});
    make(cmdOK, "cmdOK", ControlKind::Key, "OK", "Use Selected Units");
    make(cmdCancel, "cmdCancel", ControlKind::Key, "Cancel", "Return with no Change");
    make(cmdDef, "cmdDef", ControlKind::Key, "&Default", "Select the default units");
    cmdDef.visible = table_.hasPreset();
    make(cmdSwap, "cmdSwap", ControlKind::Key, "&Swap", "From and To change places");
    make(cmdKeep, "cmdKeep", ControlKind::Key, "&Keep X", "The result goes above X, which stays");
}

void ConversionDialog::hangKeys() {
    txtFind.changed = [this] { txtFind_Change(); };
    txtFind.keyDown = [this](KeyEvent event) { txtFind_KeyDown(event); };
    OptExact[0].click = [this] { chooseSizes(Sizes::Table); };
    OptExact[1].click = [this] { chooseSizes(Sizes::Exact); };
    cmdOK.click = [this] { cmdOK_Click(false); };
    cmdKeep.click = [this] { cmdOK_Click(true); };
    cmdCancel.click = [this] { open = false; };
    cmdDef.click = [this] {
        choose(table_.preset);
        updateStops();
    };
    cmdSwap.click = [this] { cmdSwap_Click(); };
    defaultKey = &cmdOK;
    cancelKey = &cmdCancel;
    preview = [this](KeyEvent event) { return preview_(event); };
    placing = [this] {
        const DialogPlace beside = PlaceDialog(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.left = beside.DialogLeft;
        place.top = beside.DialogTop;
    };
}

void ConversionDialog::enrolAll() {
    enrol(lblFind);
    enrol(txtFind);
    for (Bank& each : banks_) {
        enrol(each.heading);
        for (Control& button : each.buttons) {
            enrol(button);
        }
    }
    for (Control* control :
         {&OptExact[0], &OptExact[1], &lblResult, &lblNote, &cmdOK, &cmdCancel, &cmdDef, &cmdSwap, &cmdKeep}) {
        enrol(*control);
    }
    for (Control* control : controls()) {
        control->mouseDown = [this](MouseButton button, std::uint8_t) {
            if (button == MouseButton::Right) {
                calc.platform.helpTopic(helpTopic);
            }
        };
    }
}

void ConversionDialog::placeBank(Bank& placed, int left, int width) {
    const int rows = rowsFor(placed.units);
    for (int unit = 0; unit < placed.units; ++unit) {
        placed.buttons[static_cast<std::size_t>(unit)].place = {.left = left + unit / rows * width,
                                                                .top = kBanksTop + unit % rows * kLine,
                                                                .width = width - 30,
                                                                .height = kLine};
    }
}

void ConversionDialog::layOut() {
    int left = kMargin;
    int rows = 0;
    for (Bank& each : banks_) {
        std::size_t letters = 0;
        for (const Control& button : each.buttons) {
            letters = std::max(letters, button.text.size());
        }
        const int width = columnWidth(letters);
        const int whole = std::max(width * columnsFor(each.units), columnWidth(each.heading.text.size()));
        placeBank(each, left, width);
        each.heading.place = {.left = left, .top = kHeadingTop, .width = whole, .height = kLine};
        left += whole + kGroupGap;
        rows = std::max(rows, rowsFor(each.units));
    }
    constexpr int kLeastWidth = 6000;
    const int width = std::max(left - kGroupGap + kMargin, kLeastWidth);
    lblFind.place = {.left = kMargin, .top = kMargin + 40, .width = 420, .height = kLine};
    txtFind.place = {.left = kMargin + 450, .top = kMargin, .width = 2200, .height = kFieldHeight};
    OptExact[0].place = {.left = 3050, .top = kMargin + 40, .width = 700, .height = kLine};
    OptExact[1].place = {.left = 3800, .top = kMargin + 40, .width = 700, .height = kLine};
    const int below = kBanksTop + rows * kLine + 80;
    const int whole = width - 2 * kMargin;
    lblResult.place = {.left = kMargin, .top = below, .width = whole, .height = 240};
    lblNote.place = {.left = kMargin, .top = below + 250, .width = whole, .height = kLine};
    int keyLeft = kMargin;
    for (Control* key : {&cmdOK, &cmdCancel, &cmdSwap, &cmdKeep, &cmdDef}) {
        key->place = {.left = keyLeft, .top = below + 520, .width = kKeyWidth, .height = kKeyHeight};
        keyLeft += kKeyWidth + 120;
    }
    place.width = width;
    place.height = below + 520 + kKeyHeight + kMargin;
}

// Tab stops once in each bank: at the chosen unit, or at the first that can be chosen.
void ConversionDialog::updateStops() {
    for (Bank& each : banks_) {
        const int chosen = each.group == group_ ? (each.isTo ? ToIndex : FromIndex) : -1;
        const auto at = [&](int unit) -> Control& { return each.buttons[static_cast<std::size_t>(unit)]; };
        const int stop = chosen >= 0 && at(chosen).visible ? chosen : stepFrom(each, -1, 1);
        if (stop != each.stop) {
            for (const auto& [unit, stops] : {std::pair{each.stop, false}, std::pair{stop, true}}) {
                if (unit >= 0) {
                    at(unit).tabStop = stops;
                }
            }
            each.stop = stop;
        }
    }
}

// The next unit in that direction that can be chosen; -1 where there is none.
int ConversionDialog::stepFrom(const Bank& walked, int unit, int step) {
    for (int next = unit + step; next >= 0 && next < walked.units; next += step) {
        const Control& button = walked.buttons[static_cast<std::size_t>(next)];
        if (button.visible && button.enabled) {
            return next;
        }
    }
    return -1;
}

bool ConversionDialog::preview_(KeyEvent event) {
    if (focus == nullptr || focus->kind != ControlKind::Option || (event.shift & (kCtrl | kAlt)) != 0) {
        return false;
    }
    for (Bank& each : banks_) {
        if (each.buttons.empty() || focus < &each.buttons.front() || focus > &each.buttons.back()) {
            continue;
        }
        const int unit = static_cast<int>(focus - &each.buttons.front());
        return walk(each, unit, event.keyCode) || jump(each, unit, event.keyCode);
    }
    return false;
}

bool ConversionDialog::walk(const Bank& walked, int unit, int keyCode) {
    const int rows = rowsFor(walked.units);
    int next = -1;
    switch (keyCode) {
        case kKeyUp:
            next = stepFrom(walked, unit, -1);
            break;
        case kKeyDown:
            next = stepFrom(walked, unit, 1);
            break;
        case kKeyLeft:
            next = stepFrom(walked, unit, -rows);
            break;
        case kKeyRight:
            next = stepFrom(walked, unit, rows);
            break;
        default:
            return false;
    }
    moveTo(walked, next);
    return true;
}

// A letter goes to the next unit whose caption begins with it.
bool ConversionDialog::jump(const Bank& walked, int unit, int keyCode) {
    if (keyCode < 'A' || keyCode > 'Z') {
        return false;
    }
    for (int step = 1; step <= walked.units; ++step) {
        const int next = (unit + step) % walked.units;
        const Control& button = walked.buttons[static_cast<std::size_t>(next)];
        const bool begins = std::toupper(static_cast<unsigned char>(button.text.front())) == keyCode;
        if (begins && button.visible && button.enabled) {
            moveTo(walked, next);
            break;
        }
    }
    return true;
}

void ConversionDialog::moveTo(const Bank& walked, int unit) {
    if (unit >= 0) {
        setFocus(bank(walked.group, walked.isTo).buttons[static_cast<std::size_t>(unit)]);
        option_Click(walked, unit);
    }
}

}  // namespace tallyforge
