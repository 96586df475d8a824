// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/printing_preview.h"

#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

constexpr double kGap = 14.0;  ///< around a page, pixels

}  // namespace

PagesView::PagesView(const PrintJob& job, const QPageLayout& page, QWidget* parent)
    : QAbstractScrollArea(parent), job_(job) {
    setAccessibleName("Pages to be printed");
    setFocusPolicy(Qt::StrongFocus);
    setPage(page);
}

void PagesView::setPage(const QPageLayout& page) {
    page_ = page;
    layout_.emplace(job_, page.paintRect(QPageLayout::Point).size());
    refit();
}

QSizeF PagesView::pageSize() const {
    return page_.fullRect(QPageLayout::Point).size() * scale_;
}

double PagesView::pitch() const {
    return pageSize().height() + kGap;
}

int PagesView::page() const {
    const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    return std::clamp(static_cast<int>(middle / pitch()), 0, pages() - 1);
}

void PagesView::zoom(int steps) {
    constexpr double kStep = 1.2;
    constexpr double kSmallest = 0.2;
    constexpr double kLargest = 6.0;
    fits_ = steps == 0;
    const double place = (verticalScrollBar()->value() + viewport()->height() / 2.0) / pitch();
    scale_ = std::clamp(scale_ * std::pow(kStep, steps), kSmallest, kLargest);
    refit();
    verticalScrollBar()->setValue(static_cast<int>(place * pitch() - viewport()->height() / 2.0));
}

void PagesView::fitWidth() {
    const double wide = page_.fullRect(QPageLayout::Point).width();
    scale_ = std::max(viewport()->width() - 2.0 * kGap, 50.0) / wide;
}

void PagesView::refit() {
    if (fits_) {
        fitWidth();
    }
    const auto beyond = [](double extent, int seen) { return std::max(static_cast<int>(std::ceil(extent)) - seen, 0); };
    constexpr int kLines = 3;
    verticalScrollBar()->setRange(0, beyond(pages() * pitch() + kGap, viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(kLines * fontMetrics().height());
    horizontalScrollBar()->setRange(0, beyond(pageSize().width() + 2.0 * kGap, viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    viewport()->update();
    if (scrolled) {
        scrolled();
    }
}

void PagesView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Dark));
    const QSizeF size = pageSize();
    const double left = std::max((viewport()->width() - size.width()) / 2.0, kGap) - horizontalScrollBar()->value();
    const int first = std::max(static_cast<int>(verticalScrollBar()->value() / pitch()), 0);
    for (int page = first; page < pages(); ++page) {
        const double top = kGap + page * pitch() - verticalScrollBar()->value();
        if (top > viewport()->height()) {
            break;
        }
        painter.fillRect(QRectF(QPointF(left, top), size), Qt::white);
        const QPointF room = page_.paintRect(QPageLayout::Point).topLeft() * scale_;
        painter.save();
        painter.translate(QPointF(left, top) + room);
        painter.scale(scale_, scale_);
        layout_->paint(painter, page);
        painter.restore();
    }
}

void PagesView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    refit();
}

void PagesView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
    if (scrolled) {
        scrolled();
    }
}

void PagesView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        zoom(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

}  // namespace tallyforge::qt
