// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is to be printed, as plain data: a title that every page repeats, blocks of lines one under
// the other, and pictures below them. A line is asked for when its page is drawn, so that a long
// tape is never held twice.
#pragma once

#include "platform/drawing.h"
#include "platform/form.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// A line of print: text with its font.
struct PrintLine {
    std::string text;
    Font font;
};

/// Lines of one font.
struct PrintBlock {
    Font font;
    std::size_t count = 0;
    /// The text of line `index`, eight-bit.
    std::function<std::string(std::size_t index)> line;
    bool heading = false;  ///< stands on the page of what follows it
};

struct PrintJob {
    PrintLine title;
    std::vector<PrintBlock> blocks;
    std::vector<Drawing> pictures{};
};

/// A block of lines that are there already.
[[nodiscard]] inline PrintBlock blockOf(std::vector<std::string> lines, const Font& font) {
    const std::size_t count = lines.size();
    return {.font = font, .count = count, .line = [held = std::move(lines)](std::size_t index) { return held[index]; }};
}

/// Hands the title and all lines to `take`, from top to bottom.
template <typename Take>
void forEachLine(const PrintJob& job, Take take) {
    take(job.title);
    for (const PrintBlock& block : job.blocks) {
        for (std::size_t index = 0; index < block.count; ++index) {
            take(PrintLine{block.line(index), block.font});
        }
    }
}

}  // namespace tallyforge
