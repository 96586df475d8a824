// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_page.h"
#include "help/text_lines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kFence = "```";
constexpr std::array<std::string_view, 4> kFacts{"Stack", "Formula", "Units", "Range"};

bool isItem(std::string_view line) {
    return line.starts_with("- ");
}

bool isRow(std::string_view line) {
    return line.starts_with("|");
}

int headingLevel(std::string_view line) {
    return line.starts_with("### ") ? 3 : (line.starts_with("## ") ? 2 : 0);
}

std::optional<HelpFact> factOf(std::string_view line) {
    const auto colon = line.find(':');
    const std::string_view label = line.substr(0, std::min(colon, line.size()));
    if (colon == line.npos || std::find(kFacts.begin(), kFacts.end(), label) == kFacts.end()) {
        return std::nullopt;
    }
    return HelpFact{.label = std::string(label), .text = std::string(trimmed(line.substr(colon + 1)))};
}

bool isPlain(std::string_view line) {
    return !trimmed(line).empty() && headingLevel(line) == 0 && !isItem(line) && !isRow(line) &&
           !line.starts_with(kFence) && !factOf(line);
}

/// The cells of a row; a bar within `code` or behind a backslash separates none.
std::vector<std::string> cellsOf(std::string_view line) {
    std::vector<std::string> cells(1);
    bool code = false;
    line = trimmed(line);
    line.remove_prefix(1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        code = code != (line[i] == '`');
        if (line[i] == '\\' && i + 1 < line.size() && line[i + 1] == '|') {
            cells.back() += line[++i];
        } else if (line[i] == '|' && !code) {
            cells.emplace_back();
        } else {
            cells.back() += line[i];
        }
    }
    if (cells.size() > 1 && trimmed(cells.back()).empty()) {
        cells.pop_back();
    }
    for (std::string& cell : cells) {
        cell = std::string(trimmed(cell));
    }
    return cells;
}

bool isRule(const std::vector<std::string>& cells) {
    return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) {
        return !cell.empty() && cell.find_first_not_of("-: ") == cell.npos;
    });
}

class BlockReader {
public:
    explicit BlockReader(std::string_view body) : lines_(body) {}

    std::vector<HelpBlock> read() {
        while (!lines_.atEnd()) {
            const std::string_view line = lines_.peek();
            if (trimmed(line).empty()) {
                lines_.take();
            } else if (const int level = headingLevel(line); level != 0) {
                const auto blanks = static_cast<std::size_t>(level) + 1;
                add({.kind = HelpBlock::Kind::Heading,
                     .text = std::string(trimmed(lines_.take().substr(blanks))),
                     .level = level});
            } else if (line.starts_with(kFence)) {
                takeFenced();
            } else if (isRow(line)) {
                takeTable();
            } else if (isItem(line)) {
                takeList();
            } else if (factOf(line)) {
                takeFacts();
            } else {
                add({.kind = HelpBlock::Kind::Paragraph, .text = takePlain()});
            }
        }
        return std::move(blocks_);
    }

private:
    void add(HelpBlock block) { blocks_.push_back(std::move(block)); }

    /// The next line, whatever it is, and the plain ones behind it.
    std::string takePlain() {
        std::string text(trimmed(lines_.take()));
        while (!lines_.atEnd() && isPlain(lines_.peek())) {
            text += ' ';
            text += trimmed(lines_.take());
        }
        return text;
    }

    void takeFacts() {
        HelpBlock block{.kind = HelpBlock::Kind::Facts};
        while (!lines_.atEnd()) {
            auto fact = factOf(lines_.peek());
            if (!fact) {
                break;
            }
            lines_.take();
            block.facts.push_back(std::move(*fact));
        }
        add(std::move(block));
    }

    void takeList() {
        HelpBlock block{.kind = HelpBlock::Kind::List};
        while (!lines_.atEnd() && isItem(lines_.peek())) {
            block.items.push_back(takePlain().substr(2));
        }
        add(std::move(block));
    }

    void takeTable() {
        HelpBlock block{.kind = HelpBlock::Kind::Table};
        while (!lines_.atEnd() && isRow(lines_.peek())) {
            auto cells = cellsOf(lines_.take());
            if (!isRule(cells)) {
                block.rows.push_back(std::move(cells));
            }
        }
        add(std::move(block));
    }

    void takeFenced() {
        const std::string_view kind = trimmed(lines_.take().substr(kFence.size()));
        std::string text;
        while (!lines_.atEnd()) {
            const std::string_view line = lines_.take();
            if (trimmed(line) == kFence) {
                break;
            }
            text += line;
            text += '\n';
        }
        if (kind == "keys") {
            add({.kind = HelpBlock::Kind::Example, .example = {.keys = std::move(text), .out = {}}});
        } else if (kind == "out" && !blocks_.empty() && blocks_.back().kind == HelpBlock::Kind::Example) {
            blocks_.back().example.out = std::move(text);
        } else {
            add({.kind = HelpBlock::Kind::Verbatim, .text = std::move(text)});
        }
    }

    TextLines lines_;
    std::vector<HelpBlock> blocks_;
};

}  // namespace

std::vector<HelpBlock> helpBlocks(std::string_view body) {
    return BlockReader(body).read();
}

std::vector<HelpExample> helpExamples(std::string_view body) {
    std::vector<HelpExample> examples;
    for (HelpBlock& block : helpBlocks(body)) {
        if (block.kind == HelpBlock::Kind::Example) {
            examples.push_back(std::move(block.example));
        }
    }
    return examples;
}

std::optional<MaskHeading> maskHeading(std::string_view heading) {
    constexpr std::array<std::string_view, 8> kKeys{"Key", "Shift",     "Ctrl",     "Shift+Ctrl",
                                                    "Alt", "Shift+Alt", "Ctrl+Alt", "Shift+Ctrl+Alt"};
    const auto colon = heading.find(':');
    const std::string_view keys = heading.substr(0, std::min(colon, heading.size()));
    const auto found = std::find(kKeys.begin(), kKeys.end(), keys);
    if (colon == heading.npos || found == kKeys.end()) {
        return std::nullopt;
    }
    return MaskHeading{.mask = static_cast<std::uint8_t>(found - kKeys.begin()),
                       .keys = keys,
                       .text = trimmed(heading.substr(colon + 1))};
}

}  // namespace tallyforge
