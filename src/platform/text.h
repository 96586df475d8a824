// SPDX-License-Identifier: GPL-3.0-or-later
//
// Text is eight-bit inside the calculator: one byte is one character, so a length is a length on
// the tape and in the files. This header converts source literals to that form while compiling,
// and maps the bytes to Unicode at the border, by the font that shows them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tallyforge {

/// The font family that a text is shown in; it decides what a byte above 127 looks like.
enum class Face {
    Arial,       ///< captions; bytes are Latin-1
    SmallFonts,  ///< small captions; bytes are Latin-1
    Symbol,      ///< glyph captions: "p" reads pi, byte 214 a root sign
    Terminal,    ///< tape, lists and entry line; bytes are code page 437
};

/// Converts UTF-8 `source` to one Latin-1 byte a character, while compiling where it can.
/// Characters above U+00FF cannot be held and become '?'.
[[nodiscard]] constexpr std::string eightBit(std::string_view source) {
    std::string out;
    for (std::size_t i = 0; i < source.size(); ++i) {
        const auto lead = static_cast<unsigned char>(source[i]);
        if (lead < 0x80) {
            out.push_back(source[i]);
        } else if ((lead == 0xC2 || lead == 0xC3) && i + 1 < source.size()) {
            const auto tail = static_cast<unsigned char>(source[++i]);
            out.push_back(static_cast<char>(((lead & 0x03) << 6) | (tail & 0x3F)));
        } else {
            out.push_back('?');
            while (i + 1 < source.size() && (static_cast<unsigned char>(source[i + 1]) & 0xC0) == 0x80) {
                ++i;
            }
        }
    }
    return out;
}

/// A literal's text as a compile-time array of N UTF-8 bytes, for `_t`.
template <std::size_t N>
struct LiteralText {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's parameter converts silently
    consteval LiteralText(const char (&text)[N]) {
        std::size_t used = 0;
        for (std::size_t i = 0; i + 1 < N; ++i) {
            const auto lead = static_cast<unsigned char>(text[i]);
            if (lead < 0x80) {
                bytes[used++] = text[i];
            } else {
                const auto tail = static_cast<unsigned char>(text[++i]);
                // A character beyond U+00FF does not compile: it has no byte to live in.
                if (lead != 0xC2 && lead != 0xC3) {
                    throw "this character has no eight-bit form";
                }
                bytes[used++] = static_cast<char>(((lead & 0x03) << 6) | (tail & 0x3F));
            }
        }
        length = used;
    }
    std::array<char, N> bytes{};
    std::size_t length = 0;
};

template <LiteralText Text>
inline constexpr auto kHeldLiteral = Text;

/// `"2ãf"_t`: the literal in the calculator's eight-bit form.
template <LiteralText Text>
[[nodiscard]] constexpr std::string_view operator""_t() {
    return {kHeldLiteral<Text>.bytes.data(), kHeldLiteral<Text>.length};
}

/// The Unicode text (UTF-8) that `bytes` reads as when shown in `face`.
[[nodiscard]] std::string toUnicode(std::string_view bytes, Face face);

/// The eight-bit text of a UTF-8 text that comes from outside (clipboard, input box, keyboard).
/// What has no Latin-1 byte becomes '?'.
[[nodiscard]] std::string fromUnicode(std::string_view utf8);

}  // namespace tallyforge
