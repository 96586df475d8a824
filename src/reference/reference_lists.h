// SPDX-License-Identifier: GPL-3.0-or-later
//
// The lists as the keys use them: each function shows a list and delivers what the user has taken,
// or leaves stack, tape and X as they were. Each list remembers its choice for the session.
#pragma once

#include "dialogs/list_dialog.h"
#include "numbers/value_cell.h"

#include <optional>
#include <string_view>

namespace tallyforge {

class Engine;

class ReferenceLists {
public:
    explicit ReferenceLists(Engine& calculator) : calc(calculator) {}

    /// A constant goes on the stack under its units; what was taken, so that its key can keep it.
    std::optional<ListChoice> constant();
    /// Puts a constant into Register 2.
    void keep(const ValueCell& value);
    /// A specific gravity goes on the stack under "SG".
    void specificGravity();
    /// A power of ten goes on the stack, without a label.
    void prefix();

    /// A resistivity in micro-ohm centimetre, for a dialog that asks for one.
    [[nodiscard]] std::optional<ListChoice> resistivity();
    /// A temperature coefficient per degree C, for a dialog that asks for one.
    [[nodiscard]] std::optional<ListChoice> temperatureCoefficient();

private:
    void deliver(const std::optional<ListChoice>& taken, std::string_view label);
    void toMemory(const ListRow& row);

    Engine& calc;
    ListMemory constants_, gravities_, prefixes_, rhos_, alphas_;
};

}  // namespace tallyforge
