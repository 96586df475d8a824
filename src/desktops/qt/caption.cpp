// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/caption.h"

#include "desktops/qt/theme.h"

#include <QFontMetricsF>
#include <QList>

#include <algorithm>
#include <array>

namespace tallyforge::qt {

namespace {

/// The sizes of captions, in points. A size is tried in a condensed face before a smaller one is.
constexpr std::array kCaptionPoints{9.0, 7.0, 5.5};
constexpr double kUsualPoints = 10.0;  ///< larger captions (digits, Enter) are as they are
constexpr std::array kStretches{100, kCondensed};
constexpr double kRaisedShare = 0.7;  ///< size of a raised exponent
constexpr double kRaisedBy = 0.32;    ///< and how much of the height it is raised
constexpr double kSmallestPixels = 6.0;

/// Ways to set a caption: as it stands, and broken at each of its blanks.
QList<QStringList> breaks(const QString& caption) {
    QList<QStringList> ways;
    if (caption.contains('\n')) {
        ways.append(caption.split('\n'));
        return ways;
    }
    ways.append(QStringList{caption.trimmed()});
    for (qsizetype at = caption.indexOf(' '); at >= 0; at = caption.indexOf(' ', at + 1)) {
        const QString left = caption.left(at).trimmed();
        const QString right = caption.mid(at + 1).trimmed();
        if (!left.isEmpty() && !right.isEmpty()) {
            ways.append(QStringList{left, right});
        }
    }
    return ways;
}

/// "y^x" is y with a raised x; the place of the sign, or -1 where nothing is raised.
qsizetype raisedAt(const QString& line) {
    const qsizetype sign = line.indexOf('^');
    return sign > 0 && sign + 1 < line.size() ? sign : -1;
}

QFont raised(QFont font) {
    font.setPixelSize(std::max(static_cast<int>(font.pixelSize() * kRaisedShare), 4));
    return font;
}

bool fits(const QStringList& lines, const QFont& font, QSizeF size) {
    const auto wide = [&](const QString& line) { return lineWidth(line, font) > size.width(); };
    return std::none_of(lines.begin(), lines.end(), wide) &&
           QFontMetricsF(font).height() * 0.92 * static_cast<double>(lines.size()) <= size.height();
}

/// A caption as the signs that it stands for.
QString withSigns(QString caption) {
    if (caption == "-") {
        return QString(QChar(0x2212));
    }
    if (caption == "<-") {
        return QString(QChar(0x232B));
    }
    return caption.replace("<----", QString(QChar(0x21B5)));
}

}  // namespace

double lineWidth(const QString& line, const QFont& font) {
    const QFontMetricsF metrics(font);
    const qsizetype sign = raisedAt(line);
    return sign < 0 ? metrics.horizontalAdvance(line)
                    : metrics.horizontalAdvance(line.left(sign)) +
                          QFontMetricsF(raised(font)).horizontalAdvance(line.mid(sign + 1));
}

void drawLine(QPainter& painter, QPointF at, const QString& line, const QFont& font) {
    const qsizetype sign = raisedAt(line);
    painter.setFont(font);
    if (sign < 0) {
        painter.drawText(at, line);
        return;
    }
    painter.drawText(at, line.left(sign));
    const QFontMetricsF metrics(font);
    painter.setFont(raised(font));
    painter.drawText(at + QPointF(metrics.horizontalAdvance(line.left(sign)), -metrics.ascent() * kRaisedBy),
                     line.mid(sign + 1));
}

QString shownText(const Control& control) {
    return QString::fromStdString(toUnicode(control.text, control.font.face));
}

QString plainCaption(const Control& control) {
    QString text = shownText(control);
    const bool hasMark = control.kind != ControlKind::Field && control.kind != ControlKind::Label;
    return hasMark ? text.remove('&') : text;
}

namespace {

FittedCaption fitWays(const QList<QStringList>& ways, const Font& font, QSizeF size, double pixelsPerTwip) {
    FittedCaption fitted;
    for (const double points : kCaptionPoints) {
        if (points > std::max(static_cast<double>(font.points), kCaptionPoints.back())) {
            continue;
        }
        const double wished = font.points > kUsualPoints ? font.points : points;
        for (const int stretch : kStretches) {
            fitted.font = faceFont(font, fontPixels({.points = static_cast<float>(wished)}, pixelsPerTwip));
            fitted.font.setStretch(stretch);
            const auto way = std::find_if(ways.begin(), ways.end(),
                                          [&](const QStringList& lines) { return fits(lines, fitted.font, size); });
            if (way != ways.end()) {
                fitted.lines = *way;
                return fitted;
            }
        }
    }
    fitted.lines = ways.back();
    while (!fits(fitted.lines, fitted.font, size) && fitted.font.pixelSize() > kSmallestPixels) {
        fitted.font.setPixelSize(fitted.font.pixelSize() - 1);
    }
    return fitted;
}

}  // namespace

FittedCaption fitText(const QString& text, const Font& font, QSizeF size, double pixelsPerTwip) {
    return fitWays({text.split('\n')}, font, size, pixelsPerTwip);
}

FittedCaption fitCaption(const Control& control, QSizeF size, double pixelsPerTwip) {
    QString caption = withSigns(shownText(control));
    const qsizetype mark = caption.indexOf('&');
    const QChar access = mark >= 0 && mark + 1 < caption.size() ? caption.at(mark + 1) : QChar();
    caption.remove('&');
    FittedCaption fitted = fitWays(breaks(caption), control.font, size, pixelsPerTwip);
    if (!access.isNull()) {
        for (int line = 0; line < fitted.lines.size() && fitted.accessLine < 0; ++line) {
            fitted.accessAt = static_cast<int>(fitted.lines.at(line).indexOf(access));
            fitted.accessLine = fitted.accessAt >= 0 ? line : -1;
        }
    }
    return fitted;
}

}  // namespace tallyforge::qt
