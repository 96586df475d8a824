// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/find_unit.h"

#include "convert/conversion_tables.h"
#include "dialogs/conversion.h"
#include "dialogs/dialog_support.h"
#include "engine/engine.h"
#include "platform/borrowed.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <tuple>

namespace tallyforge {

namespace {

constexpr int kHelpTopic = 1430;  ///< a page of its own, behind those of the keys

int rankOf(Hit hit) {
    return static_cast<int>(hit);
}

}  // namespace

void FoundRows::searchIn(const ConversionTable& table, int group, const UnitQuery& from, const UnitQuery* to) {
    const UnitGroup& units = table.group(group);
    const int count = static_cast<int>(units.units.size());
    for (int unit = 0; unit < count; ++unit) {
        const Hit hit = from.match(units.at(unit));
        if (hit == Hit::None) {
            continue;
        }
        if (to == nullptr) {
            found_.push_back({{{&table, group, unit}, std::nullopt}, rankOf(hit)});
            continue;
        }
        for (int other = 0; other < count; ++other) {
            const Hit otherHit = other == unit ? Hit::None : to->match(units.at(other));
            if (otherHit != Hit::None) {
                found_.push_back({{{&table, group, unit}, other}, rankOf(hit) + rankOf(otherHit)});
            }
        }
    }
}

void FoundRows::search(std::string_view typed) {
    constexpr std::string_view kTo = " to ";
    const auto at = typed.find(kTo);
    const UnitQuery from(typed.substr(0, at));
    const UnitQuery to(at == typed.npos ? std::string_view{} : typed.substr(at + kTo.size()));
    found_.clear();
    for (const ConversionTable* table : conversionTables()) {
        for (int group = 0; group < static_cast<int>(table->groups.size()); ++group) {
            searchIn(*table, group, from, to.empty() ? nullptr : &to);
        }
    }
    // With nothing typed the units stand as in their tables.
    if (!from.empty()) {
        std::stable_sort(found_.begin(), found_.end(),
                         [](const Row& left, const Row& right) { return left.rank < right.rank; });
    }
    selected_ = 0;
    ++revision_;
}

const FoundUnits* FoundRows::chosen() const {
    return selected_ < found_.size() ? &found_[selected_].units : nullptr;
}

std::string FoundRows::row(std::size_t index) const {
    const FoundUnits& units = found_[index].units;
    std::string text(units.from.row().from);
    if (units.to) {
        text += " to " + std::string(units.from.of().at(*units.to).from);
    }
    return text + " (" + std::string(units.from.of().heading) + ")";
}

void FoundRows::select(std::size_t index) {
    selected_ = std::min(index, found_.size());
    ++revision_;
}

FindUnitDialog::FindUnitDialog(Engine& engine) : Form("frmFindUnit", "Find Unit"), calc(engine) {
    helpTopic = kHelpTopic;
    const auto make = [this](Control& control, std::string_view called, ControlKind kind, std::string_view tip) {
        control.name = called;
        control.kind = kind;
        control.tip = tip;
        control.font.points = 8.0F;
        enrol(control);
    };
    make(txtFind, "txtFind", ControlKind::Field, "Letters of a unit, or two units: psi to bar");
    make(lstUnits, "lstUnits", ControlKind::List, {});
    make(cmdOK, "cmdOK", ControlKind::Key, "Open the unit's dialog");
    make(cmdCancel, "cmdCancel", ControlKind::Key, "Return with no Change");
    txtFind.spoken = "Find a unit";
    lstUnits.spoken = "Units";
    lstUnits.rows = &rows_;
    cmdOK.text = "OK";
    cmdCancel.text = "Cancel";
    hang();
    layOut();
}

void FindUnitDialog::hang() {
    const auto agree = [this] {
        agreed_ = true;
        open = false;
    };
    txtFind.changed = [this] { rows_.search(txtFind.text); };
    cmdOK.click = agree;
    lstUnits.doubleClick = agree;
    cmdCancel.click = [this] { open = false; };
    defaultKey = &cmdOK;
    cancelKey = &cmdCancel;
    preview = [this](KeyEvent event) {
        const bool walks = event.keyCode == kKeyUp || event.keyCode == kKeyDown;
        if (walks) {
            walkList(event.keyCode);
        }
        return walks;
    };
    placing = [this] {
        const DialogPlace beside = PlaceDialog(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.left = beside.DialogLeft;
        place.top = beside.DialogTop;
    };
}

void FindUnitDialog::layOut() {
    constexpr int kMargin = 150;
    constexpr int kWidth = 3600;
    constexpr int kListHeight = 2600;
    constexpr int kKeyTop = kMargin + 400 + kListHeight + 120;
    txtFind.place = {.left = kMargin, .top = kMargin, .width = kWidth, .height = 300};
    lstUnits.place = {.left = kMargin, .top = kMargin + 400, .width = kWidth, .height = kListHeight};
    cmdOK.place = {.left = kMargin, .top = kKeyTop, .width = 950, .height = 340};
    cmdCancel.place = {.left = kMargin + 1070, .top = kKeyTop, .width = 950, .height = 340};
    place.width = kWidth + 2 * kMargin;
    place.height = kKeyTop + 340 + kMargin;
}

// The arrows walk the list while the letters go on narrowing it.
void FindUnitDialog::walkList(int keyCode) {
    const std::size_t at = rows_.selected();
    if (keyCode == kKeyDown && at + 1 < rows_.count()) {
        rows_.select(at + 1);
    } else if (keyCode == kKeyUp && at > 0) {
        rows_.select(at - 1);
    }
}

std::optional<FoundUnits> FindUnitDialog::ask() {
    agreed_ = false;
    txtFind.text.clear();
    txtFind.caret = 0;
    rows_.search({});
    setFocus(txtFind);
    {
        const Borrowed opened{calc.dialogOpen, true};
        calc.platform.showDialog(*this);
    }
    const FoundUnits* const chosen = agreed_ ? rows_.chosen() : nullptr;
    return chosen == nullptr ? std::nullopt : std::optional{*chosen};
}

}  // namespace tallyforge
