// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of a control as Qt's lists and choices read them, and how a row with columns is painted.
#pragma once

#include "platform/form.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <cstdint>
#include <optional>

namespace tallyforge::qt {

class RowModel : public QAbstractListModel {
    Q_OBJECT
public:
    RowModel(const Control& control, QObject* parent) : QAbstractListModel(parent), control_(control) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// Tells the views what changed since the last time; returns whether anything has.
    bool sync();

private:
    const Control& control_;
    std::optional<std::uint64_t> revision_;
    int shown_ = 0;
};

/// Paints the text behind each tab character at the place of its column.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    RowDelegate(const Control& control, QObject* parent) : QStyledItemDelegate(parent), control_(control) {}
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Pixels a twip, for the places of the columns.
    double scale = 0.1;

private:
    const Control& control_;
};

}  // namespace tallyforge::qt
