// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the desktop's clipboard hands over, whatever lies on it.
#include "desktops/qt/qt_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QImage>
#include <QMimeData>

#include <string>

namespace tallyforge {
namespace {

class DesktopClipboard : public testing::Test {
protected:
    ~DesktopClipboard() override { QGuiApplication::clipboard()->clear(); }
    qt::QtPlatform platform;
};

TEST_F(DesktopClipboard, GivesATextAndTakesOne) {
    QGuiApplication::clipboard()->setText("12.5 µF π");
    EXPECT_EQ(platform.clipboardText(),
              "12.5 \xB5"
              "F ?");
    platform.setClipboardText("2.50");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "2.50");
}

TEST_F(DesktopClipboard, OfFiftyMegabytesItGivesTheBeginningAtOnce) {
    constexpr qsizetype kFiftyMegabytes = 50 * 1024 * 1024;
    QGuiApplication::clipboard()->setText(QString(kFiftyMegabytes, '7'));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(platform.clipboardText(), std::string(kLongestClipping, '7') + "...");
    EXPECT_LT(clock.elapsed(), 2000);
    QGuiApplication::clipboard()->setText(QString(kLongestClipping, '7'));
    EXPECT_EQ(platform.clipboardText(), std::string(kLongestClipping, '7')) << "what fits is whole";
}

TEST_F(DesktopClipboard, OfBinaryNoiseItGivesATextOfAsManySigns) {
    QString noise;
    for (int sign = 0; sign < 5000; ++sign) {
        noise += QChar(static_cast<char16_t>(sign * 7919 % 0xD800));
    }
    QGuiApplication::clipboard()->setText(noise);
    EXPECT_EQ(platform.clipboardText().size(), 5000U);
    auto* bytes = new QMimeData;
    bytes->setData("application/octet-stream", QByteArray(1000, '\xFF'));
    QGuiApplication::clipboard()->setMimeData(bytes);
    EXPECT_EQ(platform.clipboardText(), "");
}

TEST_F(DesktopClipboard, OfAPictureItGivesNothing) {
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(picture);
    EXPECT_EQ(platform.clipboardText(), "");
}

}  // namespace
}  // namespace tallyforge
