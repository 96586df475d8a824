// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/control_widget.h"

#include "desktops/qt/form_view.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tallyforge::qt {

namespace {

QAccessible::Role roleOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Key:
            return QAccessible::PushButton;
        case ControlKind::Option:
            return QAccessible::RadioButton;
        case ControlKind::Field:
            return QAccessible::EditableText;
        case ControlKind::List:
            return QAccessible::List;
        case ControlKind::Frame:
            return QAccessible::Grouping;
        case ControlKind::Lamp:
            return QAccessible::Indicator;
        default:
            return QAccessible::StaticText;
    }
}

/// What the control says at the moment: a field's text, a list's selected row.
QString meaning(const Control& control) {
    if (control.kind == ControlKind::List && control.rows != nullptr &&
        control.rows->selected() < control.rows->count()) {
        return QString::fromStdString(toUnicode(control.rows->row(control.rows->selected()), control.font.face));
    }
    return plainCaption(control);
}

QString spokenName(const Control& control) {
    if (!control.spoken.empty()) {
        return QString::fromStdString(toUnicode(control.spoken, Face::Arial));
    }
    const QString caption = plainCaption(control).replace('\n', ' ').trimmed();
    return caption.isEmpty() ? QString::fromStdString(control.fullName()) : caption;
}

class ControlInterface : public QAccessibleWidget {
public:
    explicit ControlInterface(ControlWidget* widget)
        : QAccessibleWidget(widget, roleOf(widget->control().kind)), widget_(widget) {}
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        switch (which) {
            case QAccessible::Name:
                return spokenName(widget_->control());
            case QAccessible::Value:
                return meaning(widget_->control());
            default:
                return QAccessibleWidget::text(which);
        }
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = widget_->control().kind == ControlKind::Option;
        state.checked = widget_->control().checked;
        state.disabled = !widget_->control().enabled;
        state.focused = widget_->hasKeyboard();
        return state;
    }
    // The form has the keyboard as a whole, so an assistive tool clicks instead of focusing.
    [[nodiscard]] QStringList actionNames() const override {
        const ControlKind kind = widget_->control().kind;
        const bool clickable = kind == ControlKind::Key || kind == ControlKind::Option;
        return clickable ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            widget_->clickForTool();
        }
    }

private:
    ControlWidget* widget_;
};

QAccessibleInterface* makeInterface(const QString& /*key*/, QObject* object) {
    auto* widget = qobject_cast<ControlWidget*>(object);
    return widget == nullptr ? nullptr : new ControlInterface(widget);
}

template <typename Value>
bool take(Value& held, const Value& present) {
    if (held == present) {
        return false;
    }
    held = present;
    return true;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeInterface);
}

ControlWidget::ControlWidget(FormView& formView, Control& shown)
    : QWidget(&formView), view_(formView), control_(shown) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    if (isList()) {
        scrollBar_ = new QScrollBar(Qt::Vertical, this);
        scrollBar_->setFocusPolicy(Qt::NoFocus);
        scrollBar_->setAccessibleName(spokenName(control_) + " scroll bar");
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
    if (take(place_, control_.place) || rescaled) {
        setGeometry(view_.toPixels(place_));
    }
    bool changed = take(text_, control_.text);
    changed |= take(font_, control_.font);
    const bool refit = changed || rescaled || fresh_;
    changed |= take(colour_, control_.colour);
    changed |= take(enabled_, control_.enabled);
    changed |= take(checked_, control_.checked);
    changed |= take(hasKeyboard_, hasKeyboard);
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
}

void ControlWidget::syncMeaning() {
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent event(this,
                           control_.kind == ControlKind::Field ? QAccessible::ValueChanged : QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
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

void ControlWidget::clickForTool() {
    view_.clicked(control_, Qt::NoModifier);
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRectF area = rect();
    const Theme& theme = Theme::forPalette(palette());
    const PaintState state{.pressed = pressed_, .focused = hasKeyboard_, .pixelsPerTwip = pixelsPerTwip_};
    switch (control_.kind) {
        case ControlKind::Key:
            return paintKey(painter, area, control_, caption_, theme, state);
        case ControlKind::Field:
            return paintField(painter, area, control_, theme, state);
        case ControlKind::Label:
            return paintLabel(painter, area, control_, theme, state);
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
    return QWidget::event(event);
}

}  // namespace tallyforge::qt
