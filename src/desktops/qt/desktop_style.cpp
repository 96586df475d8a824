// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/desktop_style.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace tallyforge::qt {

namespace {

QIcon chevrons(const QColor& ink) {
    constexpr int kSide = 16;
    QPixmap picture(kSide, kSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.5));
    for (const double left : {4.0, 8.0}) {
        painter.drawPolyline(QPolygonF{{left, 4.0}, {left + 4.0, 8.0}, {left, 12.0}});
    }
    painter.end();
    return picture;
}

}  // namespace

QIcon DesktopStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton ? chevrons(QApplication::palette().color(QPalette::WindowText))
                                                       : QProxyStyle::standardIcon(icon, option, widget);
}

void installStyle() {
    QApplication::setStyle(new DesktopStyle());
}

}  // namespace tallyforge::qt
