// SPDX-License-Identifier: GPL-3.0-or-later
//
// Draws a control into a rectangle: one function a kind, no state.
#pragma once

#include "desktops/qt/caption.h"
#include "desktops/qt/theme.h"
#include "platform/form.h"

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace tallyforge::qt {

struct PaintState {
    bool pressed = false;
    bool focused = false;
    bool typing = false;  ///< the field that all typing goes to
    bool hovered = false;
    bool idle = false;      ///< does nothing under the modifiers that are held
    bool refusing = false;  ///< has just dropped a character
    double pixelsPerTwip = 0.1;
    int scrollBar = 0;  ///< pixels that a list's scroll bar takes
    QString note{};     ///< shown faintly where there is nothing else: X at rest, the first steps
};

/// The text of a field as it fits: one that is too long has its middle left out, but for the field
/// that is typed in.
[[nodiscard]] QString fittedFieldText(const Control& control, double width, const QFont& font);
/// The font of a field's text.
[[nodiscard]] QFont fieldFont(const Control& control, double height, double pixelsPerTwip);
/// A row of a list as it fits beside the scroll bar.
[[nodiscard]] QString fittedRow(const Control& list, std::size_t row, double width, const QFont& font);

void paintKey(QPainter& painter, const QRectF& area, const Control& control, const FittedCaption& caption,
              const Theme& theme, const PaintState& state);
void paintField(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                const PaintState& state);
void paintLabel(QPainter& painter, const QRectF& area, const Control& control, const QString& text, const Theme& theme,
                const PaintState& state);
/// What a hidden key leaves.
void paintWell(QPainter& painter, const QRectF& area, const Theme& theme, double pixelsPerTwip);
void paintOption(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                 const PaintState& state);
void paintFrame(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                const PaintState& state);
void paintLamp(QPainter& painter, const QRectF& area, const Theme& theme);

/// Geometry of a list's rows in an area of `height` pixels.
struct ListMetrics {
    double rowHeight = 20.0;
    std::size_t visibleRows = 7;
    double top = 0.0;  ///< where the first row stands
};
[[nodiscard]] ListMetrics listMetrics(const Control& list, double height, double pixelsPerTwip);
/// The font of a list's rows.
[[nodiscard]] QFont listFont(const Control& list, const ListMetrics& rows, double pixelsPerTwip);
/// Draws the rows from `first` on; what lies outside the area costs nothing.
void paintList(QPainter& painter, const QRectF& area, const Control& list, std::size_t first, const Theme& theme,
               const PaintState& state);

}  // namespace tallyforge::qt
