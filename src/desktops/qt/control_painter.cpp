// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/control_painter.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

/// Height of a list row; seven of them fill the tape.
constexpr double kRowTwips = 200.0;
constexpr double kListFontShare = 0.86;
constexpr double kStackRowTwips = 175.0;
/// From one size of a caption to the next smaller: two of them lead from the ten points of the bank
/// to the seven of the small captions, so few sizes are loaded for all of them.
constexpr double kNextSmaller = 0.92;
constexpr double kSmallestPixels = 6.0;

QString unicode(std::string_view bytes, Face face) {
    return QString::fromStdString(toUnicode(bytes, face));
}

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

bool fits(const QStringList& lines, const QFontMetricsF& metrics, QSizeF size) {
    const auto wide = [&](const QString& line) { return metrics.horizontalAdvance(line) > size.width(); };
    return std::none_of(lines.begin(), lines.end(), wide) &&
           metrics.height() * 0.92 * static_cast<double>(lines.size()) <= size.height();
}

void box(QPainter& painter, const QRectF& area, const QColor& face, const QColor& edge, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1.0));
    painter.setBrush(face);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

}  // namespace

QString shownText(const Control& control) {
    return unicode(control.text, control.font.face);
}

QString plainCaption(const Control& control) {
    QString text = shownText(control);
    const bool hasMark = control.kind != ControlKind::Field && control.kind != ControlKind::Label;
    return hasMark ? text.remove('&') : text;
}

FittedCaption fitCaption(const Control& control, QSizeF size, double pixelsPerTwip) {
    QString caption = shownText(control);
    FittedCaption fitted;
    const qsizetype mark = caption.indexOf('&');
    const QChar access = mark >= 0 && mark + 1 < caption.size() ? caption.at(mark + 1) : QChar();
    caption.remove('&');
    const QList<QStringList> ways = breaks(caption);
    for (double pixels = fontPixels(control.font, pixelsPerTwip); fitted.lines.isEmpty(); pixels *= kNextSmaller) {
        fitted.font = faceFont(control.font, pixels);
        const QFontMetricsF metrics(fitted.font);
        for (const QStringList& way : ways) {
            if (fits(way, metrics, size) || pixels <= kSmallestPixels) {
                fitted.lines = way;
                break;
            }
        }
    }
    if (!access.isNull()) {
        for (int line = 0; line < fitted.lines.size() && fitted.accessLine < 0; ++line) {
            fitted.accessAt = static_cast<int>(fitted.lines.at(line).indexOf(access));
            fitted.accessLine = fitted.accessAt >= 0 ? line : -1;
        }
    }
    return fitted;
}

void paintKey(QPainter& painter, const QRectF& area, const Control& control, const FittedCaption& caption,
              const Theme& theme, PaintState state) {
    QColor face = theme.keyFace(control.colour);
    const bool dark = theme.window.lightness() < 128;
    if (state.pressed) {
        face = dark ? face.lighter(135) : face.darker(116);
    }
    box(painter, area, face, theme.keyEdge, area.height() * 0.1);
    painter.setPen(control.enabled ? theme.text : theme.dimText);
    painter.setFont(caption.font);
    const QFontMetricsF metrics(caption.font);
    const double lineHeight = metrics.height() * 0.92;
    double top = area.center().y() - lineHeight * static_cast<double>(caption.lines.size()) / 2.0;
    const double shift = state.pressed ? 1.0 : 0.0;
    for (int line = 0; line < caption.lines.size(); ++line) {
        const QString& text = caption.lines.at(line);
        const double left = area.center().x() - metrics.horizontalAdvance(text) / 2.0;
        const double baseline = top + (lineHeight - metrics.height()) / 2.0 + metrics.ascent();
        painter.drawText(QPointF(left + shift, baseline + shift), text);
        if (line == caption.accessLine) {
            const double from = left + metrics.horizontalAdvance(text.left(caption.accessAt));
            const double to = left + metrics.horizontalAdvance(text.left(caption.accessAt + 1));
            painter.drawLine(QPointF(from + shift, baseline + 1.5 + shift),
                             QPointF(to + shift, baseline + 1.5 + shift));
        }
        top += lineHeight;
    }
}

void paintField(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme, PaintState state) {
    box(painter, area, theme.field, state.focused ? theme.text : theme.fieldEdge, 3.0);
    const QString text = shownText(control);
    const double margin = 60.0 * state.pixelsPerTwip;
    QFont font = faceFont(control.font, std::min(fontPixels(control.font, state.pixelsPerTwip), area.height() * 0.72));
    const double room = area.width() - 2.0 * margin;
    if (const double needed = QFontMetricsF(font).horizontalAdvance(text); needed > room) {
        font.setPixelSize(std::max(static_cast<int>(font.pixelSize() * room / needed), 1));
    }
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text);
    const double left = control.rightAligned ? area.right() - margin - width : area.left() + margin;
    const double baseline = area.center().y() - metrics.height() / 2.0 + metrics.ascent();
    painter.setFont(font);
    painter.setPen(theme.fieldText);
    painter.drawText(QPointF(left, baseline), text);
    if (state.focused) {
        const auto caret = static_cast<qsizetype>(std::min(control.caret, control.text.size()));
        const double at = left + metrics.horizontalAdvance(text.left(caret)) + 1.0;
        painter.setPen(QPen(theme.fieldText, std::max(1.0, 12.0 * state.pixelsPerTwip)));
        painter.drawLine(QPointF(at, baseline - metrics.ascent() * 0.9),
                         QPointF(at, baseline + metrics.descent() * 0.6));
    }
}

void paintLabel(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme, PaintState state) {
    const QString text = shownText(control);
    double pixels = std::min(fontPixels(control.font, state.pixelsPerTwip), area.height() * kListFontShare);
    while (pixels > kSmallestPixels &&
           QFontMetricsF(faceFont(control.font, pixels)).horizontalAdvance(text) > area.width()) {
        pixels *= kNextSmaller;
    }
    painter.setFont(faceFont(control.font, pixels));
    painter.setPen(theme.text);
    const Qt::Alignment side = control.rightAligned ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(area, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextDontClip, text);
}

void paintOption(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme, PaintState state) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = std::min(area.height() * 0.72, 120.0 * state.pixelsPerTwip);
    const QRectF ring(area.left() + 1.0, area.center().y() - size / 2.0, size, size);
    painter.setPen(QPen(theme.text, 1.0));
    painter.setBrush(theme.field);
    painter.drawEllipse(ring);
    if (control.checked) {
        painter.setBrush(theme.text);
        painter.drawEllipse(ring.adjusted(size * 0.25, size * 0.25, -size * 0.25, -size * 0.25));
    }
    const QRectF textArea = area.adjusted(size + 6.0, 0, 0, 0);
    const FittedCaption caption = fitCaption(control, textArea.size(), state.pixelsPerTwip);
    painter.setFont(caption.font);
    painter.setPen(control.enabled ? theme.text : theme.dimText);
    painter.drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter, caption.lines.join(' '));
}

void paintFrame(QPainter& painter, const QRectF& area, const Control& control, const Theme& theme, PaintState state) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = faceFont(control.font, fontPixels(control.font, state.pixelsPerTwip));
    const QFontMetricsF metrics(font);
    const QRectF frame = area.adjusted(0.5, metrics.height() / 2.0, -0.5, -0.5);
    painter.setPen(QPen(theme.fieldEdge, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, 3.0, 3.0);
    const QString text = plainCaption(control);
    const QRectF head(area.left() + 8.0, area.top(), metrics.horizontalAdvance(text) + 8.0, metrics.height());
    painter.fillRect(head, theme.window);
    painter.setFont(font);
    painter.setPen(theme.text);
    painter.drawText(head, Qt::AlignCenter, text);
}

void paintLamp(QPainter& painter, const QRectF& area, const Theme& theme) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.lamp);
    painter.drawEllipse(area);
}

ListMetrics listMetrics(const Control& list, double height, double pixelsPerTwip) {
    // The stack list shows one row more than the tape in the same height.
    const double twips = list.name == "lstStack" ? kStackRowTwips : kRowTwips;
    ListMetrics metrics;
    metrics.rowHeight = twips * pixelsPerTwip * static_cast<double>(list.font.points) / 9.0;
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

void paintList(QPainter& painter, const QRectF& area, const Control& list, std::size_t first, const Theme& theme,
               PaintState state) {
    box(painter, area, theme.field, theme.fieldEdge, 3.0);
    if (list.rows == nullptr) {
        return;
    }
    const ListMetrics rows = listMetrics(list, area.height(), state.pixelsPerTwip);
    const QFont font = listFont(list, rows, state.pixelsPerTwip);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setClipRect(area.adjusted(1, 1, -1, -1));
    const std::size_t last = std::min(list.rows->count(), first + rows.visibleRows);
    const double margin = 40.0 * state.pixelsPerTwip;
    for (std::size_t row = first; row < last; ++row) {
        const QRectF place(area.left(), area.top() + rows.top + static_cast<double>(row - first) * rows.rowHeight,
                           area.width(), rows.rowHeight);
        if (row == list.rows->selected()) {
            painter.fillRect(place.adjusted(1, 1, -1, 0), theme.selection);
        }
        painter.setPen(theme.fieldText);
        const double baseline = place.center().y() - metrics.height() / 2.0 + metrics.ascent();
        painter.drawText(QPointF(area.left() + margin, baseline), unicode(list.rows->row(row), list.font.face));
    }
    painter.setClipping(false);
}

}  // namespace tallyforge::qt
