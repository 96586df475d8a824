// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/printing_layout.h"

#include "desktops/qt/drawing_painter.h"
#include "desktops/qt/theme.h"
#include "platform/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace tallyforge::qt {

namespace {

/// A font has whole pixels: text is laid out in tenths of a point, and the painter scales.
constexpr double kUnitsPerPoint = 10.0;
constexpr double kLineSpacing = 1.2;

QFont printFont(const Font& font) {
    QFont made = faceFont(font, static_cast<double>(font.points) * kUnitsPerPoint);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

double lineHeight(const Font& font) {
    return static_cast<double>(font.points) * kUnitsPerPoint * kLineSpacing;
}

/// The base line of a line of text that begins at `top`.
double baseLine(double top, double height) {
    constexpr double kShareAbove = 0.8;
    return top + kShareAbove * height;
}

std::vector<QString> brokenTo(double width, const QString& text, const QFont& font) {
    std::vector<QString> lines;
    QTextLayout layout(text, font);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

}  // namespace

PrintLayout::PrintLayout(const PrintJob& job, QSizeF room)
    : job_(job),
      width_(std::max(room.width() * kUnitsPerPoint, 1.0)),
      height_(std::max(room.height() * kUnitsPerPoint, 1.0)),
      titleFont_(printFont(job.title.font)),
      headHeight_(2.0 * lineHeight(job.title.font)) {
    for (const PrintBlock& block : job.blocks) {
        addBlock(block);
    }
    for (const Drawing& picture : job.pictures) {
        addPicture(picture);
    }
    fillPages();
}

void PrintLayout::addBlock(const PrintBlock& block) {
    Flow flow{.font = printFont(block.font),
              .face = block.font.face,
              .height = lineHeight(block.font),
              .count = block.count,
              .line = {},
              .heading = block.heading};
    if (block.font.face == Face::Terminal) {
        flow.block = &block;
    } else {
        std::vector<QString> lines;
        for (std::size_t index = 0; index < block.count; ++index) {
            const QString text = QString::fromStdString(toUnicode(block.line(index), flow.face));
            const std::vector<QString> broken = brokenTo(width_, text, flow.font);
            lines.insert(lines.end(), broken.begin(), broken.end());
        }
        flow.count = lines.size();
        flow.line = [held = std::move(lines)](std::size_t index) { return held[index]; };
    }
    flows_.push_back(std::move(flow));
}

// A picture is as wide as the page, unless it would then be higher.
void PrintLayout::addPicture(const Drawing& picture) {
    if (picture.width > 0.0F && picture.height > 0.0F) {
        const double proportion = static_cast<double>(picture.height) / static_cast<double>(picture.width);
        const double highest = (height_ - headHeight_) * 0.98;
        flows_.push_back({.font = {},
                          .height = std::min(width_ * proportion, highest),
                          .count = 1,
                          .line = {},
                          .picture = &picture});
    }
}

void PrintLayout::fillPages() {
    double top = headHeight_;
    pages_.emplace_back();
    const auto turn = [&] {
        pages_.emplace_back();
        top = headHeight_;
    };
    for (std::size_t at = 0; at < flows_.size(); ++at) {
        const Flow& flow = flows_[at];
        top += flow.heading && !pages_.back().empty() ? flow.height : 0.0;
        for (std::size_t first = 0; first < flow.count;) {
            const bool keeps = flow.heading && at + 1 < flows_.size();
            const double spared = keeps ? flows_[at + 1].height : 0.0;
            const double fits = (height_ - top - spared) / flow.height;
            auto count = fits < 1.0 ? 0 : std::min(flow.count - first, static_cast<std::size_t>(fits));
            if (count == 0 && !pages_.back().empty()) {
                turn();
                continue;
            }
            // A page that has no room for one line still takes one.
            count = std::max(count, std::size_t{1});
            pages_.back().push_back({.flow = at, .first = first, .count = count, .top = top});
            top += static_cast<double>(count) * flow.height;
            first += count;
        }
    }
}

void PrintLayout::paint(QPainter& painter, int page) const {
    painter.save();
    painter.scale(1.0 / kUnitsPerPoint, 1.0 / kUnitsPerPoint);
    paintHead(painter, page);
    for (const Piece& piece : pages_.at(static_cast<std::size_t>(page))) {
        paintPiece(painter, piece);
    }
    painter.restore();
}

void PrintLayout::paintHead(QPainter& painter, int page) const {
    const double height = headHeight_ / 2.0;
    painter.setFont(titleFont_);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(0.0, baseLine(0.0, height)),
                     QString::fromStdString(toUnicode(job_.title.text, job_.title.font.face)));
    const QString number = QString("Page %1 of %2").arg(page + 1).arg(pages());
    const QFont font = printFont({.points = 9.0F});
    painter.setFont(font);
    painter.drawText(QPointF(width_ - QFontMetricsF(font).horizontalAdvance(number), baseLine(0.0, height)), number);
    constexpr double kRuleWidth = 5.0;
    constexpr double kRuleAt = 1.3;
    painter.setPen(QPen(Qt::gray, kRuleWidth));
    painter.drawLine(QPointF(0.0, kRuleAt * height), QPointF(width_, kRuleAt * height));
    painter.setPen(Qt::black);
}

void PrintLayout::paintPiece(QPainter& painter, const Piece& piece) const {
    const Flow& flow = flows_[piece.flow];
    if (flow.picture != nullptr) {
        const Theme onPaper = Theme::forPalette(QPalette(QColor(Qt::lightGray)));
        paintDrawing(painter, QRectF(0.0, piece.top, width_, flow.height), *flow.picture, onPaper);
        return;
    }
    painter.setFont(flow.font);
    for (std::size_t line = 0; line < piece.count; ++line) {
        const double top = piece.top + static_cast<double>(line) * flow.height;
        if (flow.block == nullptr) {
            painter.drawText(QPointF(0.0, baseLine(top, flow.height)), flow.line(piece.first + line));
        } else {
            const std::string text = flow.block->line(piece.first + line);
            paintColumns(painter, flow, QString::fromStdString(toUnicode(text, flow.face)), top);
        }
    }
}

// A line is drawn from both its ends, so that its last column stands where the characters put it
// even where a sign came from another font. One that is too long for the page is drawn narrower.
void PrintLayout::paintColumns(QPainter& painter, const Flow& flow, const QString& text, double top) const {
    const QFontMetricsF metrics(flow.font);
    const double wide = static_cast<double>(text.size()) * metrics.horizontalAdvance('0');
    const double base = baseLine(top, flow.height);
    painter.save();
    if (wide > width_) {
        painter.scale(width_ / wide, 1.0);
    }
    const qsizetype gap = text.lastIndexOf("  ");
    if (gap < 0) {
        painter.drawText(QPointF(0.0, base), text);
    } else {
        const QString last = text.mid(gap + 2);
        painter.drawText(QPointF(0.0, base), text.left(gap));
        painter.drawText(QPointF(wide - metrics.horizontalAdvance(last), base), last);
    }
    painter.restore();
}

}  // namespace tallyforge::qt
