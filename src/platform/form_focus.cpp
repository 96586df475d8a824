// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_focus.h"

#include "platform/form_acts.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace tallyforge {

namespace {

bool isDialog(const Form& form) {
    return form.typing == nullptr;
}

std::string_view groupOf(const Control& option) {
    if (!option.group.empty()) {
        return option.group;
    }
    return option.index == kNoIndex ? std::string_view{} : std::string_view{option.name};
}

/// The option of `option`'s group at which Tab stops.
const Control* stopOfGroup(const Form& form, const Control& option) {
    const Control* first = nullptr;
    for (const Control* other : form.controls()) {
        if (sameGroup(option, *other) && takesFocus(*other) && other->tabStop) {
            if (other->checked) {
                return other;
            }
            first = first == nullptr ? other : first;
        }
    }
    return first;
}

bool isStop(const Form& form, const Control& control) {
    return takesFocus(control) && control.tabStop &&
           (control.kind != ControlKind::Option || stopOfGroup(form, control) == &control);
}

/// The first stop behind `from` in enrol order, around the end; nullptr where there is none.
Control* stopBehind(const Form& form, const Control* from) {
    const auto& controls = form.controls();
    const auto start = std::find(controls.begin(), controls.end(), from);
    const auto stops = [&form](const Control* control) { return isStop(form, *control); };
    auto found = start == controls.end() ? controls.end() : std::find_if(start + 1, controls.end(), stops);
    if (found == controls.end()) {
        found = std::find_if(controls.begin(), controls.end(), stops);
    }
    return found == controls.end() ? nullptr : *found;
}

}  // namespace

bool takesInput(const Control& control) {
    return control.enabled && control.visible;
}

bool canHaveFocus(ControlKind kind) {
    switch (kind) {
        case ControlKind::Key:
        case ControlKind::Field:
        case ControlKind::List:
        case ControlKind::Option:
        case ControlKind::Check:
        case ControlKind::Choice:
            return true;
        default:
            return false;
    }
}

bool takesFocus(const Control& control) {
    return takesInput(control) && canHaveFocus(control.kind);
}

bool sameGroup(const Control& left, const Control& right) {
    return left.kind == ControlKind::Option && right.kind == ControlKind::Option && groupOf(left) == groupOf(right);
}

std::vector<Control*> tabStops(const Form& form) {
    std::vector<Control*> stops;
    std::copy_if(form.controls().begin(), form.controls().end(), std::back_inserter(stops),
                 [&form](const Control* control) { return isStop(form, *control); });
    return stops;
}

void moveFocus(Form& form, bool backwards) {
    const std::vector<Control*> stops = tabStops(form);
    if (stops.empty()) {
        return;
    }
    // The focus may stand on an option beside its group's stop, or where Tab does not stop at all.
    const auto& controls = form.controls();
    const auto here = std::find(controls.begin(), controls.end(), form.focus);
    const auto rank = [&controls](const Control* control) {
        return std::find(controls.begin(), controls.end(), control) - controls.begin();
    };
    const auto place = here - controls.begin();
    const auto leaves = [&](const Control* stop) {
        return stop != form.focus && (form.focus == nullptr || !sameGroup(*stop, *form.focus));
    };
    if (backwards) {
        const auto before = std::find_if(stops.rbegin(), stops.rend(),
                                         [&](const Control* stop) { return rank(stop) < place && leaves(stop); });
        form.focus = before == stops.rend() ? stops.back() : *before;
        return;
    }
    const auto behind = std::find_if(stops.begin(), stops.end(), [&](const Control* stop) {
        return here != controls.end() && rank(stop) > place && leaves(stop);
    });
    form.focus = behind == stops.end() ? stops.front() : *behind;
}

void focusClicked(Form& form, Control& control) {
    if (isDialog(form) && takesFocus(control)) {
        form.focus = &control;
    }
}

void settleFocus(Form& form) {
    if (!isDialog(form)) {
        return;
    }
    // A handler that sends the focus back each time must not hold the hand for ever.
    constexpr int kMoves = 8;
    for (int move = 0; move < kMoves && form.open; ++move) {
        if (form.focus != nullptr && !takesFocus(*form.focus)) {
            const bool back = form.focusTold != nullptr && takesFocus(*form.focusTold);
            form.focus = back ? form.focusTold : stopBehind(form, form.focus);
        }
        if (form.focus == form.focusTold) {
            return;
        }
        const Control* left = std::exchange(form.focusTold, form.focus);
        if (left != nullptr) {
            runHandler(left->lostFocus);
        }
        if (form.focus != nullptr && form.focus == form.focusTold) {
            runHandler(form.focus->gotFocus);
        }
    }
}

}  // namespace tallyforge
