// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/row_model.h"

#include <QApplication>
#include <QPainter>
#include <QStringList>

#include <cmath>

namespace tallyforge::qt {

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (control_.rows == nullptr || !index.isValid() || row >= control_.rows->count()) {
        return {};
    }
    const auto text = [&] { return QString::fromStdString(toUnicode(control_.rows->row(row), control_.font.face)); };
    if (role == Qt::DisplayRole) {
        return text();
    }
    return role == Qt::AccessibleTextRole ? QVariant(text().replace('\t', ' ')) : QVariant();
}

bool RowModel::sync() {
    const std::uint64_t revision = control_.rows == nullptr ? 0 : control_.rows->revision();
    if (revision_ == revision) {
        return false;
    }
    revision_ = revision;
    const int count = control_.rows == nullptr ? 0 : static_cast<int>(control_.rows->count());
    if (count != shown_) {
        beginResetModel();
        shown_ = count;
        endResetModel();
    } else if (count > 0) {
        emit dataChanged(index(0), index(count - 1));
    }
    return true;
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (control_.columns.empty()) {
        return QStyledItemDelegate::paint(painter, option, index);
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStringList parts = row.text.split('\t');
    row.text.clear();
    const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const bool chosen = (row.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->setFont(row.font);
    painter->setPen(row.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    constexpr int kMargin = 4;
    for (qsizetype part = 0; part < parts.size(); ++part) {
        const auto column = static_cast<std::size_t>(part);
        const bool known = part > 0 && column <= control_.columns.size();
        const int left = known ? static_cast<int>(std::lround(control_.columns.at(column - 1) * scale)) : 0;
        painter->drawText(row.rect.adjusted(left + kMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, parts.at(part));
    }
    painter->restore();
}

}  // namespace tallyforge::qt
