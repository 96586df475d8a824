// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/qt_platform.h"
#include "gui/window_fixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace tallyforge {
namespace {

/// Waits for the modal window to open and hands it to `act`, which has to end it.
void whenModal(std::function<void(QWidget&)> act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal->isVisible()) {
            timer->stop();
            timer->deleteLater();
            act(*modal);
        }
    });
    timer->start(1);
}

class Dialogs : public testing::Test {
protected:
    qt::QtPlatform platform;
};

TEST_F(Dialogs, ShowsAMessageAndReturnsTheAnswer) {
    QString title;
    QString text;
    whenModal([&](QWidget& modal) {
        auto& box = dynamic_cast<QMessageBox&>(modal);
        title = box.windowTitle();
        text = box.text();
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        box.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(platform.messageBox({.kind = BoxKind::Question,
                                   .title = "Save Settings",
                                   .text = "2 <b> is fewer than 3",
                                   .buttons = BoxButtons::YesNo}),
              Answer::Yes);
    EXPECT_EQ(title, "Save Settings");
    EXPECT_EQ(text, "2 <b> is fewer than 3");
}

TEST_F(Dialogs, ClosingAQuestionMeansNo) {
    whenModal([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    EXPECT_EQ(platform.messageBox({.title = "Reset", .text = "Sure?", .buttons = BoxButtons::YesNo}), Answer::No);
    whenModal([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    EXPECT_EQ(platform.messageBox({.title = "Reset", .text = "Sure?", .buttons = BoxButtons::OkCancel}),
              Answer::Cancel);
}

TEST_F(Dialogs, AsksForATextWithItsPreset) {
    whenModal([](QWidget& modal) {
        auto* line = modal.findChild<QLineEdit*>();
        ASSERT_NE(line, nullptr);
        EXPECT_EQ(line->text(), "2");
        line->setText("12");
        dynamic_cast<QDialog&>(modal).accept();
    });
    EXPECT_EQ(platform.inputBox({.title = "Digits", .prompt = "How many?", .preset = "2"}), "12");
    whenModal([](QWidget& modal) { dynamic_cast<QDialog&>(modal).reject(); });
    EXPECT_EQ(platform.inputBox({.title = "Digits", .prompt = "How many?", .preset = "2"}), "");
}

TEST_F(Dialogs, ABoxForAFileOffersTheNamesThatAreThere) {
    whenModal([](QWidget& modal) {
        auto* names = modal.findChild<QComboBox*>();
        ASSERT_NE(names, nullptr);
        EXPECT_TRUE(names->isEditable());
        EXPECT_EQ(names->count(), 2);
        EXPECT_EQ(names->currentText(), "Tape.rec") << "the default stands there first";
        names->setCurrentIndex(1);
        dynamic_cast<QDialog&>(modal).accept();
    });
    const InputBox box{.title = "Retrieve",
                       .prompt = "Name?",
                       .preset = "Tape.rec",
                       .fileName = true,
                       .offers = {"a.rec", "Größe.rec"}};
    EXPECT_EQ(platform.inputBox(box), "Größe.rec");
    whenModal([](QWidget& modal) {
        QTest::keyClicks(modal.findChild<QLineEdit*>(), "new.rec");
        dynamic_cast<QDialog&>(modal).accept();
    });
    EXPECT_EQ(platform.inputBox(box), "new.rec") << "another name can be typed";
}

TEST_F(Dialogs, CarriesTextsOverTheClipboard) {
    platform.setClipboardText("caf\xE9 12.5");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("café 12.5"));
    QGuiApplication::clipboard()->setText(QString::fromUtf8("3.5 µ"));
    EXPECT_EQ(platform.clipboardText(), "3.5 \xB5");
}

TEST_F(Dialogs, RemembersAnOption) {
    const bool before = platform.readOption("GuiTest", false);
    platform.writeOption("GuiTest", !before);
    EXPECT_EQ(platform.readOption("GuiTest", before), !before);
}

TEST_F(Dialogs, AFileToBeWrittenIsAskedForByAChooserThatLeavesOverwritingToTheCalculator) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Zoë.csv");
    QFile there(path);
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    const InputBox box{.title = "Export", .prompt = "", .preset = "Tape.csv", .fileName = true, .writes = ".csv"};
    whenModal([&](QWidget& modal) {
        auto& chooser = dynamic_cast<QFileDialog&>(modal);
        EXPECT_EQ(chooser.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(chooser.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(chooser.windowTitle(), "Export");
        chooser.selectFile(path);
        chooser.findChild<QLineEdit*>()->setText(path);
        QMetaObject::invokeMethod(&chooser, "accept");
    });
    EXPECT_EQ(platform.inputBox(box), path.toStdString());
    whenModal([](QWidget& modal) { dynamic_cast<QFileDialog&>(modal).reject(); });
    EXPECT_EQ(platform.inputBox(box), "");
}

TEST_F(Dialogs, DrawsRandomNumbersBelowOne) {
    for (int i = 0; i < 1000; ++i) {
        const double drawn = platform.random();
        EXPECT_GE(drawn, 0.0);
        EXPECT_LT(drawn, 1.0);
    }
}

}  // namespace
}  // namespace tallyforge
