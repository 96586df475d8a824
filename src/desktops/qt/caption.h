// SPDX-License-Identifier: GPL-3.0-or-later
//
// Captions as they stand on keys: broken into lines, in one of a few sizes, with raised exponents.
#pragma once

#include "platform/form.h"

#include <QFont>
#include <QPainter>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace tallyforge::qt {

/// How narrow the condensed face of captions is, percent of the usual one.
inline constexpr int kCondensed = 80;

/// A control's text as it reads on screen, access mark and all.
[[nodiscard]] QString shownText(const Control& control);
/// The same without the access mark.
[[nodiscard]] QString plainCaption(const Control& control);

/// A caption broken and sized so that it stands inside a key.
struct FittedCaption {
    QStringList lines;
    QFont font;
    int accessLine = -1;  ///< line and place of the underlined letter
    int accessAt = -1;
};
/// Breaks `caption` at a blank where one line does not fit `size`, and makes the font smaller
/// until it does.
[[nodiscard]] FittedCaption fitCaption(const Control& control, QSizeF size, double pixelsPerTwip);
/// The same for a text whose lines stay as they are.
[[nodiscard]] FittedCaption fitText(const QString& text, const Font& font, QSizeF size, double pixelsPerTwip);

/// Width of a caption's line with what is raised in it.
[[nodiscard]] double lineWidth(const QString& line, const QFont& font);
/// Draws a caption's line with its base line beginning at `at`.
void drawLine(QPainter& painter, QPointF at, const QString& line, const QFont& font);

}  // namespace tallyforge::qt
