// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/drawing_painter.h"

#include "platform/text.h"

#include <QFontMetricsF>
#include <QPolygonF>

#include <algorithm>
#include <variant>

namespace tallyforge::qt {

namespace {

/// One painter's strokes, in the drawing's own units.
class Strokes {
public:
    Strokes(QPainter& painter, const Theme& theme) : painter_(painter), theme_(theme) {}

    void operator()(const DrawnLine& line) const {
        prepare(line.colour, {.ink = Ink::None}, line.width);
        painter_.drawLine(point(line.from), point(line.to));
    }
    void operator()(const DrawnRectangle& shape) const {
        prepare(shape.edge, shape.fill, shape.edgeWidth);
        painter_.drawRoundedRect(QRectF(point(shape.topLeft), QSizeF(real(shape.width), real(shape.height))),
                                 real(shape.radius), real(shape.radius));
    }
    void operator()(const DrawnArc& arc) const {
        const bool whole = arc.sweep >= 360.0F || arc.sweep <= -360.0F;
        prepare(arc.edge, whole ? arc.fill : Colour{.ink = Ink::None}, arc.edgeWidth);
        const double radius = real(arc.radius);
        const QRectF around(point(arc.centre) - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
        if (whole) {
            painter_.drawEllipse(around);
            return;
        }
        constexpr float kStepsPerDegree = 16.0F;
        painter_.drawArc(around, static_cast<int>(arc.start * kStepsPerDegree),
                         static_cast<int>(arc.sweep * kStepsPerDegree));
    }
    void operator()(const DrawnPolyline& line) const {
        prepare(line.edge, line.closed ? line.fill : Colour{.ink = Ink::None}, line.edgeWidth);
        QPolygonF points;
        for (const DrawnPoint& at : line.points) {
            points << point(at);
        }
        line.closed ? painter_.drawPolygon(points) : painter_.drawPolyline(points);
    }
    void operator()(const DrawnText& text) const {
        // A font has whole pixels; what is left of the size the painter scales.
        constexpr double kFontPixels = 40.0;
        const QFont font = faceFont({.face = text.face, .bold = text.bold}, kFontPixels);
        const QString words = QString::fromStdString(toUnicode(text.text, text.face));
        const double width = QFontMetricsF(font).horizontalAdvance(words);
        const double share = text.align == TextAlign::Left ? 0.0 : text.align == TextAlign::Centre ? 0.5 : 1.0;
        painter_.save();
        painter_.translate(point(text.at));
        painter_.scale(real(text.size) / kFontPixels, real(text.size) / kFontPixels);
        painter_.setFont(font);
        painter_.setPen(colourOf(text.colour));
        painter_.drawText(QPointF(-width * share, 0.0), words);
        painter_.restore();
    }

private:
    static double real(float value) { return static_cast<double>(value); }
    static QPointF point(DrawnPoint at) { return {real(at.x), real(at.y)}; }

    [[nodiscard]] QColor colourOf(const Colour& colour) const {
        switch (colour.ink) {
            case Ink::Faint:
                return theme_.fieldEdge;
            case Ink::Accent:
                return theme_.lamp;
            case Ink::Own:
                return {colour.red, colour.green, colour.blue};
            default:
                return theme_.text;
        }
    }
    void prepare(const Colour& edge, const Colour& fill, float width) const {
        painter_.setPen(edge.ink == Ink::None
                            ? QPen(Qt::NoPen)
                            : QPen(colourOf(edge), real(width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(fill.ink == Ink::None ? QBrush(Qt::NoBrush) : QBrush(colourOf(fill)));
    }

    QPainter& painter_;
    const Theme& theme_;
};

}  // namespace

void paintDrawing(QPainter& painter, const QRectF& area, const Drawing& drawing, const Theme& theme) {
    const auto wide = static_cast<double>(drawing.width);
    const auto high = static_cast<double>(drawing.height);
    if (wide <= 0.0 || high <= 0.0) {
        return;
    }
    const double scale = std::min(area.width() / wide, area.height() / high);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center() - QPointF(wide, high) * scale / 2.0);
    painter.scale(scale, scale);
    const Strokes strokes(painter, theme);
    for (const DrawnShape& shape : drawing.shapes) {
        std::visit(strokes, shape);
    }
    painter.restore();
}

void PictureWidget::setDrawing(const Drawing& drawing) {
    if (drawing_ != drawing) {
        drawing_ = drawing;
        setAccessibleDescription(QString::fromStdString(toUnicode(drawing.described, Face::Arial)));
        update();
    }
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintDrawing(painter, rect(), drawing_, Theme::forPalette(palette()));
}

}  // namespace tallyforge::qt
