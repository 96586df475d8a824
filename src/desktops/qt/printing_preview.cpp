// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/printing_preview.h"

#include "desktops/qt/theme.h"
#include "platform/text.h"

#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace tallyforge::qt {

PrintPreview::PrintPreview(const PrintJob& job, QWidget* parent)
    : QDialog(parent), job_(job), page_(usualPage()), view_(new PagesView(job, page_, this)), place_(new QLabel(this)) {
    setPalette(Theme::paletteFor(palette()));
    setWindowTitle("Print: " + QString::fromStdString(toUnicode(job.title.text, job.title.font.face)));
    auto* keys = new QHBoxLayout;
    const auto addKey = [&](const QString& caption, const QString& tip, auto act) {
        auto* key = new QPushButton(caption, this);
        key->setToolTip(tip);
        key->setAutoDefault(false);
        connect(key, &QPushButton::clicked, this, act);
        keys->addWidget(key);
        return key;
    };
    addKey("&Print...", "Choose a printer and print", [this] { choosePrinter(); })->setDefault(true);
    addKey("Save as P&DF...", "Write the pages into a file", [this] { choosePdf(); });
    addKey("Pap&er...", "Size of the paper, upright or across", [this] { choosePaper(); });
    keys->addStretch();
    keys->addWidget(place_);
    keys->addStretch();
    auto* larger = addKey("+", "Larger [Ctrl++]", [this] { view_->zoom(1); });
    auto* smaller = addKey(QString(QChar(0x2212)), "Smaller [Ctrl+-]", [this] { view_->zoom(-1); });
    larger->setAccessibleName("Larger");
    larger->setShortcut(QKeySequence::ZoomIn);
    smaller->setAccessibleName("Smaller");
    smaller->setShortcut(QKeySequence::ZoomOut);
    addKey("&Fit width", "As wide as the window", [this] { view_->zoom(0); });
    addKey("&Close", "Close without printing", [this] { reject(); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view_);
    layout->addLayout(keys);
    view_->scrolled = [this] { showPage(); };
    view_->setFocus();
    constexpr QSize kUsualSize(760, 820);
    resize(kUsualSize.boundedTo(screen()->availableSize() * 9 / 10));
    showPage();
}

void PrintPreview::showPage() {
    place_->setText(QString("Page %1 of %2").arg(view_->page() + 1).arg(view_->pages()));
}

// A short job is done before a bar would be seen.
PrintEnd PrintPreview::withProgress(const QString& what, const std::function<PrintEnd(const PageWatch&)>& print) {
    constexpr int kPatience = 400;
    QProgressDialog progress(what, "Cancel", 0, view_->pages(), this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(windowTitle());
    progress.setMinimumDuration(kPatience);
    return print([&progress](int page, int /*pages*/) {
        progress.setValue(page);
        return !progress.wasCanceled();
    });
}

bool PrintPreview::finished(PrintEnd end, const QString& complaint) {
    if (end == PrintEnd::Failed) {
        QMessageBox::critical(this, "Print", complaint);
    }
    return end == PrintEnd::Done;
}

bool PrintPreview::savePdf(const QString& path) {
    const PrintEnd end =
        withProgress("Saving " + path, [&](const PageWatch& watch) { return writePdf(path, job_, page_, watch); });
    return finished(end, path + " cannot be written.\nIs the folder there, and has the disk room?");
}

bool PrintPreview::printOn(QPrinter& printer) {
    const PrintEnd end = withProgress("Printing on " + printer.printerName(), [&](const PageWatch& watch) {
        const PrintEnd painted = printer.isValid() ? paintPages(printer, job_, watch) : PrintEnd::Failed;
        if (painted == PrintEnd::Cancelled) {
            printer.abort();
        }
        return painted == PrintEnd::Done && printer.printerState() == QPrinter::Error ? PrintEnd::Failed : painted;
    });
    return finished(end, "The printer " + printer.printerName() + " does not answer.\nNothing was printed.");
}

void PrintPreview::choosePrinter() {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        QMessageBox::information(this, "Print", "This desktop knows no printer.\nThe pages can be saved as PDF.");
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(page_);
    printer.setDocName(QString::fromStdString(toUnicode(job_.title.text, job_.title.font.face)));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted && printOn(printer)) {
        accept();
    }
}

void PrintPreview::choosePdf() {
    const QString path = QFileDialog::getSaveFileName(this, "Save as PDF", pdfName, "PDF (*.pdf)");
    if (!path.isEmpty() && savePdf(path.endsWith(".pdf", Qt::CaseInsensitive) ? path : path + ".pdf")) {
        accept();
    }
}

void PrintPreview::choosePaper() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(page_);
    QPageSetupDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) {
        page_ = printer.pageLayout();
        view_->setPage(page_);
        showPage();
    }
}

}  // namespace tallyforge::qt
