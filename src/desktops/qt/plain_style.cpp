// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/plain_style.h"

#include "desktops/qt/theme.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace tallyforge::qt {

namespace {

constexpr double kRadius = 3.0;

/// The theme of the window that holds the widget: it may be disabled, and still stands on its colours.
Theme themeOf(const QStyleOption& option) {
    return Theme::forPalette(option.palette);
}

void box(QPainter& painter, const QRect& area, const QColor& face, const QColor& edge, double width = 1.0) {
    painter.setPen(QPen(edge, width));
    painter.setBrush(face);
    const double inset = width / 2.0;
    painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
}

void drawField(QPainter& painter, const QStyleOption& option) {
    const Theme& theme = themeOf(option);
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    const bool focused = (option.state & QStyle::State_HasFocus) != 0;
    box(painter, option.rect, enabled ? theme.field : theme.well, focused ? theme.accent : theme.fieldEdge,
        focused ? 2.0 : 1.0);
}

void drawKey(QPainter& painter, const QStyleOption& option) {
    const Theme& theme = themeOf(option);
    const bool dark = theme.window.lightness() < 128;
    QColor face = option.palette.color(QPalette::Button);
    if ((option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0) {
        face = dark ? face.lighter(135) : face.darker(116);
    } else if ((option.state & QStyle::State_MouseOver) != 0 && (option.state & QStyle::State_Enabled) != 0) {
        face = dark ? face.lighter(115) : face.darker(105);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool enterPresses = button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
    box(painter, option.rect, face, enterPresses ? theme.accent : theme.keyEdge, enterPresses ? 2.0 : 1.0);
}

/// The frame stands below its heading.
void drawGroup(QPainter& painter, const QStyleOption& option, int indicator) {
    constexpr int kGap = 3;
    const int heading = std::max(indicator, option.fontMetrics.height()) + kGap;
    box(painter, option.rect.adjusted(0, heading, 0, 0), Qt::transparent, themeOf(option).keyEdge);
}

void drawMark(QPainter& painter, const QStyleOption& option, bool round) {
    const Theme& theme = themeOf(option);
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    const int side = std::min(option.rect.width(), option.rect.height());
    QRect area(0, 0, side, side);
    area.moveCenter(option.rect.center());
    const QColor& ink = enabled ? theme.text : theme.dimText;
    // A thin round line needs more of it than a straight one to be seen as well.
    const QColor& edge = enabled ? theme.secondary : theme.fieldEdge;
    const double inset = side * 0.28;
    const QRectF inside = QRectF(area).adjusted(inset, inset, -inset, -inset);
    const bool on = (option.state & QStyle::State_On) != 0;
    if (round) {
        painter.setPen(QPen(edge, 1.0));
        painter.setBrush(theme.field);
        painter.drawEllipse(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
        if (on) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            painter.drawEllipse(inside);
        }
        return;
    }
    box(painter, area, theme.field, edge);
    if (on) {
        painter.setPen(QPen(ink, 2.0));
        painter.drawPolyline(QPolygonF{{inside.left(), inside.center().y()},
                                       QPointF(inside.center().x() - 0.5, inside.bottom()),
                                       {inside.right() + 1.0, inside.top() - 1.0}});
    }
}

}  // namespace

PlainStyle::PlainStyle() : QProxyStyle("fusion") {}

void PlainStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
        case PE_PanelLineEdit:
        case PE_FrameLineEdit:
            drawField(*painter, *option);
            break;
        case PE_PanelButtonCommand:
            drawKey(*painter, *option);
            break;
        case PE_IndicatorRadioButton:
            drawMark(*painter, *option, true);
            break;
        case PE_IndicatorCheckBox:
            drawMark(*painter, *option, false);
            break;
        case PE_FrameGroupBox:
            drawGroup(*painter, *option, pixelMetric(PM_ExclusiveIndicatorHeight, option, widget));
            break;
        case PE_Frame:
            box(*painter, option->rect, Qt::transparent, themeOf(*option).fieldEdge);
            break;
        default:
            painter->restore();
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

int PlainStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool ring = metric == PM_ExclusiveIndicatorWidth || metric == PM_ExclusiveIndicatorHeight ||
                      metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
    return ring && widget != nullptr ? std::max(usual, widget->fontMetrics().height() * 3 / 4) : usual;
}

}  // namespace tallyforge::qt
