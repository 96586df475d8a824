// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text.h"

#include <array>
#include <cstdint>

namespace tallyforge {

namespace {

using Upper = std::array<char16_t, 128>;

/// Code page 437, bytes 128 to 255.
constexpr Upper kCodePage437{
    u'Ç', u'ü', u'é', u'â', u'ä', u'à', u'å', u'ç', u'ê', u'ë', u'è', u'ï', u'î', u'ì', u'Ä', u'Å',
    u'É', u'æ', u'Æ', u'ô', u'ö', u'ò', u'û', u'ù', u'ÿ', u'Ö', u'Ü', u'¢', u'£', u'¥', u'₧', u'ƒ',
    u'á', u'í', u'ó', u'ú', u'ñ', u'Ñ', u'ª', u'º', u'¿', u'⌐', u'¬', u'½', u'¼', u'¡', u'«', u'»',
    u'░', u'▒', u'▓', u'│', u'┤', u'╡', u'╢', u'╖', u'╕', u'╣', u'║', u'╗', u'╝', u'╜', u'╛', u'┐',
    u'└', u'┴', u'┬', u'├', u'─', u'┼', u'╞', u'╟', u'╚', u'╔', u'╩', u'╦', u'╠', u'═', u'╬', u'╧',
    u'╨', u'╤', u'╥', u'╙', u'╘', u'╒', u'╓', u'╫', u'╪', u'┘', u'┌', u'█', u'▄', u'▌', u'▐', u'▀',
    u'α', u'ß', u'Γ', u'π', u'Σ', u'σ', u'µ', u'τ', u'Φ', u'Θ', u'Ω', u'δ', u'∞', u'φ', u'ε', u'∩',
    u'≡', u'±', u'≥', u'≤', u'⌠', u'⌡', u'÷', u'≈', u'°', u'∙', u'·', u'√', u'ⁿ', u'²', u'■', u'\u00A0',
};

/// Greek letters where the Symbol font keeps them, for 'A' to 'Z' and 'a' to 'z'. A capital that
/// looks like a Latin letter is read as that letter.
constexpr std::u16string_view kSymbolCapitals = u"ABXΔEΦΓHIϑKΛMNOΠΘPΣTYςΩΞΨZ";
constexpr std::u16string_view kSymbolSmalls = u"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";

constexpr unsigned char kSymbolRoot = 214;
/// The multiplication cross; behind a root sign it stands for the x under the root.
constexpr unsigned char kSymbolCross = 180;

char16_t symbolGlyph(unsigned char byte, bool behindRoot) {
    if (byte >= 'A' && byte <= 'Z') {
        return kSymbolCapitals[static_cast<std::size_t>(byte - 'A')];
    }
    if (byte >= 'a' && byte <= 'z') {
        return kSymbolSmalls[static_cast<std::size_t>(byte - 'a')];
    }
    if (byte == kSymbolRoot) {
        return u'√';
    }
    if (byte == kSymbolCross) {
        return behindRoot ? u'x' : u'×';
    }
    return byte;
}

void appendUtf8(std::string& out, char16_t glyph) {
    if (glyph < 0x80) {
        out.push_back(static_cast<char>(glyph));
    } else if (glyph < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (glyph >> 6)));
        out.push_back(static_cast<char>(0x80 | (glyph & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (glyph >> 12)));
        out.push_back(static_cast<char>(0x80 | ((glyph >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (glyph & 0x3F)));
    }
}

}  // namespace

std::string toUnicode(std::string_view bytes, Face face) {
    std::string out;
    out.reserve(bytes.size() + 8);
    unsigned char before = 0;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        char16_t glyph = byte;
        if (face == Face::Terminal && byte >= 128) {
            glyph = kCodePage437.at(byte - 128U);
        } else if (face == Face::Symbol) {
            glyph = symbolGlyph(byte, before == kSymbolRoot);
        }
        appendUtf8(out, glyph);
        before = byte;
    }
    return out;
}

std::string fromUnicode(std::string_view utf8) {
    return eightBit(utf8);
}

}  // namespace tallyforge
