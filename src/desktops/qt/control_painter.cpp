// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/control_painter.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

constexpr double kListFontShare = 0.86;
constexpr double kRadius = 40.0;       ///< of keys, fields and lists, twips
constexpr double kFieldMargin = 60.0;  ///< twips

QString unicode(std::string_view bytes, Face face) {
    return QString::fromStdString(toUnicode(bytes, face));
}

void box(QPainter& painter, const QRectF& area, const QColor& face, const QColor& edge, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1.0));
    painter.setBrush(face);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

}  // namespace

namespace {

/// The mark of a key that opens a dialog, and of one that has units: colour alone does not say it.
void paintMark(QPainter& painter, const QRectF& area, const Control& key, const Theme& theme, double pixelsPerTwip) {
    const double side = 50.0 * pixelsPerTwip;
    const QRectF corner(area.right() - 1.7 * side, area.top() + 0.7 * side, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.secondary);
    if (key.colour == KeyColour::Blue) {
        painter.drawEllipse(corner.adjusted(side * 0.1, side * 0.1, -side * 0.1, -side * 0.1));
    } else if (key.colour != KeyColour::Plain) {
        painter.drawPolygon(
            QPolygonF{{corner.topLeft(), corner.bottomLeft(), QPointF(corner.right(), corner.center().y())}});
    }
}

void paintRing(QPainter& painter, const QRectF& area, const QColor& colour, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(1.0, 1.0, -1.0, -1.0), radius, radius);
}

}  // namespace

void paintWell(QPainter& painter, const QRectF& area, const Theme& theme, double pixelsPerTwip) {
    box(painter, area, theme.well, theme.well, kRadius * pixelsPerTwip);
}

void paintKey(QPainter& painter, const QRectF& area, const Control& control, const FittedCaption& caption,
              const Theme& theme, const PaintState& state) {
    QColor face = state.idle ? theme.well : theme.keyFace(control);
    const bool dark = theme.window.lightness() < 128;
    if (state.pressed) {
        face = dark ? face.lighter(135) : face.darker(116);
    } else if (state.hovered && control.enabled) {
        face = dark ? face.lighter(115) : face.darker(105);
    }
    const double radius = kRadius * state.pixelsPerTwip;
    box(painter, area, face, control.tone == KeyTone::Enter ? face : theme.keyEdge, radius);
    paintMark(painter, area, control, theme, state.pixelsPerTwip);
    painter.setPen(theme.keyText(control, state.idle));
    const QFontMetricsF metrics(caption.font);
    const double lineHeight = metrics.height() * 0.92;
    double top = area.center().y() - lineHeight * static_cast<double>(caption.lines.size()) / 2.0;
    const double shift = state.pressed ? 1.0 : 0.0;
    for (int line = 0; line < caption.lines.size(); ++line) {
        const QString& text = caption.lines.at(line);
        const double left = area.center().x() - lineWidth(text, caption.font) / 2.0;
        const double baseline = top + (lineHeight - metrics.height()) / 2.0 + metrics.ascent();
        drawLine(painter, QPointF(left + shift, baseline + shift), text, caption.font);
        if (line == caption.accessLine) {
            const double from = left + metrics.horizontalAdvance(text.left(caption.accessAt));
            const double to = left + metrics.horizontalAdvance(text.left(caption.accessAt + 1));
            painter.drawLine(QPointF(from + shift, baseline + 1.5 + shift),
                             QPointF(to + shift, baseline + 1.5 + shift));
        }
        top += lineHeight;
    }
    if (state.focused) {
        paintRing(painter, area, theme.accent, radius);
    }
}

QFont fieldFont(const Control& control, double height, double pixelsPerTwip) {
    return faceFont(control.font, std::min(fontPixels(control.font, pixelsPerTwip), height * 0.72));
}

namespace {

double advance(const QString& text, const QFont& font) {
    return text.isEmpty() ? 0.0 : QFontMetricsF(font).horizontalAdvance(text);
}

}  // namespace

QString fittedFieldText(const Control& control, double width, const QFont& font) {
    return QFontMetricsF(font).elidedText(shownText(control), Qt::ElideMiddle, width);
}

void paintField(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                const PaintState& state) {
    box(painter, area, theme.field, state.focused ? theme.text : theme.fieldEdge, kRadius * state.pixelsPerTwip);
    if (state.refusing) {
        paintRing(painter, area, theme.lamp, kRadius * state.pixelsPerTwip);
    }
    const double margin = kFieldMargin * state.pixelsPerTwip;
    QFont font = fieldFont(control, area.height(), state.pixelsPerTwip);
    const double room = area.width() - 2.0 * margin;
    const bool resting = control.text.empty() && !state.note.isEmpty();
    const QString text = resting        ? state.note
                         : state.typing ? shownText(control)
                                        : fittedFieldText(control, room, font);
    // An empty field does not need the font, which takes its time at a start.
    if (const double needed = advance(text, font); needed > room) {
        font.setPixelSize(std::max(static_cast<int>(font.pixelSize() * room / needed), 1));
    }
    const double width = advance(text, font);
    const double left = control.rightAligned ? area.right() - margin - width : area.left() + margin;
    if (!text.isEmpty()) {
        const QFontMetricsF metrics(font);
        const double baseline = area.center().y() - metrics.height() / 2.0 + metrics.ascent();
        painter.setFont(font);
        painter.setPen(resting ? theme.secondary : theme.fieldText);
        painter.drawText(QPointF(left, baseline), text);
    }
    if (state.focused) {
        constexpr double kHalfCaret = 0.49;  // of the font's size
        const auto typed = static_cast<qsizetype>(std::min(control.caret, control.text.size()));
        const double at = left + advance(resting ? text : text.left(typed), font) + 1.0;
        const QPointF half(0.0, font.pixelSize() * kHalfCaret);
        const QPointF middle(at, area.center().y());
        painter.setPen(QPen(theme.fieldText, std::max(1.0, 12.0 * state.pixelsPerTwip)));
        painter.drawLine(middle - half, middle + half);
    }
}

void paintLabel(QPainter& painter, const QRectF& area, const Control& control, const QString& text, const Theme& theme,
                const PaintState& state) {
    painter.setFont(fitText(text, control.font, area.size(), state.pixelsPerTwip).font);
    constexpr int kRight = Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip;
    constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip;
    // Headings of columns stand over both their ends.
    if (const qsizetype gap = text.indexOf("   "); gap > 0) {
        painter.setPen(theme.secondary);
        painter.drawText(area, kLeft, text.left(gap));
        painter.drawText(area, kRight, text.mid(gap).trimmed());
        return;
    }
    painter.setPen(theme.text);
    painter.drawText(area, control.rightAligned ? kRight : kLeft, text);
}

void paintOption(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                 const PaintState& state) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = std::min(area.height() * 0.72, 120.0 * state.pixelsPerTwip);
    const QRectF ring(area.left() + 2.0, area.center().y() - size / 2.0, size, size);
    painter.setPen(QPen(theme.text, 1.0));
    painter.setBrush(theme.field);
    painter.drawEllipse(ring);
    if (control.checked) {
        painter.setBrush(theme.text);
        painter.drawEllipse(ring.adjusted(size * 0.25, size * 0.25, -size * 0.25, -size * 0.25));
    }
    constexpr double kBesideRing = 55.0;
    const QRectF textArea = area.adjusted(size + kBesideRing * state.pixelsPerTwip, 0, 0, 0);
    FittedCaption caption = fitCaption(control, textArea.size(), state.pixelsPerTwip);
    // All options alike, and narrow enough for the longest.
    caption.font.setStretch(kCondensed);
    painter.setFont(caption.font);
    painter.setPen(control.enabled ? theme.text : theme.dimText);
    painter.drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter, caption.lines.join(' '));
    if (state.focused) {
        paintRing(painter, area, theme.accent, kRadius * state.pixelsPerTwip);
    }
}

void paintFrame(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme,
                const PaintState& state) {
    const QFont font = faceFont(control.font, fontPixels(control.font, state.pixelsPerTwip));
    painter.setFont(font);
    painter.setPen(theme.secondary);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, plainCaption(control));
}

void paintLamp(QPainter& painter, const QRectF& area, const Theme& theme) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.lamp);
    painter.drawEllipse(area);
}

ListMetrics listMetrics(const Control& list, double height, double pixelsPerTwip) {
    ListMetrics metrics;
    metrics.rowHeight = list.rowHeight * pixelsPerTwip * static_cast<double>(list.font.points) / 9.0;
    metrics.visibleRows = static_cast<std::size_t>(std::max(1.0, std::floor((height + 1.0) / metrics.rowHeight)));
    if (list.fromBottom && list.rows != nullptr) {
        const auto shown = static_cast<double>(std::min(metrics.visibleRows, list.rows->count()));
        metrics.top = std::max(0.0, height - shown * metrics.rowHeight);
    }
    return metrics;
}

QFont listFont(const Control& list, const ListMetrics& rows, double pixelsPerTwip) {
    return faceFont(list.font, std::min(rows.rowHeight * kListFontShare, fontPixels(list.font, pixelsPerTwip)));
}

QString fittedRow(const Control& list, std::size_t row, double width, const QFont& font) {
    return QFontMetricsF(font).elidedText(unicode(list.rows->row(row), list.font.face), Qt::ElideMiddle, width);
}

namespace {

/// A row's left side, in a paler ink, and its right side, at the right edge.
struct RowParts {
    QString label;
    QString value;
};

/// A row of the stack is its number and, behind blanks, its value.
RowParts numbered(const QString& line) {
    const QString text = line.trimmed();
    const qsizetype gap = text.indexOf(' ');
    return gap < 0 ? RowParts{.label = {}, .value = text}
                   : RowParts{.label = text.left(gap), .value = text.mid(gap).trimmed()};
}

/// A line of a log is a label and a value behind at least two blanks, a value alone, or words.
RowParts parted(const QString& line) {
    const QString text = line.trimmed();
    const qsizetype gap = text.lastIndexOf("  ");
    if (gap >= 0) {
        return {.label = text.left(gap).trimmed(), .value = text.mid(gap + 2)};
    }
    static const QString kOfNumbers = "0123456789.,:-+#eEABCDFabcdho ";
    const bool number = !text.isEmpty() && (text.front().isDigit() || QString("-#.,").contains(text.front())) &&
                        std::all_of(text.begin(), text.end(), [](QChar c) { return kOfNumbers.contains(c); });
    return number ? RowParts{.label = {}, .value = text} : RowParts{.label = line, .value = {}};
}

void paintParts(QPainter& painter, const QRectF& place, double baseline, const RowParts& parts, const Theme& theme) {
    const QFontMetricsF metrics(painter.font());
    painter.setPen(parts.value.isEmpty() ? theme.fieldText : theme.secondary);
    painter.drawText(QPointF(place.left(), baseline), parts.label);
    painter.setPen(theme.fieldText);
    painter.drawText(QPointF(place.right() - metrics.horizontalAdvance(parts.value), baseline), parts.value);
}

void paintRow(QPainter& painter, const QRectF& place, const Control& list, std::size_t row, const Theme& theme,
              const PaintState& state) {
    const double margin = 40.0 * state.pixelsPerTwip;
    const QRectF inside = place.adjusted(margin, 0.0, -margin - state.scrollBar, 0.0);
    const QString text = fittedRow(list, row, inside.width(), painter.font());
    if (text.isEmpty()) {
        return;  // nor is the font needed, which takes its time at a start
    }
    const QFontMetricsF metrics(painter.font());
    const double baseline = place.center().y() - metrics.height() / 2.0 + metrics.ascent();
    paintParts(painter, inside, baseline, list.fromBottom ? parted(text) : numbered(text), theme);
}

void paintFirstSteps(QPainter& painter, const QRectF& area, const Theme& theme, const PaintState& state) {
    const Font caption{.face = Face::Arial, .points = 7.0F};
    painter.setFont(faceFont(caption, fontPixels(caption, state.pixelsPerTwip)));
    painter.setPen(theme.secondary);
    painter.drawText(area, Qt::AlignCenter, state.note);
}

}  // namespace

void paintList(QPainter& painter, const QRectF& area, const Control& list, std::size_t first, const Theme& theme,
               const PaintState& state) {
    const double radius = kRadius * state.pixelsPerTwip;
    box(painter, area, theme.field, state.focused ? theme.text : theme.fieldEdge, radius);
    if (list.rows == nullptr) {
        return;
    }
    if (!state.note.isEmpty()) {
        paintFirstSteps(painter, area, theme, state);
    }
    const ListMetrics rows = listMetrics(list, area.height(), state.pixelsPerTwip);
    painter.setFont(listFont(list, rows, state.pixelsPerTwip));
    // The row that is chosen keeps off the round corners.
    QPainterPath inside;
    inside.addRoundedRect(area.adjusted(1, 1, -1, -1), radius, radius);
    painter.setClipPath(inside);
    const std::size_t last = std::min(list.rows->count(), first + rows.visibleRows);
    for (std::size_t row = first; row < last; ++row) {
        const QRectF place(area.left(), area.top() + rows.top + static_cast<double>(row - first) * rows.rowHeight,
                           area.width(), rows.rowHeight);
        if (row == list.rows->selected()) {
            painter.fillRect(place, theme.selection);
        }
        paintRow(painter, place, list, row, theme, state);
    }
    painter.setClipping(false);
    if (state.focused) {
        paintRing(painter, area, theme.accent, radius);
    }
}

}  // namespace tallyforge::qt
