// SPDX-License-Identifier: GPL-3.0-or-later
//
// Paints a drawing that is plain data, as large as its area allows, in the colours of the theme.
#pragma once

#include "desktops/qt/theme.h"
#include "platform/drawing.h"

#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace tallyforge::qt {

/// Paints `drawing` into the middle of `area` with its sides in proportion.
void paintDrawing(QPainter& painter, const QRectF& area, const Drawing& drawing, const Theme& theme);

/// Shows one drawing, and says it in words to assistive tools.
class PictureWidget : public QWidget {
    Q_OBJECT
public:
    explicit PictureWidget(QWidget* parent) : QWidget(parent) {}
    /// Takes over another drawing.
    void setDrawing(const Drawing& drawing);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Drawing drawing_;
};

}  // namespace tallyforge::qt
