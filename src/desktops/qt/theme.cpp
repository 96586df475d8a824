// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/theme.h"

#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

const Theme& lightTheme() {
    static const Theme kLight{.window = QColor(0xE6, 0xE9, 0xED),
                              .text = QColor(0x16, 0x1A, 0x1F),
                              .dimText = QColor(0x58, 0x60, 0x6A),
                              .keyPlain = QColor(0xFD, 0xFD, 0xFE),
                              .keyYellow = QColor(0xFF, 0xF6, 0xB8),
                              .keyBlue = QColor(0xD8, 0xEA, 0xFC),
                              .keyEdge = QColor(0x7C, 0x83, 0x8D),
                              .field = QColor(0xFF, 0xFF, 0xFF),
                              .fieldText = QColor(0x10, 0x14, 0x18),
                              .fieldEdge = QColor(0x7C, 0x83, 0x8D),
                              .lamp = QColor(0xC6, 0x2F, 0x1E),
                              .secondary = QColor(0x5A, 0x63, 0x6E),
                              .accent = QColor(0x1D, 0x5A, 0xA0),
                              .onAccent = QColor(0xFF, 0xFF, 0xFF),
                              .keyOperator = QColor(0xD9, 0xE2, 0xEE),
                              .keyMode = QColor(0xEF, 0xF1, 0xF4),
                              .well = QColor(0xDB, 0xDF, 0xE4)};
    return kLight;
}

const Theme& darkTheme() {
    static const Theme kDark{.window = QColor(0x1E, 0x21, 0x26),
                             .text = QColor(0xEC, 0xEE, 0xF1),
                             .dimText = QColor(0xB0, 0xB7, 0xC1),
                             .keyPlain = QColor(0x33, 0x38, 0x40),
                             .keyYellow = QColor(0x58, 0x53, 0x1E),
                             .keyBlue = QColor(0x23, 0x45, 0x68),
                             .keyEdge = QColor(0x70, 0x78, 0x83),
                             .field = QColor(0x12, 0x15, 0x19),
                             .fieldText = QColor(0xF2, 0xF4, 0xF6),
                             .fieldEdge = QColor(0x70, 0x78, 0x83),
                             .lamp = QColor(0xFF, 0x7A, 0x5C),
                             .secondary = QColor(0xA6, 0xAD, 0xB7),
                             .accent = QColor(0x8F, 0xBE, 0xF5),
                             .onAccent = QColor(0x0C, 0x18, 0x26),
                             .keyOperator = QColor(0x3B, 0x46, 0x54),
                             .keyMode = QColor(0x29, 0x2D, 0x33),
                             .well = QColor(0x24, 0x28, 0x2E)};
    return kDark;
}

constexpr double kLegible = 4.5;
/// No two colours differ by more than 21.
constexpr double kHighContrast = 20.0;

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& ground, const QColor& tint, double share) {
    const auto part = [share](int below, int above) {
        return static_cast<int>(std::lround(below + (above - below) * share));
    };
    return {part(ground.red(), tint.red()), part(ground.green(), tint.green()), part(ground.blue(), tint.blue())};
}

/// The ground with as much of the tint as leaves `ink` legible.
QColor tinted(const QColor& ground, const QColor& tint, const QColor& ink) {
    constexpr double kMost = 0.24;
    constexpr double kStep = 0.02;
    double share = kMost;
    while (share > kStep && contrast(mixed(ground, tint, share), ink) < kLegible) {
        share -= kStep;
    }
    return mixed(ground, tint, share);
}

/// A font that names one family is made much faster than one that names several: Qt looks for the
/// substitutes of each of them. Characters that the family lacks are substituted all the same.
QString firstPresent(const QStringList& families, const QString& otherwise) {
    const auto present = [](const QString& family) { return QFontDatabase::hasFamily(family); };
    const auto found = std::find_if(families.begin(), families.end(), present);
    return found == families.end() ? otherwise : *found;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    constexpr double kGlare = 0.05;
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + kGlare) / (dark + kGlare);
}

const QColor& Theme::keyFace(KeyColour colour) const {
    switch (colour) {
        case KeyColour::Yellow:
        case KeyColour::PaleYellow:
            return keyYellow;
        case KeyColour::Blue:
            return keyBlue;
        case KeyColour::Plain:
            break;
    }
    return keyPlain;
}

const QColor& Theme::keyFace(const Control& key) const {
    if (key.colour != KeyColour::Plain) {
        return keyFace(key.colour);
    }
    switch (key.tone) {
        case KeyTone::Operator:
            return keyOperator;
        case KeyTone::Enter:
            return accent;
        case KeyTone::Mode:
            return keyMode;
        default:
            return keyPlain;
    }
}

const QColor& Theme::keyText(const Control& key, bool idle) const {
    if (!key.enabled || idle) {
        return dimText;
    }
    return key.tone == KeyTone::Enter ? onAccent : text;
}

Theme Theme::forPalette(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    Theme theme = window.lightness() < 128 ? darkTheme() : lightTheme();
    if (contrast(window, palette.color(QPalette::WindowText)) >= kHighContrast) {
        theme.takeOver(palette);
    }
    theme.selection = tinted(theme.field, palette.color(QPalette::Highlight), theme.secondary);
    return theme;
}

// Edges and all that is written are as strong as the desktop's text; the kinds of keys have their marks.
void Theme::takeOver(const QPalette& palette) {
    window = well = palette.color(QPalette::Window);
    text = dimText = secondary = palette.color(QPalette::WindowText);
    keyEdge = fieldEdge = text;
    field = palette.color(QPalette::Base);
    fieldText = palette.color(QPalette::Text);
    keyPlain = keyYellow = keyBlue = keyOperator = keyMode = window;
    lamp = accent = text;
    onAccent = window;
}

QPalette Theme::paletteFor(const QPalette& desktop) {
    const Theme& theme = forPalette(desktop);
    QPalette palette = desktop;
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::WindowText, theme.text);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::Text, theme.fieldText);
    palette.setColor(QPalette::Button, theme.keyPlain);
    palette.setColor(QPalette::ButtonText, theme.text);
    if (contrast(palette.color(QPalette::Highlight), palette.color(QPalette::HighlightedText)) < kLegible) {
        palette.setColor(QPalette::Highlight, theme.accent);
        palette.setColor(QPalette::HighlightedText, theme.onAccent);
    }
    palette.setColor(QPalette::ToolTipBase, theme.field);
    palette.setColor(QPalette::ToolTipText, theme.fieldText);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, theme.dimText);
    }
    return palette;
}

QFont faceFont(const Font& font, double pixels) {
    static const QString kNumbers =
        firstPresent({"DejaVu Sans Mono", "Noto Sans Mono", "Liberation Mono"}, "monospace");
    static const QString kCaptions = firstPresent({"DejaVu Sans", "Noto Sans", "Liberation Sans"}, "sans-serif");
    QFont made(font.face == Face::Terminal ? kNumbers : kCaptions);
    made.setPixelSize(std::max(static_cast<int>(pixels), 4));
    made.setBold(font.bold);
    // Said and not left open, so that captions and other texts of one size are one font.
    made.setStretch(QFont::Unstretched);
    return made;
}

double fontPixels(const Font& font, double pixelsPerTwip) {
    constexpr double kTwipsPerPoint = 20.0;
    return static_cast<double>(font.points) * kTwipsPerPoint * pixelsPerTwip;
}

}  // namespace tallyforge::qt
