// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list beside the tape: the last elements of the stack, index in front, and the row marks X
// and Y. Rows are made from the stack when someone looks at them, never on a key press.
#pragma once

#include "platform/form.h"

#include <cstdint>
#include <string>

namespace tallyforge {

class Engine;

class StackList : public ListRows {
public:
    explicit StackList(Engine& calculator) : calc(calculator) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override;
    void select(std::size_t index) override;
    [[nodiscard]] std::uint64_t revision() const override { return revision_; }

    /// The stack changed: rows are made anew when next read, marks are set now.
    void refresh() {
        noteChange();
        refreshMarks();
    }
    /// The same where nobody watches: the marks wait.
    void noteChange() {
        clicked_ = -1;
        ++revision_;
    }
    /// Sets the row marks for the present depth.
    void placeMarks();
    /// Stack element that row `index` shows.
    [[nodiscard]] int element(std::size_t index) const { return first() + static_cast<int>(index); }

private:
    void refreshMarks();
    [[nodiscard]] int first() const;
    [[nodiscard]] int capacity() const;

    Engine& calc;
    std::uint64_t revision_ = 0;
    int clicked_ = -1;
};

}  // namespace tallyforge
