// SPDX-License-Identifier: GPL-3.0-or-later
//
// How Qt's own widgets are drawn in dialogs: the edges of fields, lists, frames, keys, options and
// boxes in the theme's colours, so that they are seen on a dark desktop as well as on a light one,
// and look as the main window's do.
#pragma once

#include <QProxyStyle>

namespace tallyforge::qt {

class PlainStyle final : public QProxyStyle {
    Q_OBJECT
public:
    PlainStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// The rings and boxes of options grow with their captions.
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace tallyforge::qt
