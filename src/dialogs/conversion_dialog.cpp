// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/conversion_dialog.h"

#include "dialogs/unit_search.h"
#include "dialogs/unit_tips.h"
#include "engine/engine.h"
#include "numbers/failure.h"
#include "platform/borrowed.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

ConversionDialog::ConversionDialog(const ConversionTable& table, Engine& engine, int topic)
    : Form(std::string(table.form), std::string(table.title)), table_(table), calc(engine) {
    helpTopic = topic;
    makeBanks();
    makeKeys();
    hangKeys();
    enrolAll();
    layOut();
}

std::optional<ConversionChoice> ConversionDialog::ask(const ConversionRequest& request) {
    present(request);
    {
        const Borrowed opened{calc.dialogOpen, true};
        calc.platform.showDialog(*this);
    }
    return std::exchange(chosen_, std::nullopt);
}

void ConversionDialog::present(const ConversionRequest& request) {
    chosen_.reset();
    x_ = request.x;
    toIsNext_ = false;
    txtFind.text.clear();
    txtFind.caret = 0;
    if (narrowed_) {
        txtFind_Change();
    }
    clearMarks();
    chooseSizes(request.sizes);
    if (request.former) {
        choose(*request.former);
    }
    updateStops();
    setFocus(txtFind);
}

void ConversionDialog::mark(int unit, bool isTo, bool on) {
    if (unit >= 0) {
        bank(group_, isTo).buttons[static_cast<std::size_t>(unit)].checked = on;
    }
}

// A unit cannot be chosen against itself: the twin of a chosen button takes no click.
void ConversionDialog::setTwins(bool enabled) {
    if (FromIndex >= 0) {
        bank(group_, true).buttons[static_cast<std::size_t>(FromIndex)].enabled = enabled;
    }
    if (ToIndex >= 0) {
        bank(group_, false).buttons[static_cast<std::size_t>(ToIndex)].enabled = enabled;
    }
}

void ConversionDialog::clearMarks() {
    setTwins(true);
    mark(FromIndex, false, false);
    mark(ToIndex, true, false);
    FromIndex = -1;
    ToIndex = -1;
}

void ConversionDialog::option_Click(const Bank& clicked, int unit) {
    UnitPair pair{.group = clicked.group, .from = -1, .to = -1};
    if (clicked.group == group_) {
        pair.from = FromIndex;
        pair.to = ToIndex;
    }
    (clicked.isTo ? pair.to : pair.from) = unit;
    toIsNext_ = !clicked.isTo;
    choose(pair);
    updateStops();
}

void ConversionDialog::choose(UnitPair pair) {
    clearMarks();
    group_ = pair.group;
    FromIndex = pair.from;
    ToIndex = pair.to;
    setTwins(false);
    mark(FromIndex, false, true);
    mark(ToIndex, true, true);
    showChoice();
}

void ConversionDialog::cmdSwap_Click() {
    if (FromIndex >= 0 || ToIndex >= 0) {
        choose({.group = group_, .from = ToIndex, .to = FromIndex});
        updateStops();
    }
}

void ConversionDialog::chooseSizes(Sizes sizes) {
    sizes_ = sizes;
    OptExact[0].checked = sizes == Sizes::Table;
    OptExact[1].checked = sizes == Sizes::Exact;
    showChoice();
}

void ConversionDialog::cmdOK_Click(bool keepsX) {
    if (complete()) {
        chosen_ = {.pair = {.group = group_, .from = FromIndex, .to = ToIndex}, .sizes = sizes_, .keepsX = keepsX};
    }
    open = false;
}

void ConversionDialog::showChoice() {
    lblResult.text = resultText();
    lblNote.text = noteText();
}

std::string ConversionDialog::resultText() const {
    if (!complete()) {
        return {};
    }
    const UnitGroup& group = table_.group(group_);
    try {
        const Conversion result = convert(group, FromIndex, ToIndex, x_, sizes_);
        if (result.withoutRatio) {
            return "no factor: X unchanged";
        }
        return calc.text(ValueCell{x_}) + " " + std::string(fromLabel(group, FromIndex)) + " = " +
               calc.text(ValueCell{result.value}) + " " + std::string(toLabel(group, ToIndex));
    } catch (const Failure& failure) {
        return std::string(description(failure.number()));
    }
}

std::string ConversionDialog::noteText() const {
    return sizes_ == Sizes::Exact
               ? std::string{}
               : deviationText(table_.group(group_), {.group = group_, .from = FromIndex, .to = ToIndex},
                               calc.s.format.DecimalChar);
}

// What is typed narrows the banks to the units that answer to it.
void ConversionDialog::txtFind_Change() {
    const UnitQuery query(txtFind.text);
    for (Bank& each : banks_) {
        const UnitGroup& group = table_.group(each.group);
        for (int unit = 0; unit < each.units; ++unit) {
            each.buttons[static_cast<std::size_t>(unit)].visible =
                query.empty() || query.match(group.at(unit)) != Hit::None;
        }
    }
    narrowed_ = !query.empty();
    updateStops();
}

std::optional<UnitPair> ConversionDialog::bestHit(bool isTo) const {
    const UnitQuery query(txtFind.text);
    Hit best = Hit::None;
    std::optional<UnitPair> found;
    for (int index = 0; index < static_cast<int>(table_.groups.size()); ++index) {
        const UnitGroup& group = table_.group(index);
        // The To unit belongs to the group of the From unit.
        if (isTo && FromIndex >= 0 && index != group_) {
            continue;
        }
        for (int unit = 0; unit < static_cast<int>(group.units.size()); ++unit) {
            const bool twin = isTo && index == group_ && unit == FromIndex;
            const Hit hit = twin ? Hit::None : query.match(group.at(unit));
            if (hit < best) {
                best = hit;
                found = {.group = index, .from = unit, .to = unit};
            }
        }
    }
    return found;
}

// The first hit becomes the From unit, the next one the To unit.
void ConversionDialog::takeHit() {
    const auto hit = bestHit(toIsNext_);
    if (!hit) {
        return;
    }
    UnitPair pair{.group = hit->group, .from = -1, .to = -1};
    if (hit->group == group_) {
        pair.from = FromIndex;
        pair.to = ToIndex;
    }
    if (toIsNext_) {
        pair.to = hit->to;
    } else {
        pair.from = hit->from;
        pair.to = pair.to == pair.from ? -1 : pair.to;
    }
    toIsNext_ = !toIsNext_;
    txtFind.text.clear();
    txtFind.caret = 0;
    choose(pair);
    txtFind_Change();
}

void ConversionDialog::txtFind_KeyDown(KeyEvent event) {
    if (event.keyCode != kKeyEnter) {
        return;
    }
    if (UnitQuery(txtFind.text).empty()) {
        cmdOK_Click(false);
    } else {
        takeHit();
    }
}

}  // namespace tallyforge
