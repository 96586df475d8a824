// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window that shows what will be printed, and prints it or saves it as a PDF file. A page is
// painted when it is scrolled to, so that a tape of a million lines opens at once.
#pragma once

#include "desktops/qt/printing_layout.h"
#include "desktops/qt/printing_output.h"
#include "platform/print_job.h"

#include <QAbstractScrollArea>
#include <QDialog>
#include <QPageLayout>
#include <QString>

#include <functional>
#include <optional>

class QLabel;
class QPrinter;

namespace tallyforge::qt {

/// The pages one under the other, as large as `zoom` says.
class PagesView : public QAbstractScrollArea {
    Q_OBJECT
public:
    PagesView(const PrintJob& job, const QPageLayout& page, QWidget* parent);

    void setPage(const QPageLayout& page);
    /// Enlarges by steps; 0 fits the width of the window.
    void zoom(int steps);
    [[nodiscard]] int pages() const { return layout_->pages(); }
    /// The page that stands in the middle, counted from 0.
    [[nodiscard]] int page() const;

    std::function<void()> scrolled;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QSizeF pageSize() const;  ///< in pixels
    [[nodiscard]] double pitch() const;     ///< from page to page
    void fitWidth();
    void refit();

    const PrintJob& job_;
    QPageLayout page_;
    std::optional<PrintLayout> layout_;
    double scale_ = 1.0;  ///< pixels a point
    bool fits_ = true;    ///< the scale follows the width of the window
};

class PrintPreview : public QDialog {
    Q_OBJECT
public:
    PrintPreview(const PrintJob& job, QWidget* parent);

    /// Where the file chooser begins: folder and name.
    QString pdfName;

    /// Saves the pages under `path`; a message tells what failed. Returns whether the file was written.
    bool savePdf(const QString& path);
    /// Prints on `printer`; a message tells what failed.
    bool printOn(QPrinter& printer);
    [[nodiscard]] PagesView& view() { return *view_; }

private:
    void choosePrinter();
    void choosePdf();
    void choosePaper();
    void showPage();
    [[nodiscard]] bool finished(PrintEnd end, const QString& complaint);
    [[nodiscard]] PrintEnd withProgress(const QString& what, const std::function<PrintEnd(const PageWatch&)>& print);

    const PrintJob& job_;
    QPageLayout page_;
    PagesView* view_;
    QLabel* place_;
};

}  // namespace tallyforge::qt
