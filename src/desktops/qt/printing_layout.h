// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lays a print job out on pages of a size, the one code for paper, PDF and the preview: the title
// and the page's number on every page, lines below, values of a tape ending in one column.
#pragma once

#include "platform/print_job.h"

#include <QFont>
#include <QSizeF>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

class QPainter;

namespace tallyforge::qt {

class PrintLayout {
public:
    /// `room` is what a page offers between its margins, in points. `job` must outlive the layout.
    PrintLayout(const PrintJob& job, QSizeF room);

    /// At least one.
    [[nodiscard]] int pages() const { return static_cast<int>(pages_.size()); }
    /// Paints page `page`, counted from 0. A unit of the painter is a point, its origin the left
    /// upper corner of the room.
    void paint(QPainter& painter, int page) const;

private:
    /// What stands one under the other in one manner: lines of one font, or a picture.
    struct Flow {
        QFont font;
        Face face = Face::Arial;
        double height = 0.0;  ///< of a line
        std::size_t count = 0;
        std::function<QString(std::size_t)> line;  ///< of prose, broken to the width
        const PrintBlock* block = nullptr;         ///< of a table, whose columns are characters
        const Drawing* picture = nullptr;
        bool heading = false;
    };
    struct Piece {
        std::size_t flow = 0;
        std::size_t first = 0;
        std::size_t count = 0;
        double top = 0.0;
    };

    void addBlock(const PrintBlock& block);
    void addPicture(const Drawing& picture);
    void fillPages();
    void paintHead(QPainter& painter, int page) const;
    void paintPiece(QPainter& painter, const Piece& piece) const;
    void paintColumns(QPainter& painter, const Flow& flow, const QString& text, double top) const;

    const PrintJob& job_;
    double width_;  ///< of the room, in our units
    double height_;
    QFont titleFont_;
    double headHeight_;
    std::vector<Flow> flows_;
    std::vector<std::vector<Piece>> pages_;
};

}  // namespace tallyforge::qt
