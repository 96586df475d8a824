// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/printing_output.h"

#include "desktops/qt/printing_layout.h"
#include "platform/text.h"

#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace tallyforge::qt {

QPageLayout usualPage() {
    const bool letter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    constexpr double kHalfInch = 36.0;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kHalfInch, kHalfInch, kHalfInch, kHalfInch), QPageLayout::Point};
}

PrintEnd paintPages(QPagedPaintDevice& device, const PrintJob& job, const PageWatch& goesOn) {
    const PrintLayout layout(job, device.pageLayout().paintRect(QPageLayout::Point).size());
    QPainter painter;
    if (!painter.begin(&device)) {
        return PrintEnd::Failed;
    }
    constexpr double kPointsPerInch = 72.0;
    painter.scale(device.logicalDpiX() / kPointsPerInch, device.logicalDpiY() / kPointsPerInch);
    for (int page = 0; page < layout.pages(); ++page) {
        if (goesOn && !goesOn(page, layout.pages())) {
            return PrintEnd::Cancelled;
        }
        if (page > 0 && !device.newPage()) {
            return PrintEnd::Failed;
        }
        layout.paint(painter, page);
    }
    return painter.end() ? PrintEnd::Done : PrintEnd::Failed;
}

PrintEnd writePdf(const QString& path, const PrintJob& job, const QPageLayout& page, const PageWatch& goesOn) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return PrintEnd::Failed;
    }
    PrintEnd end = PrintEnd::Failed;
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(page);
        writer.setTitle(QString::fromStdString(toUnicode(job.title.text, job.title.font.face)));
        writer.setCreator("Tallyforge");
        end = paintPages(writer, job, goesOn);
    }
    // What is still held back counts, too: commit() would not see that it has no room.
    if (end == PrintEnd::Done && file.flush()) {
        return file.commit() ? PrintEnd::Done : PrintEnd::Failed;
    }
    file.cancelWriting();
    return end == PrintEnd::Done ? PrintEnd::Failed : end;
}

}  // namespace tallyforge::qt
