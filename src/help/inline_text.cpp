// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/inline_text.h"

#include <array>
#include <optional>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kEscapable = "\\`*[]|_#-";

/// A marked piece at the head of a text.
struct Piece {
    std::size_t length = 0;   ///< with its marks
    std::string_view inside;  ///< without them
    InlineSpan look;
};

/// Where the mark at the head of `text` is closed; npos where it is a character as any other: nothing
/// closes it, or a blank stands inside of it, as in "2 * 3 * 4".
std::size_t closing(std::string_view text, std::string_view mark) {
    const std::size_t first = mark.size();
    if (!text.starts_with(mark) || first >= text.size() || text[first] == ' ') {
        return text.npos;
    }
    const auto end = text.find(mark, first + 1);
    return end != text.npos && text[end - 1] != ' ' ? end : text.npos;
}

std::optional<Piece> linkAt(std::string_view text, InlineSpan look) {
    const auto middle = text.find("](");
    const auto end = middle == text.npos ? text.npos : text.find(')', middle);
    if (end == text.npos || text.find('[', 1) < middle) {
        return std::nullopt;
    }
    look.link = text.substr(middle + 2, end - middle - 2);
    return Piece{.length = end + 1, .inside = text.substr(1, middle - 1), .look = std::move(look)};
}

/// The piece at the head of `text`, which is dressed as `look` but for its marks.
std::optional<Piece> pieceAt(std::string_view text, InlineSpan look) {
    constexpr std::array<std::pair<std::string_view, bool InlineSpan::*>, 3> kMarks{
        {{"`", &InlineSpan::code}, {"**", &InlineSpan::bold}, {"*", &InlineSpan::italic}}};
    for (const auto& [mark, how] : kMarks) {
        if (!text.starts_with(mark)) {
            continue;
        }
        const auto end = mark == "`" ? text.find('`', 1) : closing(text, mark);
        if (end == text.npos) {
            return std::nullopt;
        }
        look.*how = true;
        return Piece{.length = end + mark.size(),
                     .inside = text.substr(mark.size(), end - mark.size()),
                     .look = std::move(look)};
    }
    return text.starts_with('[') ? linkAt(text, std::move(look)) : std::nullopt;
}

void read(std::string_view text, const InlineSpan& look, std::vector<InlineSpan>& spans) {
    std::string plain;
    const auto putPlain = [&] {
        if (!plain.empty()) {
            spans.push_back(look);
            spans.back().text = std::exchange(plain, {});
        }
    };
    while (!text.empty()) {
        const bool escaped =
            !look.code && text.size() > 1 && text.front() == '\\' && kEscapable.find(text[1]) != kEscapable.npos;
        const auto piece = look.code || escaped ? std::nullopt : pieceAt(text, look);
        std::size_t taken = escaped ? 2 : 1;
        if (piece) {
            putPlain();
            read(piece->inside, piece->look, spans);
            taken = piece->length;
        } else {
            plain += text[taken - 1];
        }
        text.remove_prefix(taken);
    }
    putPlain();
}

}  // namespace

std::vector<InlineSpan> inlineSpans(std::string_view marked) {
    std::vector<InlineSpan> spans;
    read(marked, {}, spans);
    return spans;
}

std::string plainText(std::string_view marked) {
    std::string text;
    for (const InlineSpan& span : inlineSpans(marked)) {
        text += span.text;
    }
    return text;
}

}  // namespace tallyforge
