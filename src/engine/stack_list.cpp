// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/stack_list.h"

#include "engine/engine.h"

#include <algorithm>
#include <string_view>

namespace tallyforge {

namespace {

/// Number pattern of row `index`: the column stays aligned while the index grows.
std::string_view patternFor(int index) {
    if (index > 999) {
        return " 0.0e+00";
    }
    if (index > 99) {
        return " 0.00e+00";
    }
    return index > 9 ? "  0.00e+00" : "   0.00e+00";
}

/// Column in which a number of a base ends, counted from the index.
int baseColumn(int index) {
    if (index < 10) {
        return 11;
    }
    return index < 100 ? 10 : 9;
}

}  // namespace

int StackList::capacity() const {
    return calc.s.window.TapeRows + 1;
}

int StackList::first() const {
    return calc.s.stack.StackPtr > capacity() ? calc.s.stack.StackPtr - capacity() : 1;
}

std::size_t StackList::count() const {
    return static_cast<std::size_t>(calc.s.stack.StackPtr - std::min(first(), calc.s.stack.StackPtr));
}

std::string StackList::row(std::size_t index) const {
    const int number = element(index);
    const ValueCell& cell = calc.s.stack.slot(number);
    std::string line = std::to_string(number);
    if (cell.isTagged()) {
        const std::string_view text = cell.textView();
        const int room = baseColumn(number) - static_cast<int>(text.size());
        const int blanks = room < 0 ? 1 : room;
        return line.append(static_cast<std::size_t>(blanks), ' ').append(text);
    }
    if (cell.tryNumber(calc.s.format.DecimalChar)) {
        return line + calc.patternText(cell, patternFor(number));
    }
    return line + " " + calc.text(cell);
}

std::size_t StackList::selected() const {
    return clicked_ >= 0 ? static_cast<std::size_t>(clicked_) : (count() == 0 ? 0 : count() - 1);
}

void StackList::select(std::size_t index) {
    clicked_ = static_cast<int>(index);
    ++revision_;
}

void StackList::refreshMarks() {
    if (!calc.unwatched) {
        placeMarks();
    }
}

void StackList::placeMarks() {
    auto& marks = calc.form.lblStkReg;
    for (Control& mark : marks) {
        mark.visible = false;
    }
    const auto put = [&marks](int label, const char* text) {
        Control& mark = marks.at(static_cast<std::size_t>(label));
        mark.text = text;
        mark.visible = true;
    };
    const int shift = calc.s.window.CompactForm ? 2 : 0;
    const int depth = calc.s.window.CompactForm ? std::min(calc.s.stack.depth(), 6) : calc.s.stack.depth();
    if (depth == 1) {
        put(7 - shift, "X");
    } else if (depth >= 2 && depth <= 7) {
        put(9 - depth - shift, "Y");
        put(8 - depth - shift, "X");
    } else if (depth > 7) {
        put(1, "Y");
        put(0, "X");
    }
}

}  // namespace tallyforge
