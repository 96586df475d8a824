// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/page_reader.h"

#include "help/text_lines.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kFence = "```";

std::vector<std::string> split(std::string_view text, std::string_view between) {
    std::vector<std::string> parts;
    while (true) {
        const auto end = std::min(text.find(between), text.size());
        if (const auto part = trimmed(text.substr(0, end)); !part.empty()) {
            parts.emplace_back(part);
        }
        if (end == text.size()) {
            return parts;
        }
        text.remove_prefix(end + between.size());
    }
}

/// A message as it is written between quotes, where it is.
std::string unquoted(std::string text) {
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::optional<int> topicOf(const std::string& text) {
    constexpr int kLast = 9999;
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end && number > 0 && number <= kLast ? std::optional{number}
                                                                                          : std::nullopt;
}

bool isName(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
    });
}

/// Bytes that follow the first byte of a character; none where it begins no character.
std::optional<std::size_t> bytesBehind(unsigned char lead) {
    if (lead < 0x80) {
        return 0;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 1;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 2;
    }
    return lead >= 0xF0 && lead < 0xF5 ? std::optional<std::size_t>{3} : std::nullopt;
}

class PageReader {
public:
    PageReader(std::string_view text, std::string_view file) : lines_(text), file_(file) {}

    std::vector<HelpPage> read() {
        while (!lines_.atEnd()) {
            const std::string_view line = lines_.take();
            if (line.starts_with("# ")) {
                beginPage(trimmed(line.substr(2)));
            } else if (pages_.empty()) {
                check(trimmed(line).empty() || line.starts_with("<!--"), "text before the first page");
            } else {
                takeBodyLine(line);
            }
        }
        check(!inFence_, "a block is not closed");
        check(!outDue_, "an example without its output");
        return std::move(pages_);
    }

private:
    void check(bool holds, std::string_view reason) const {
        if (!holds) {
            throw HelpSourceError{.line = lines_.number(), .reason = std::string(reason)};
        }
    }

    void beginPage(std::string_view title) {
        check(!outDue_, "an example without its output");
        HelpPage page;
        page.title = title;
        page.file = file_;
        while (!lines_.atEnd() && takeHeaderLine(page, lines_.peek())) {
            lines_.take();
        }
        check(isName(page.name), "page '" + page.title + "' has no name of small letters, digits and '-'");
        check(!page.index.empty(), "page '" + page.title + "' has no entry in the index");
        pages_.push_back(std::move(page));
    }

    bool takeHeaderLine(HelpPage& page, std::string_view line) const {
        const auto colon = line.find(':');
        const std::string_view head = line.substr(0, std::min(colon, line.size()));
        const std::string_view value = colon == line.npos ? std::string_view() : trimmed(line.substr(colon + 1));
        if (head == "name") {
            page.name = value;
        } else if (head == "index") {
            page.index = split(value, ",");
        } else if (head == "words") {
            page.words = split(value, " ");
        } else if (head == "dialogs") {
            page.dialogs = split(value, " ");
        } else if (head == "messages") {
            page.messages = split(value, " | ");
            std::transform(page.messages.begin(), page.messages.end(), page.messages.begin(), unquoted);
        } else if (head == "topics") {
            for (const std::string& text : split(value, " ")) {
                const auto topic = topicOf(text);
                check(topic.has_value(), "no topic: " + text);
                page.topics.push_back(*topic);
            }
        } else {
            const bool likeAHead = colon != line.npos && isName(head);
            check(!likeAHead, "unknown line in a page's header: " + std::string(line));
            return false;
        }
        return true;
    }

    void takeBodyLine(std::string_view line) {
        if (inFence_) {
            inFence_ = trimmed(line) != kFence;
        } else if (line.starts_with(kFence)) {
            const std::string_view kind = trimmed(line.substr(kFence.size()));
            check(kind.empty() || kind == "text" || kind == "keys" || kind == "out",
                  "unknown block '" + std::string(kind) + "'");
            check(outDue_ == (kind == "out"), "an example is a block of keys and then one of its output");
            outDue_ = kind == "keys";
            inFence_ = true;
        }
        pages_.back().body += line;
        pages_.back().body += '\n';
    }

    TextLines lines_;
    std::string_view file_;
    std::vector<HelpPage> pages_;
    bool inFence_ = false;
    bool outDue_ = false;
};

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto more = bytesBehind(static_cast<unsigned char>(bytes.front()));
        bytes.remove_prefix(1);
        if (!more || *more > bytes.size()) {
            return false;
        }
        const bool whole = std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(*more),
                                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; });
        if (!whole) {
            return false;
        }
        bytes.remove_prefix(*more);
    }
    return true;
}

std::vector<HelpPage> readHelpPages(std::string_view text, std::string_view file) {
    if (!isUtf8(text)) {
        throw HelpSourceError{.line = 0, .reason = "bytes that are not UTF-8"};
    }
    return PageReader(text, file).read();
}

}  // namespace tallyforge
