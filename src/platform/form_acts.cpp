// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_acts.h"

#include "platform/form_focus.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

namespace {

void selectOption(Form& form, Control& option) {
    for (Control* other : form.controls()) {
        if (sameGroup(option, *other)) {
            other->checked = other == &option;
        }
    }
}

/// Whether the caption begins with the letter or digit of the key.
bool beginsWith(const Control& option, KeyStroke stroke) {
    const auto first = option.text.find_first_not_of(" &");
    return stroke.character > ' ' && (stroke.shift & (kCtrl | kAlt)) == 0 && stroke.keyCode != kKeyPunctuation &&
           first != option.text.npos && keyCodeOf(static_cast<unsigned char>(option.text[first])) == stroke.keyCode;
}

/// How many options on the stroke leads in a group: arrows to the next or the one before, a letter to
/// the next caption that begins with it.
std::optional<std::size_t> stepOf(const std::vector<Control*>& group, std::size_t here, KeyStroke stroke) {
    switch (stroke.keyCode) {
        case kKeyUp:
        case kKeyLeft:
            return group.size() - 1;
        case kKeyDown:
        case kKeyRight:
            return 1;
        default:
            break;
    }
    for (std::size_t step = 1; step <= group.size(); ++step) {
        if (beginsWith(*group.at((here + step) % group.size()), stroke)) {
            return step;
        }
    }
    return std::nullopt;
}

/// Goes from option to option within a group, around its ends.
bool stepsOption(Form& form, const Control& target, KeyStroke stroke) {
    std::vector<Control*> group;
    std::copy_if(form.controls().begin(), form.controls().end(), std::back_inserter(group),
                 [&](const Control* other) { return sameGroup(target, *other) && takesInput(*other); });
    const auto here = std::find(group.begin(), group.end(), &target);
    const auto at = static_cast<std::size_t>(here - group.begin());
    const auto step = stepOf(group, at, stroke);
    if (!step) {
        return false;
    }
    Control& next = *group.at((at + *step) % group.size());
    focusClicked(form, next);
    actOn(form, next);
    return true;
}

bool stepsRow(Control& list, KeyStroke stroke) {
    if (list.rows == nullptr || list.rows->count() == 0 || (stroke.shift & (kCtrl | kAlt)) != 0) {
        return false;
    }
    const std::size_t row = rowByKey(*list.rows, stroke);
    if (row >= list.rows->count()) {
        return false;
    }
    if (row != list.rows->selected()) {
        chooseRow(list, row);
    }
    return true;
}

}  // namespace

std::size_t rowByKey(const ListRows& rows, KeyStroke stroke) {
    constexpr std::size_t kPage = 8;
    const std::size_t count = rows.count();
    const std::size_t here = rows.selected();
    const bool none = here >= count;
    const std::size_t last = count - 1;
    switch (stroke.keyCode) {
        case kKeyUp:
            return none ? last : here - std::min<std::size_t>(here, 1);
        case kKeyDown:
            return none ? 0 : std::min(here + 1, last);
        case kKeyPageUp:
            return none ? 0 : here - std::min(here, kPage);
        case kKeyPageDown:
            return none ? last : std::min(here + kPage, last);
        case kKeyHome:
            return 0;
        case kKeyEnd:
            return last;
        default:
            break;
    }
    // A letter leads to the next row that begins with it.
    for (std::size_t step = 1; stroke.character > ' ' && step <= count; ++step) {
        const std::size_t row = ((none ? last : here) + step) % count;
        const std::string text = rows.row(row);
        const auto first = text.find_first_not_of(' ');
        if (first != text.npos && keyCodeOf(static_cast<unsigned char>(text[first])) == stroke.keyCode &&
            stroke.keyCode != kKeyPunctuation) {
            return row;
        }
    }
    return count;
}

void actOn(Form& form, Control& control) {
    if (control.kind == ControlKind::Option) {
        selectOption(form, control);
    } else if (control.kind == ControlKind::Check) {
        control.checked = !control.checked;
    }
    runHandler(control.click);
}

void chooseRow(Control& list, std::size_t row) {
    list.rows->select(row);
    runHandler(list.click);
    if (list.kind == ControlKind::Choice) {
        runHandler(list.changed);
    }
}

bool stepsWithin(Form& form, Control& target, KeyStroke stroke) {
    switch (target.kind) {
        case ControlKind::Option:
            return stepsOption(form, target, stroke);
        case ControlKind::List:
        case ControlKind::Choice:
            return stepsRow(target, stroke);
        default:
            return false;
    }
}

}  // namespace tallyforge
