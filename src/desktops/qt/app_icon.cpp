// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/app_icon.h"

#include <QPainter>
#include <QPixmap>

namespace tallyforge::qt {

namespace {

// All lengths in sixteenths of the icon's side.
constexpr double kUnits = 16.0;
constexpr int kKeys = 3;
constexpr int kYellowColumn = 2;
constexpr int kYellowRow = 2;

QPixmap drawn(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kUnits, side / kUnits);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x2F, 0x3B, 0x4C));
    painter.drawRoundedRect(QRectF(1.0, 0.5, 14.0, 15.0), 2.0, 2.0);
    painter.setBrush(QColor(0xD5, 0xEA, 0xFF));
    painter.drawRoundedRect(QRectF(2.5, 2.0, 11.0, 3.0), 0.6, 0.6);
    for (int row = 0; row < kKeys; ++row) {
        for (int column = 0; column < kKeys; ++column) {
            const bool yellow = row == kYellowRow && column == kYellowColumn;
            painter.setBrush(yellow ? QColor(0xFF, 0xFF, 0xA7) : QColor(0xF4, 0xF5, 0xF7));
            painter.drawRoundedRect(QRectF(2.5 + column * 3.9, 6.2 + row * 2.9, 3.2, 2.2), 0.5, 0.5);
        }
    }
    return picture;
}

}  // namespace

QIcon appIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap(drawn(side));
    }
    return icon;
}

}  // namespace tallyforge::qt
