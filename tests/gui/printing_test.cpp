// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages as they come out of the layout: what stands on which page, on paper, in a PDF file and
// in the preview. PDF files are read back by poppler's pdftotext, where the machine has it.
#include "desktops/qt/printing_layout.h"
#include "desktops/qt/printing_output.h"
#include "desktops/qt/printing_preview.h"
#include "gui/window_fixture.h"
#include "support/failing_disk.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

namespace tallyforge {
namespace {

constexpr Font kTitle{.points = 12.0F};
constexpr Font kTape{.face = Face::Terminal, .points = 12.0F};

PrintJob tapeOf(std::size_t lines) {
    PrintJob job{.title = {"A title", kTitle}, .blocks = {}};
    job.blocks.push_back({.font = kTape, .count = lines, .line = [](std::size_t index) {
                              const std::string value = std::to_string(index) + ".00";
                              return "+" + std::string(43 - value.size(), ' ') + value;
                          }});
    job.blocks.push_back(blockOf({"Registers"}, kTitle));
    job.blocks.back().heading = true;
    job.blocks.push_back(blockOf({"reg1: 0.000e+00 |  reg2: 0.000e+00"}, kTape));
    return job;
}

/// The text of a PDF file by pages; nothing where the machine cannot read one.
QStringList pagesOf(const QString& pdf) {
    const QString reader = QStandardPaths::findExecutable("pdftotext");
    if (reader.isEmpty()) {
        return {};
    }
    QProcess process;
    process.start(reader, {"-layout", pdf, "-"});
    EXPECT_TRUE(process.waitForFinished());
    QStringList pages = QString::fromUtf8(process.readAllStandardOutput()).split('\f');
    pages.removeLast();
    return pages;
}

class PrintingTest : public testing::Test {
protected:
    /// Puts the text of the next message box into `told` and closes the box.
    void readNextBox(QString& told) {
        whenOpen<QMessageBox>([&told](QMessageBox& box) {
            told = box.text();
            box.accept();
        });
    }

    /// Runs as soon as a modal window of that kind is open.
    template <typename Window>
    void whenOpen(std::function<void(Window&)> act) {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
            if (auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
                window != nullptr && window->isVisible()) {
                timer->stop();
                timer->deleteLater();
                act(*window);
            }
        });
        timer->start(1);
    }

    QTemporaryDir folder;
    QString pdf = folder.filePath("tape.pdf");
};

TEST_F(PrintingTest, EveryPageHasTheTitleAndItsNumber) {
    ASSERT_EQ(qt::writePdf(pdf, tapeOf(120), qt::usualPage()), qt::PrintEnd::Done);
    const QStringList pages = pagesOf(pdf);
    if (pages.isEmpty()) {
        GTEST_SKIP() << "no pdftotext";
    }
    ASSERT_EQ(pages.size(), 3);
    for (int page = 0; page < pages.size(); ++page) {
        EXPECT_TRUE(pages[page].startsWith("A title")) << page;
        EXPECT_TRUE(pages[page].contains(QString("Page %1 of 3").arg(page + 1))) << page;
    }
    EXPECT_TRUE(pages[0].contains(" 0.00"));
    EXPECT_TRUE(pages[2].contains(" 119.00"));
    EXPECT_TRUE(pages[2].contains("reg1: 0.000e+00"));
}

TEST_F(PrintingTest, NoLineIsLostOrPrintedTwice) {
    ASSERT_EQ(qt::writePdf(pdf, tapeOf(500), qt::usualPage()), qt::PrintEnd::Done);
    const QString all = pagesOf(pdf).join('\n');
    if (all.isEmpty()) {
        GTEST_SKIP() << "no pdftotext";
    }
    for (int line = 0; line < 500; ++line) {
        EXPECT_EQ(all.count(QString(" %1.00\n").arg(line)), 1) << line;
    }
}

// The right edges of the values, looked up in the picture of a page.
TEST_F(PrintingTest, ValuesEndInOneColumnWhateverTheirLabel) {
    PrintJob job{.title = {"T", kTitle}, .blocks = {}};
    // Square root, pi, division sign and plain letters in front.
    job.blocks.push_back(blockOf({"\xFBx" + std::string(33, ' ') + "1.41", "\xE3" + std::string(34, ' ') + "3.14",
                                  "\xF6" + std::string(31, ' ') + "1234.41", std::string(35, ' ') + "0.01"},
                                 kTape));
    const qt::PrintLayout layout(job, QSizeF(500.0, 700.0));
    QImage image(1000, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(2.0, 2.0);
    layout.paint(painter, 0);
    painter.end();
    const auto rightEdge = [&](double top, double bottom) {
        for (int x = image.width() - 1; x >= 0; --x) {
            for (int y = static_cast<int>(2.0 * top); y < static_cast<int>(2.0 * bottom); ++y) {
                if (qGray(image.pixel(x, y)) < 128) {
                    return x;
                }
            }
        }
        return -1;
    };
    constexpr double kHead = 2 * 14.4;
    const int edge = rightEdge(kHead, kHead + 14.4);
    EXPECT_GT(edge, 500);
    for (int line = 1; line < 4; ++line) {
        // The digits 1 and 4 end at different places of their cell.
        EXPECT_NEAR(rightEdge(kHead + line * 14.4, kHead + (line + 1) * 14.4), edge, 3) << line;
    }
}

TEST_F(PrintingTest, AHeadingStandsOnThePageOfWhatFollows) {
    for (std::size_t lines = 40; lines < 60; ++lines) {
        ASSERT_EQ(qt::writePdf(pdf, tapeOf(lines), qt::usualPage()), qt::PrintEnd::Done);
        const QStringList pages = pagesOf(pdf);
        if (pages.isEmpty()) {
            GTEST_SKIP() << "no pdftotext";
        }
        EXPECT_TRUE(pages.last().contains("Registers") && pages.last().contains("reg1")) << lines;
        EXPECT_EQ(pages.join("").count("Registers"), 1) << lines;
    }
}

TEST_F(PrintingTest, AnEmptyJobIsAPageWithItsTitle) {
    const PrintJob job{.title = {"Nothing", kTitle}, .blocks = {}};
    EXPECT_EQ(qt::PrintLayout(job, QSizeF(500.0, 700.0)).pages(), 1);
    EXPECT_EQ(qt::PrintLayout(job, QSizeF(0.0, 0.0)).pages(), 1);
}

TEST_F(PrintingTest, APageTooSmallForALineTakesOneEach) {
    EXPECT_EQ(qt::PrintLayout(tapeOf(3), QSizeF(10.0, 10.0)).pages(), 5);
}

TEST_F(PrintingTest, APictureStandsUnderTheLinesOrOnAPageOfItsOwn) {
    PrintJob job = tapeOf(3);
    job.pictures.push_back({.width = 100.0F,
                            .height = 100.0F,
                            .described = {},
                            .shapes = {DrawnRectangle{.topLeft = {0.0F, 0.0F}, .width = 100.0F, .height = 100.0F}}});
    EXPECT_EQ(qt::PrintLayout(job, QSizeF(500.0, 700.0)).pages(), 1);
    EXPECT_EQ(qt::PrintLayout(job, QSizeF(500.0, 550.0)).pages(), 2);
}

TEST_F(PrintingTest, AHundredThousandLinesTakeSeconds) {
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(qt::writePdf(pdf, tapeOf(100'000), qt::usualPage()), qt::PrintEnd::Done);
    EXPECT_LT(clock.elapsed(), 30'000) << "even in a debug build on a busy machine";
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
}

TEST_F(PrintingTest, ACancelledPrintLeavesTheFormerFile) {
    QFile before(pdf);
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    before.write("former");
    before.close();
    EXPECT_EQ(qt::writePdf(pdf, tapeOf(1000), qt::usualPage(), [](int page, int /*pages*/) { return page < 5; }),
              qt::PrintEnd::Cancelled);
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    EXPECT_EQ(before.readAll(), "former");
}

TEST_F(PrintingTest, TheBarHasAKeyThatCancels) {
    const PrintJob job = tapeOf(400'000);
    qt::PrintPreview preview(job, nullptr);
    preview.show();
    whenOpen<QProgressDialog>([](QProgressDialog& bar) {
        EXPECT_GT(bar.maximum(), 1000);
        bar.cancel();
    });
    EXPECT_FALSE(preview.savePdf(pdf));
    EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(PrintingTest, AFileThatCannotBeWrittenIsTold) {
    const PrintJob job = tapeOf(10);
    qt::PrintPreview preview(job, nullptr);
    QString told;
    readNextBox(told);
    EXPECT_FALSE(preview.savePdf(folder.filePath("missing/tape.pdf")));
    EXPECT_TRUE(told.contains("missing/tape.pdf cannot be written")) << told.toStdString();
    qt::PrintEnd onFullDisk = qt::PrintEnd::Done;
    {
        const FullDisk full;
        onFullDisk = qt::writePdf(pdf, job, qt::usualPage());
    }
    EXPECT_EQ(onFullDisk, qt::PrintEnd::Failed);
    EXPECT_FALSE(QFile::exists(pdf));
    EXPECT_TRUE(preview.savePdf(pdf));
    EXPECT_TRUE(QFile::exists(pdf));
}

TEST_F(PrintingTest, APrinterThatIsNotThereIsTold) {
    const PrintJob job = tapeOf(10);
    qt::PrintPreview preview(job, nullptr);
    QString told;
    readNextBox(told);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("missing/page.pdf"));
    EXPECT_FALSE(preview.printOn(printer));
    EXPECT_TRUE(told.contains("does not answer")) << told.toStdString();
}

TEST_F(PrintingTest, ADesktopWithoutAPrinterIsToldSo) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        GTEST_SKIP() << "this desktop has a printer";
    }
    const PrintJob job = tapeOf(10);
    qt::PrintPreview preview(job, nullptr);
    preview.show();
    QString told;
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    for (auto* key : preview.findChildren<QPushButton*>()) {
        if (key->text() == "&Print...") {
            key->click();
        }
    }
    EXPECT_EQ(told, "This desktop knows no printer.\nThe pages can be saved as PDF.");
    EXPECT_TRUE(preview.isVisible()) << "the pages are still there";
}

TEST_F(PrintingTest, PaperAndFileHaveTheSamePages) {
    const PrintJob job = tapeOf(200);
    qt::PrintPreview preview(job, nullptr);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageLayout(qt::usualPage());
    const QString paper = folder.filePath("paper.pdf");
    printer.setOutputFileName(paper);
    EXPECT_TRUE(preview.printOn(printer));
    EXPECT_TRUE(preview.savePdf(pdf));
    EXPECT_EQ(pagesOf(paper), pagesOf(pdf));
    EXPECT_EQ(preview.view().pages(), 4);
}

TEST_F(PrintingTest, ThePreviewOfALongTapeOpensAtOnceAndScrolls) {
    const PrintJob job = tapeOf(1'000'000);
    QElapsedTimer clock;
    clock.start();
    qt::PrintPreview preview(job, nullptr);
    preview.show();
    preview.grab();
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_EQ(preview.view().page(), 0);
    preview.view().verticalScrollBar()->setValue(preview.view().verticalScrollBar()->maximum());
    EXPECT_EQ(preview.view().page(), preview.view().pages() - 1);
    const int page = preview.view().pages() / 2;
    preview.view().verticalScrollBar()->setValue(preview.view().verticalScrollBar()->maximum() / 2);
    preview.view().zoom(3);
    EXPECT_NEAR(preview.view().page(), page, 1) << "what is looked at stays";
}

TEST_F(PrintingTest, ThePreviewPaintsThePageWhite) {
    const PrintJob job = tapeOf(10);
    qt::PrintPreview preview(job, nullptr);
    preview.show();
    const QImage seen = preview.view().viewport()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, seen.height() / 2), QColor(Qt::white));
    EXPECT_NE(seen.pixelColor(3, 3), QColor(Qt::white));
}

}  // namespace
}  // namespace tallyforge
