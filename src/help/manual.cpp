// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/manual.h"

#include "help/help_book.h"
#include "help/help_html.h"
#include "help/text_lines.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tallyforge {

namespace {

// Dark and light follow the reader's desktop; on paper it is black on white.
constexpr std::string_view kStyle = R"(
:root { color-scheme: light dark; }
body { font: 16px/1.5 "DejaVu Sans", "Noto Sans", sans-serif; max-width: 50rem; margin: 2rem auto; padding: 0 1rem; }
h1, h2, h3 { line-height: 1.25; }
h2 { margin-top: 3rem; border-bottom: 1px solid #8888; }
pre { padding: 0.5rem 0.75rem; overflow-x: auto; background: #8882; }
pre, code { font-family: "DejaVu Sans Mono", "Noto Sans Mono", monospace; font-size: 0.9em; }
table.rows { border-collapse: collapse; }
.word { white-space: nowrap; }
table.rows td, table.rows th { border: 1px solid #8888; padding: 0.2rem 0.6rem; text-align: left; }
.label, .caption { opacity: 0.75; padding-right: 1rem; }
.caption { margin-bottom: 0.25rem; font-size: 0.9em; }
.mask { border: 1px solid #8888; border-radius: 4px; padding: 0 0.35em; font-size: 0.8em; }
.columns { columns: 16rem; }
@media print { body { max-width: none; font-size: 10pt; } h2 { break-after: avoid; } pre { break-inside: avoid; } }
)";

constexpr HelpHtml kLook{.linkTo = "#", .offersTrial = false, .topLevel = 2};

std::string head(std::string_view title) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" "
           "content=\"width=device-width\">\n<title>" +
           htmlEscaped(title) + "</title>\n<style>" + std::string(kStyle) + "</style>\n</head>\n<body>\n";
}

constexpr std::string_view kFoot = "</body>\n</html>\n";

/// "trigonometry-keypad" as a heading.
std::string chapterOf(std::string_view file) {
    // A number in front only gives the order.
    const auto letter = std::find_if(file.begin(), file.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    std::string name(letter, file.end());
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '_'; }, ' ');
    if (!name.empty()) {
        name.front() = static_cast<char>(name.front() - 'a' + 'A');
    }
    return name;
}

/// The chapters as they are read; others stand between the keypads and the last ones.
constexpr std::array<std::string_view, 9> kFirst{"introduction",
                                                 "form",
                                                 "menus",
                                                 "standard-keypad",
                                                 "trigonometry-keypad",
                                                 "engineering-keypad",
                                                 "calculators",
                                                 "magnetics-keypad",
                                                 "convert-keypad"};
constexpr std::array<std::string_view, 4> kLast{"programs", "key-scripts", "messages", "glossary"};

std::size_t rankOf(std::string_view file) {
    const auto* const first = std::find(kFirst.begin(), kFirst.end(), file);
    const auto* const last = std::find(kLast.begin(), kLast.end(), file);
    const auto middle = kFirst.size();
    return last != kLast.end() ? middle + 1 + static_cast<std::size_t>(last - kLast.begin())
                               : static_cast<std::size_t>(first - kFirst.begin());
}

std::vector<HelpPage> inOrder(std::span<const HelpPage> pages) {
    std::vector<HelpPage> sorted(pages.begin(), pages.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const HelpPage& one, const HelpPage& other) { return rankOf(one.file) < rankOf(other.file); });
    return sorted;
}

std::string linkTo(const HelpPage& page, std::string_view text) {
    return "<a href=\"#" + page.name + "\">" + std::string(text) + "</a>";
}

std::string contents(std::span<const HelpPage> pages) {
    std::string html = "<h2>Contents</h2>\n";
    std::string_view chapter;
    for (const HelpPage& page : pages) {
        if (page.file != chapter) {
            html += (chapter.empty() ? "<h3>" : "</ul>\n<h3>") + htmlEscaped(chapterOf(page.file)) +
                    "</h3>\n<ul class=\"columns\">\n";
            chapter = page.file;
        }
        html += "<li>" + linkTo(page, htmlEscaped(page.title)) + "</li>\n";
    }
    return html + (chapter.empty() ? "" : "</ul>\n");
}

std::string indexOf(const HelpBook& book) {
    std::string html = "<h2>Index</h2>\n<ul class=\"columns\">\n";
    for (const IndexEntry& entry : book.index()) {
        html += "<li>" + linkTo(*entry.page, inlineHtml(entry.text, kLook)) + "</li>\n";
    }
    return html + "</ul>\n";
}

}  // namespace

std::string manualHtml(std::span<const HelpPage> pages, std::string_view version) {
    const HelpBook book(inOrder(pages));
    std::string html = head("Tallyforge manual") + "<h1>Tallyforge</h1>\n<p>Manual of version " + htmlEscaped(version) +
                       "</p>\n" + contents(book.pages());
    for (const HelpPage& page : book.pages()) {
        html += helpPageHtml(page, kLook);
    }
    return html + indexOf(book) + std::string(kFoot);
}

std::string documentHtml(std::string_view text) {
    HelpPage page;
    TextLines lines(text);
    while (!lines.atEnd()) {
        const std::string_view line = lines.take();
        if (page.title.empty() && line.starts_with("# ")) {
            page.title = trimmed(line.substr(2));
        } else {
            page.body += std::string(line) + '\n';
        }
    }
    page.name = "top";
    return head(page.title) + helpPageHtml(page, {.linkTo = "#", .offersTrial = false, .topLevel = 1}) +
           std::string(kFoot);
}

}  // namespace tallyforge
