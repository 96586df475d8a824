// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/theme.h"

#include <QFontDatabase>
#include <QStringList>

#include <algorithm>

namespace tallyforge::qt {

namespace {

const Theme& lightTheme() {
    static const Theme kLight{.window = QColor(0xE9, 0xEB, 0xEE),
                              .text = QColor(0x16, 0x1A, 0x1F),
                              .dimText = QColor(0x8C, 0x93, 0x9C),
                              .keyPlain = QColor(0xFC, 0xFC, 0xFD),
                              .keyYellow = QColor(0xFF, 0xFF, 0xA7),
                              .keyBlue = QColor(0xD5, 0xEA, 0xFF),
                              .keyEdge = QColor(0xA9, 0xB0, 0xBA),
                              .field = QColor(0xFF, 0xFF, 0xFF),
                              .fieldText = QColor(0x10, 0x14, 0x18),
                              .fieldEdge = QColor(0xB4, 0xBA, 0xC3),
                              .selection = QColor(0xDC, 0xE6, 0xF2),
                              .lamp = QColor(0xC6, 0x2F, 0x1E)};
    return kLight;
}

const Theme& darkTheme() {
    static const Theme kDark{.window = QColor(0x23, 0x26, 0x2B),
                             .text = QColor(0xEC, 0xEE, 0xF1),
                             .dimText = QColor(0x7D, 0x84, 0x8E),
                             .keyPlain = QColor(0x39, 0x3E, 0x45),
                             .keyYellow = QColor(0x66, 0x60, 0x1C),
                             .keyBlue = QColor(0x24, 0x4A, 0x70),
                             .keyEdge = QColor(0x59, 0x60, 0x6A),
                             .field = QColor(0x15, 0x18, 0x1C),
                             .fieldText = QColor(0xF2, 0xF4, 0xF6),
                             .fieldEdge = QColor(0x4D, 0x54, 0x5E),
                             .selection = QColor(0x2F, 0x3C, 0x4C),
                             .lamp = QColor(0xFF, 0x7A, 0x5C)};
    return kDark;
}

/// A font that names one family is made much faster than one that names several: Qt looks for the
/// substitutes of each of them. Characters that the family lacks are substituted all the same.
QString firstPresent(const QStringList& families, const QString& otherwise) {
    const auto present = [](const QString& family) { return QFontDatabase::hasFamily(family); };
    const auto found = std::find_if(families.begin(), families.end(), present);
    return found == families.end() ? otherwise : *found;
}

}  // namespace

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

const Theme& Theme::forPalette(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128 ? darkTheme() : lightTheme();
}

QFont faceFont(const Font& font, double pixels) {
    static const QString kNumbers =
        firstPresent({"DejaVu Sans Mono", "Noto Sans Mono", "Liberation Mono"}, "monospace");
    static const QString kCaptions = firstPresent({"DejaVu Sans", "Noto Sans", "Liberation Sans"}, "sans-serif");
    QFont made(font.face == Face::Terminal ? kNumbers : kCaptions);
    made.setPixelSize(std::max(static_cast<int>(pixels), 4));
    made.setBold(font.bold);
    return made;
}

double fontPixels(const Font& font, double pixelsPerTwip) {
    constexpr double kTwipsPerPoint = 20.0;
    return static_cast<double>(font.points) * kTwipsPerPoint * pixelsPerTwip;
}

}  // namespace tallyforge::qt
