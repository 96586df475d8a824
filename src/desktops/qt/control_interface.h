// SPDX-License-Identifier: GPL-3.0-or-later
//
// What an assistive tool knows of a control of the main form: its role, its name in words, its text
// and value, and a list's rows.
#pragma once

namespace tallyforge::qt {

class ControlWidget;

/// Makes assistive tools see each control widget in its role, with its name and value.
void installAccessibility();

/// Tells assistive tools that the name, text or value of the control has changed.
void tellChange(ControlWidget& widget);

/// Tells assistive tools that the control has the keyboard now.
void tellFocus(ControlWidget& widget);

}  // namespace tallyforge::qt
