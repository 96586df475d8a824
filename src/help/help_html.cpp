// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_html.h"

#include "help/inline_text.h"
#include "help/text_lines.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallyforge {

namespace {

std::string tag(std::string_view name, std::string_view contents) {
    return "<" + std::string(name) + ">" + std::string(contents) + "</" + std::string(name.substr(0, name.find(' '))) +
           ">";
}

/// A number or a name that shall stay on one line.
bool isOneWord(std::string_view cell) {
    constexpr std::size_t kLongest = 24;
    return cell.size() <= kLongest && cell.find(' ') == cell.npos;
}

class PageWriter {
public:
    PageWriter(const HelpPage& page, const HelpHtml& how) : page_(page), how_(how) {}

    std::string write() {
        html_ = "<a name=\"" + page_.name + "\"></a>" + heading(1, inlined(page_.title));
        for (const HelpBlock& block : helpBlocks(page_.body)) {
            add(block);
        }
        return std::move(html_);
    }

private:
    [[nodiscard]] std::string inlined(std::string_view marked) const { return inlineHtml(marked, how_); }

    [[nodiscard]] std::string heading(int level, std::string_view contents) const {
        return tag("h" + std::to_string(level + how_.topLevel - 1), contents) + "\n";
    }

    void add(const HelpBlock& block) {
        switch (block.kind) {
            case HelpBlock::Kind::Heading:
                html_ += heading(block.level, headingText(block.text));
                break;
            case HelpBlock::Kind::Paragraph:
                html_ += tag("p", inlined(block.text)) + "\n";
                break;
            case HelpBlock::Kind::Facts:
                addFacts(block);
                break;
            case HelpBlock::Kind::List:
                addList(block);
                break;
            case HelpBlock::Kind::Table:
                addTable(block);
                break;
            case HelpBlock::Kind::Verbatim:
                html_ += verbatim("text", block.text);
                break;
            case HelpBlock::Kind::Example:
                addExample(block.example);
                break;
        }
    }

    [[nodiscard]] std::string headingText(std::string_view text) const {
        const auto mask = maskHeading(text);
        return mask ? tag("span class=\"mask\"", htmlEscaped(mask->keys)) + " " + inlined(mask->text) : inlined(text);
    }

    void addFacts(const HelpBlock& block) {
        html_ += "<table class=\"facts\">";
        for (const HelpFact& fact : block.facts) {
            html_ += tag("tr", tag("td class=\"label\"", htmlEscaped(fact.label)) + tag("td", inlined(fact.text)));
        }
        html_ += "</table>\n";
    }

    void addList(const HelpBlock& block) {
        html_ += "<ul>";
        for (const std::string& item : block.items) {
            html_ += tag("li", inlined(item));
        }
        html_ += "</ul>\n";
    }

    void addTable(const HelpBlock& block) {
        html_ += "<table class=\"rows\" border=\"1\" cellspacing=\"0\" cellpadding=\"4\">";
        bool head = true;
        for (const auto& row : block.rows) {
            std::string cells;
            for (const std::string& cell : row) {
                cells += tag(head ? "th align=\"left\"" : isOneWord(cell) ? "td class=\"word\"" : "td", inlined(cell));
            }
            html_ += tag("tr", cells);
            head = false;
        }
        html_ += "</table>\n";
    }

    [[nodiscard]] static std::string verbatim(std::string_view kind, std::string_view text) {
        while (text.ends_with('\n')) {
            text.remove_suffix(1);
        }
        return tag("pre class=\"" + std::string(kind) + "\"", htmlEscaped(text)) + "\n";
    }

    void addExample(const HelpExample& example) {
        const std::string trial = "<a href=\"try:" + std::to_string(examples_++) + "\">Try it</a>";
        const bool offered = how_.offersTrial && canBeTried(example);
        html_ += tag("p class=\"caption\"", "As a key script" + (offered ? " &nbsp; " + trial : std::string()));
        html_ += verbatim("keys", example.keys);
        if (!example.out.empty()) {
            html_ += tag("p class=\"caption\"", "It shows") + verbatim("out", example.out);
        }
    }

    const HelpPage& page_;
    const HelpHtml& how_;
    std::string html_;
    int examples_ = 0;
};

}  // namespace

std::string htmlEscaped(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

std::string inlineHtml(std::string_view marked, const HelpHtml& how) {
    std::string html;
    for (const InlineSpan& span : inlineSpans(marked)) {
        std::string text = htmlEscaped(span.text);
        text = span.code ? tag("code", text) : text;
        text = span.italic ? tag("i", text) : text;
        text = span.bold ? tag("b", text) : text;
        const std::string target = std::string(how.linkTo) + htmlEscaped(span.link);
        html += span.link.empty() ? text : tag("a href=\"" + target + "\"", text);
    }
    return html;
}

std::string helpPageHtml(const HelpPage& page, const HelpHtml& how) {
    return PageWriter(page, how).write();
}

bool canBeTried(const HelpExample& example) {
    constexpr std::array<std::string_view, 4> kWords{"restart", "close", "clipboard", "answer text"};
    constexpr std::array<std::string_view, 17> kEntries{
        "mnuSave", "mnuSaveTape", "mnuSaveMem",    "mnuTape",      "mnuRetMem",    "mnuProgram",
        "mnuAOT",  "mnuPosition", "mnuLoad",       "mnuSkins",     "mnuFileExit",  "mnuPrint",
        "mnuCopy", "mnuTip",      "mnuExportText", "mnuExportCsv", "mnuExportHtml"};
    TextLines lines(example.keys);
    while (!lines.atEnd()) {
        const std::string_view line = trimmed(lines.take());
        const bool word =
            std::any_of(kWords.begin(), kWords.end(), [&](std::string_view one) { return line.starts_with(one); });
        const bool entry = line.starts_with("menu ") &&
                           std::find(kEntries.begin(), kEntries.end(), trimmed(line.substr(5))) != kEntries.end();
        if (word || entry) {
            return false;
        }
    }
    return true;
}

}  // namespace tallyforge
