// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/control_widget.h"

#include "desktops/qt/control_interface.h"
#include "desktops/qt/form_view.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tallyforge::qt {

namespace {

template <typename Value>
bool take(Value& held, const Value& present) {
    if (held == present) {
        return false;
    }
    held = present;
    return true;
}

}  // namespace

ControlWidget::ControlWidget(FormView& formView, Control& shown)
    : QWidget(&formView), view_(formView), control_(shown) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    flash_.setSingleShot(true);
    connect(&flash_, &QTimer::timeout, this, [this] { update(); });
    if (isList()) {
        scrollBar_ = new QScrollBar(Qt::Vertical, this);
        scrollBar_->setFocusPolicy(Qt::NoFocus);
        scrollBar_->setAccessibleName(QString::fromStdString(control_.spoken) + " scroll bar");
        scrollBar_->hide();
        connect(scrollBar_, &QScrollBar::valueChanged, this, [this] { update(); });
    }
    if (control_.kind == ControlKind::Label || control_.kind == ControlKind::Frame ||
        control_.kind == ControlKind::Lamp) {
        setAttribute(Qt::WA_TransparentForMouseEvents, control_.tip.empty());
    }
}

void ControlWidget::sync(double pixelsPerTwip, bool hasKeyboard) {
    const bool rescaled = take(pixelsPerTwip_, pixelsPerTwip);
    const bool moved = take(place_, control_.place);
    if (const QRect pixels = view_.toPixels(place_); moved || rescaled || pixels != geometry()) {
        setGeometry(pixels);
    }
    bool changed = take(text_, control_.text);
    changed |= take(note_, noteText());
    changed |= take(label_, labelText());
    changed |= take(font_, control_.font);
    const bool refit = changed || rescaled || fresh_;
    changed |= take(colour_, control_.colour);
    changed |= take(enabled_, control_.enabled);
    changed |= take(checked_, control_.checked);
    changed |= take(idle_, control_.idle && control_.idle());
    syncRefusals();
    const bool keyboardMoved = take(hasKeyboard_, hasKeyboard);
    const bool cameHere = keyboardMoved && hasKeyboard;
    changed |= keyboardMoved;
    changed |= control_.kind == ControlKind::Field && take(caret_, control_.caret);
    if (refit && isKey()) {
        constexpr double kCaptionMargin = 36.0;
        const double margin = 2.0 * kCaptionMargin * pixelsPerTwip_;
        caption_ = fitCaption(control_, QSizeF(width() - margin, height() - margin), pixelsPerTwip_);
    }
    if (take(tip_, control_.tip) || fresh_) {
        QString tip = QString::fromStdString(toUnicode(tip_, Face::Arial)).toHtmlEscaped();
        // A line for each meaning.
        tip.replace(" | ", "<br>");
        setToolTip(tip.isEmpty() ? QString() : "<qt>" + tip + "</qt>");
    }
    if (isList()) {
        syncList();
    }
    if (take(visible_, control_.visible) || fresh_) {
        setVisible(visible_);
    }
    fresh_ = false;
    if (changed || rescaled) {
        update();
        syncMeaning();
    }
    if (cameHere && QAccessible::isActive()) {
        tellFocus(*this);
    }
}

// A character that went nowhere makes the edge flash, so that the hand notices.
void ControlWidget::syncRefusals() {
    constexpr int kFlash = 160;
    if (take(refusals_, control_.refusals)) {
        flash_.start(kFlash);
        update();
    }
}

// A mask changes the names of all keys at once; a listener asks for those where the keyboard is.
void ControlWidget::syncMeaning() {
    const bool heard = hasKeyboard_ || control_.live || control_.kind == ControlKind::Field;
    if (QAccessible::isActive() && heard) {
        tellChange(*this);
    }
}

QString ControlWidget::meaning() const {
    if (control_.kind == ControlKind::List && control_.rows != nullptr &&
        control_.rows->selected() < control_.rows->count()) {
        return QString::fromStdString(toUnicode(control_.rows->row(control_.rows->selected()), control_.font.face))
            .simplified();
    }
    if (control_.kind == ControlKind::Label) {
        return label();
    }
    return control_.kind == ControlKind::Field && control_.text.empty() ? note_ : plainCaption(control_);
}

QString ControlWidget::labelText() const {
    if (&control_ != view_.form().nameLine) {
        return {};
    }
    return QString::fromStdString(toUnicode(view_.nameLine(), Face::Arial)).replace('\n', ' ').trimmed();
}

QString ControlWidget::label() const {
    return label_.isEmpty() ? shownText(control_) : label_;
}

QString ControlWidget::noteText() const {
    return control_.resting ? QString::fromStdString(toUnicode(control_.resting(), Face::Arial)) : QString();
}

QRect ControlWidget::rowPlace(std::size_t row) const {
    const auto first = static_cast<std::size_t>(scrollBar_ == nullptr ? 0 : scrollBar_->value());
    const ListMetrics metrics = listMetrics(control_, height(), pixelsPerTwip_);
    if (row < first || row >= first + metrics.visibleRows) {
        return {};
    }
    const double top = metrics.top + static_cast<double>(row - first) * metrics.rowHeight;
    return {mapToGlobal(QPoint(0, static_cast<int>(top))), QSize(width(), static_cast<int>(metrics.rowHeight))};
}

std::size_t ControlWidget::rowUnder(QPoint global) const {
    return isList() ? rowAt(mapFromGlobal(global).y()) : 0;
}

void ControlWidget::syncList() {
    if (control_.rows == nullptr || !take(revision_, control_.rows->revision() + 1)) {
        return;
    }
    const ListMetrics metrics = listMetrics(control_, height(), pixelsPerTwip_);
    const std::size_t count = control_.rows->count();
    const auto hidden = static_cast<int>(count - std::min(count, metrics.visibleRows));
    scrollBar_->setRange(0, hidden);
    scrollBar_->setPageStep(static_cast<int>(metrics.visibleRows));
    scrollBar_->setVisible(hidden > 0);
    const std::size_t selected = control_.rows->selected();
    if (selected + 1 >= count) {
        scrollBar_->setValue(hidden);
    } else if (hasKeyboard_) {
        const int row = static_cast<int>(selected);
        const int page = static_cast<int>(metrics.visibleRows);
        scrollBar_->setValue(std::clamp(scrollBar_->value(), row - page + 1, row));
    }
    update();
    syncMeaning();
}

void ControlWidget::resizeEvent(QResizeEvent* /*event*/) {
    if (scrollBar_ != nullptr) {
        const int bar = std::max(8, static_cast<int>(130 * pixelsPerTwip_));
        scrollBar_->setGeometry(width() - bar - 1, 1, bar, height() - 2);
        revision_ = 0;
    }
}

void ControlWidget::setPressed(bool pressed) {
    if (take(pressed_, pressed)) {
        update();
    }
}

void ControlWidget::setHovered(bool hovered) {
    if (take(hovered_, hovered)) {
        update();
        view_.pointAt(hovered ? &control_ : nullptr);
    }
}

void ControlWidget::clickForTool() {
    view_.clicked(control_, Qt::NoModifier);
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRectF area = rect();
    const Theme& theme = Theme::forPalette(palette());
    const PaintState state{.pressed = pressed_,
                           .focused = hasKeyboard_,
                           .typing = &control_ == view_.form().typing,
                           .hovered = hovered_,
                           .idle = idle_,
                           .refusing = flash_.isActive(),
                           .pixelsPerTwip = pixelsPerTwip_,
                           .scrollBar = scrollBar_ != nullptr && scrollBar_->isVisible() ? scrollBar_->width() : 0,
                           .note = note_};
    switch (control_.kind) {
        case ControlKind::Key:
            return paintKey(painter, area, control_, caption_, theme, state);
        case ControlKind::Field:
            return paintField(painter, area, control_, theme, state);
        case ControlKind::Label:
            return paintLabel(painter, area, control_, label(), theme, state);
        case ControlKind::Option:
            return paintOption(painter, area, control_, theme, state);
        case ControlKind::Frame:
            return paintFrame(painter, area, control_, theme, state);
        case ControlKind::Lamp:
            return paintLamp(painter, area, theme);
        case ControlKind::List:
            return paintList(painter, area, control_, static_cast<std::size_t>(scrollBar_->value()), theme, state);
        default:
            break;
    }
}

std::size_t ControlWidget::rowAt(double y) const {
    const ListMetrics metrics = listMetrics(control_, height(), pixelsPerTwip_);
    return static_cast<std::size_t>(scrollBar_->value()) +
           static_cast<std::size_t>(std::max(y - metrics.top, 0.0) / metrics.rowHeight);
}

void ControlWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        view_.rightClicked(control_, event->modifiers());
    } else if (event->button() == Qt::LeftButton && isList()) {
        view_.rowClicked(control_, rowAt(event->position().y()));
    } else if (event->button() == Qt::LeftButton && control_.enabled) {
        held_ = true;
        setPressed(true);
    }
}

void ControlWidget::mouseMoveEvent(QMouseEvent* event) {
    if (held_) {
        setPressed(rect().contains(event->position().toPoint()));
    }
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && std::exchange(held_, false)) {
        setPressed(false);
        if (inside) {
            view_.clicked(control_, event->modifiers());
        }
    }
}

void ControlWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && isList()) {
        view_.rowDoubleClicked(control_, rowAt(event->position().y()));
    } else {
        mousePressEvent(event);
    }
}

void ControlWidget::wheelEvent(QWheelEvent* event) {
    if (scrollBar_ != nullptr) {
        // A touchpad sends many small turns, which add up.
        constexpr int kStep = 40;
        wheelTurn_ += event->angleDelta().y();
        scrollBar_->setValue(scrollBar_->value() - wheelTurn_ / kStep);
        wheelTurn_ %= kStep;
        event->accept();
    }
}

void ControlWidget::keyPressEvent(QKeyEvent* event) {
    view_.keyPressed(*event);
}

void ControlWidget::keyReleaseEvent(QKeyEvent* event) {
    view_.keyReleased(*event);
}

bool ControlWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        return view_.overridesShortcut(*static_cast<QKeyEvent*>(event));
    }
    if (event->type() == QEvent::KeyPress) {
        // Before the widget takes Tab for itself.
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (const QString whole = cutText(help->pos()); !whole.isEmpty()) {
            QToolTip::showText(help->globalPos(), whole, this);
            return true;
        }
    }
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        setHovered(event->type() == QEvent::Enter);
    }
    return QWidget::event(event);
}

QString ControlWidget::cutText(QPoint at) const {
    constexpr double kMargins = 120.0;
    if (control_.kind == ControlKind::Field) {
        const QString whole = shownText(control_);
        const QFont font = fieldFont(control_, height(), pixelsPerTwip_);
        const bool cut = &control_ != view_.form().typing &&
                         fittedFieldText(control_, width() - kMargins * pixelsPerTwip_, font) != whole;
        return cut ? whole : QString();
    }
    if (!isList() || control_.rows == nullptr || rowAt(at.y()) >= control_.rows->count()) {
        return {};
    }
    const std::size_t row = rowAt(at.y());
    const QString whole = QString::fromStdString(toUnicode(control_.rows->row(row), control_.font.face));
    const QFont font = listFont(control_, listMetrics(control_, height(), pixelsPerTwip_), pixelsPerTwip_);
    return fittedRow(control_, row, width() - kMargins * pixelsPerTwip_, font) == whole ? QString() : whole;
}

}  // namespace tallyforge::qt
