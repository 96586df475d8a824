// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_walk.h"

#include "platform/form_acts.h"
#include "platform/form_focus.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

namespace {

bool isReached(const Control& control) {
    return control.walkStop != 0 && takesInput(control) && canHaveFocus(control.kind) && control.place.width > 0;
}

/// The control of a stop at which the walk comes in: the chosen option, or the first in reading order.
Control* entryOf(const Form& form, int stop) {
    Control* first = nullptr;
    for (Control* control : form.controls()) {
        if (control->walkStop != stop || !isReached(*control)) {
            continue;
        }
        if (control->kind == ControlKind::Option && control->checked) {
            return control;
        }
        const bool before = first == nullptr || control->place.top < first->place.top ||
                            (control->place.top == first->place.top && control->place.left < first->place.left);
        first = before ? control : first;
    }
    return first;
}

void goToStop(Form& form, bool backwards) {
    int last = 0;
    for (const Control* control : form.controls()) {
        last = std::max(last, control->walkStop);
    }
    const int here = form.tabbedTo != nullptr ? form.tabbedTo->walkStop : form.typing->walkStop;
    for (int step = 1; step <= last; ++step) {
        const int stop = 1 + (here - 1 + (backwards ? last - step : step)) % last;
        if (Control* found = entryOf(form, stop); found != nullptr) {
            form.tabbedTo = found == form.typing ? nullptr : found;
            return;
        }
    }
}

/// Where an arrow points, as steps to the right and down.
struct Direction {
    int right = 0;
    int down = 0;
};

std::optional<Direction> directionOf(int keyCode) {
    switch (keyCode) {
        case kKeyLeft:
            return Direction{.right = -1};
        case kKeyRight:
            return Direction{.right = 1};
        case kKeyUp:
            return Direction{.down = -1};
        case kKeyDown:
            return Direction{.down = 1};
        default:
            return std::nullopt;
    }
}

/// The nearest control of the same stop in that direction; what lies off the line is farther.
void stepBeside(Form& form, Direction direction) {
    constexpr int kOffTheLine = 4;
    const auto middle = [](const Control& control) {
        return Direction{.right = control.place.left + control.place.width / 2,
                         .down = control.place.top + control.place.height / 2};
    };
    const Direction here = middle(*form.tabbedTo);
    Control* nearest = nullptr;
    int best = 0;
    for (Control* control : form.controls()) {
        if (control == form.tabbedTo || control->walkStop != form.tabbedTo->walkStop || !isReached(*control)) {
            continue;
        }
        const Direction there = middle(*control);
        const int right = there.right - here.right;
        const int down = there.down - here.down;
        const int along = right * direction.right + down * direction.down;
        const int off = std::abs(direction.right != 0 ? down : right);
        const int distance = along + kOffTheLine * off;
        if (along > off && (nearest == nullptr || distance < best)) {
            nearest = control;
            best = distance;
        }
    }
    form.tabbedTo = nearest == nullptr ? form.tabbedTo : nearest;
}

bool copiesRow(const Form& form, KeyStroke stroke) {
    const ListRows& rows = *form.tabbedTo->rows;
    if (stroke.keyCode != 'C' || stroke.shift != kCtrl || !form.copyText || rows.selected() >= rows.count()) {
        return false;
    }
    const std::string row = rows.row(rows.selected());
    const auto first = row.find_first_not_of(' ');
    form.copyText(first == row.npos ? std::string_view{} : std::string_view(row).substr(first));
    return true;
}

/// Arrows, Home, End, page keys and letters choose a row; Enter recalls it as the mouse does.
bool walksList(Form& form, KeyStroke stroke) {
    Control& list = *form.tabbedTo;
    if (list.rows == nullptr || list.rows->count() == 0) {
        return false;
    }
    if (stroke.keyCode == kKeyEnter && stroke.shift == 0) {
        form.tabbedTo = nullptr;
        runHandler(list.doubleClick ? list.doubleClick : list.click);
        return true;
    }
    if (copiesRow(form, stroke)) {
        return true;
    }
    const bool digit = stroke.character >= '0' && stroke.character <= '9';
    if (digit || (stroke.shift & (kCtrl | kAlt)) != 0) {
        return false;
    }
    if (const std::size_t row = rowByKey(*list.rows, stroke); row < list.rows->count()) {
        list.rows->select(row);
        return true;
    }
    return false;
}

bool walksOn(Form& form, KeyStroke stroke) {
    if (stroke.keyCode == kKeyEscape) {
        form.tabbedTo = nullptr;
        return true;
    }
    if (stroke.keyCode == kKeySpace && form.tabbedTo->kind != ControlKind::List) {
        Control& pressed = *std::exchange(form.tabbedTo, nullptr);
        click(form, pressed, stroke.shift);
        return true;
    }
    if (form.tabbedTo->kind == ControlKind::List) {
        return walksList(form, stroke);
    }
    const auto direction = directionOf(stroke.keyCode);
    if (direction) {
        stepBeside(form, *direction);
    }
    return direction.has_value();
}

}  // namespace

bool walkBy(Form& form, KeyStroke stroke) {
    if (stroke.keyCode == kKeyTab && (stroke.shift & (kCtrl | kAlt)) == 0 && form.typing->walkStop != 0) {
        goToStop(form, (stroke.shift & kShift) != 0);
        return true;
    }
    if (form.tabbedTo == nullptr) {
        return false;
    }
    if (!isReached(*form.tabbedTo) || !walksOn(form, stroke)) {
        form.tabbedTo = nullptr;
        return false;
    }
    return true;
}

}  // namespace tallyforge
