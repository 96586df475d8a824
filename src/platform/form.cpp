// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

std::string Control::fullName() const {
    return index == kNoIndex ? name : name + "(" + std::to_string(index) + ")";
}

Form::Form(std::string formName, std::string formTitle) : name(std::move(formName)), title(std::move(formTitle)) {}

Control* Form::find(std::string_view controlName, int index) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
        return control->name == controlName && control->index == index;
    });
    return found == controls_.end() ? nullptr : *found;
}

}  // namespace tallyforge
