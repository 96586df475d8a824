// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/form_view.h"

#include "desktops/qt/control_interface.h"
#include "desktops/qt/control_widget.h"
#include "desktops/qt/key_translation.h"
#include "platform/key_codes.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace tallyforge::qt {

namespace {

bool isDrawn(const Control& control) {
    return control.kind != ControlKind::Menu && control.kind != ControlKind::MenuEntry &&
           control.kind != ControlKind::Separator;
}

}  // namespace

FormView::FormView(Form& form, char decimal, QWidget* parent) : QWidget(parent), form_(form), decimal_(decimal) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QString::fromStdString(toUnicode(form.title, Face::Arial)));
    for (Control* control : form.controls()) {
        if (isDrawn(*control)) {
            auto* widget = new ControlWidget(*this, *control);
            widgets_.push_back(widget);
            byControl_.insert(control, widget);
            if (control->kind == ControlKind::Frame) {
                widget->lower();
            }
        }
    }
    setMinimumSize(sizeAt(kUsualScale * 0.6));
    shiftWait_.setSingleShot(true);
    connect(&shiftWait_, &QTimer::timeout, this, [this] {
        holdModifiers(form_, kShift);
        finish();
    });
}

QSize FormView::sizeAt(double scale) const {
    return {static_cast<int>(std::ceil(form_.place.width * scale)),
            static_cast<int>(std::ceil(form_.contentHeight() * scale))};
}

QRect FormView::toPixels(const Place& place) const {
    const auto pixels = [this](int twips) { return static_cast<int>(std::lround(twips * scale_)); };
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    return {origin_.x() + left, origin_.y() + top, pixels(place.left + place.width) - left,
            pixels(place.top + place.height) - top};
}

ControlWidget* FormView::widgetOf(const Control& control) const {
    return byControl_.value(&control, nullptr);
}

void FormView::sync() {
    // Whatever key took the focus, typing goes to the field that hears it all.
    const Control* keyboard = form_.tabbedTo != nullptr ? form_.tabbedTo : form_.focus;
    for (ControlWidget* widget : widgets_) {
        widget->sync(scale_, hasFocus() && &widget->control() == keyboard);
    }
}

void FormView::resizeEvent(QResizeEvent* /*event*/) {
    refit();
}

void FormView::refit() {
    const double wide = static_cast<double>(width()) / std::max(form_.place.width, 1);
    const double high = static_cast<double>(height()) / std::max(form_.contentHeight(), 1);
    scale_ = std::min(wide, high);
    // What the window has to spare goes to the lists; a width that they do not take stands on both sides.
    const QSize spare = size() - sizeAt(scale_);
    const auto twips = [this](int pixels) { return static_cast<int>(std::max(pixels, 0) / scale_); };
    const int taken = form_.fill(twips(spare.height()), twips(spare.width()));
    origin_ = {std::max(spare.width() - static_cast<int>(std::lround(taken * scale_)), 0) / 2, 0};
    sync();
}

void FormView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const Theme& theme = Theme::forPalette(palette());
    painter.fillRect(event->rect(), theme.window);
    // A key that a mask hides leaves a well, so that the bank keeps its shape.
    for (const ControlWidget* widget : widgets_) {
        const Control& control = widget->control();
        if (control.kind == ControlKind::Key && !control.visible && event->rect().intersects(widget->geometry())) {
            paintWell(painter, widget->geometry(), theme, scale_);
        }
    }
}

void FormView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        update();
        for (ControlWidget* widget : widgets_) {
            widget->update();
        }
    }
    QWidget::changeEvent(event);
}

void FormView::pointAt(const Control* control) {
    form_.underPointer = control;
    if (ControlWidget* line = form_.nameLine == nullptr ? nullptr : widgetOf(*form_.nameLine); line != nullptr) {
        line->sync(scale_, line->hasKeyboard());
    }
}

std::string FormView::nameLine() const {
    return form_.lineFor(form_.underPointer != nullptr ? form_.underPointer : form_.tabbedTo);
}

void FormView::say(ControlWidget& widget, const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    if (announced) {
        announced(text);
    }
    if (QAccessible::isActive()) {
        // The same result twice is told twice, so this does not ask what was told before.
        tellChange(widget);
    }
}

// What the line refused, and how.
void FormView::announceRefusal() {
    if (form_.typing == nullptr || std::exchange(refusals_, form_.typing->refusals) == form_.typing->refusals) {
        return;
    }
    if (ControlWidget* line = form_.nameLine == nullptr ? nullptr : widgetOf(*form_.nameLine); line != nullptr) {
        say(*line, line->label());
    }
}

void FormView::announce() {
    announceRefusal();
    for (ControlWidget* widget : widgets_) {
        const Control& control = widget->control();
        if (!control.live) {
            continue;
        }
        if (control.rows == nullptr) {
            const QString text = QString::fromStdString(toUnicode(control.text, Face::Arial)).simplified();
            if (told_.value(&control) != text) {
                told_.insert(&control, text);
                say(*widget, text);
            }
            continue;
        }
        const std::uint64_t revision = control.rows->revision();
        const std::size_t count = control.rows->count();
        if (counted_.contains(&control) && counted_.value(&control) != revision && form_.tabbedTo != &control &&
            count > 0) {
            say(*widget,
                QString::fromStdString(toUnicode(control.rows->row(count - 1), control.font.face)).simplified());
        }
        counted_.insert(&control, revision);
    }
}

void FormView::finish() {
    sync();
    announce();
    if (formChanged) {
        formChanged();
    }
}

template <typename Act>
void FormView::underModifiers(Qt::KeyboardModifiers modifiers, Act act) {
    setFocus();
    // A click counts as shifted while the bank still waits.
    shiftWait_.stop();
    const std::uint8_t mask = modifierMask(modifiers);
    if (mask != 0) {
        holdModifiers(form_, mask);
        held_ = mask;
    }
    act();
    if (mask != 0 && form_.open && modifierMask(QGuiApplication::queryKeyboardModifiers()) == mask) {
        // The key has used its modifiers up, but they are still down: the next click has them, too.
        holdModifiers(form_, mask);
    }
    finish();
}

void FormView::clicked(Control& control, Qt::KeyboardModifiers modifiers) {
    underModifiers(modifiers, [&] { click(form_, control); });
}

void FormView::rightClicked(Control& control, Qt::KeyboardModifiers modifiers) {
    underModifiers(modifiers, [&] { rightClick(form_, control, modifierMask(modifiers)); });
}

void FormView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        const Qt::KeyboardModifiers modifiers = event->modifiers();
        underModifiers(modifiers, [&] { rightClickForm(form_, modifierMask(modifiers)); });
    }
}

void FormView::rowClicked(Control& list, std::size_t row) {
    underModifiers(Qt::NoModifier, [&] { clickRow(form_, list, row); });
}

void FormView::rowDoubleClicked(Control& list, std::size_t row) {
    underModifiers(Qt::NoModifier, [&] { doubleClickRow(form_, list, row); });
}

// Alt with Shift comes as Meta; the Meta key of a desktop is no modifier here.
std::uint8_t FormView::ownModifier(const QKeyEvent& event) const {
    const bool desktopKey =
        event.key() == Qt::Key_Meta && (event.modifiers() & Qt::ShiftModifier) == 0 && (held_ & kAlt) == 0;
    return desktopKey ? std::uint8_t{0} : modifierOfKey(event.key());
}

bool FormView::zooms(const QKeyEvent& event) const {
    const auto chord = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (!zoomed || chord != Qt::ControlModifier) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            zoomed(1);
            return true;
        case Qt::Key_Minus:
            zoomed(-1);
            return true;
        case Qt::Key_0:
            zoomed(0);
            return true;
        default:
            return false;
    }
}

// A Shift that goes down alone may be the one of a character, so the bank waits before it changes.
bool FormView::shiftAlone(const QKeyEvent& event) {
    constexpr int kWait = 120;
    if (event.key() != Qt::Key_Shift || held_ != 0 || event.isAutoRepeat() ||
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
        return false;
    }
    held_ = kShift;
    shiftWait_.start(kWait);
    return true;
}

void FormView::dropShiftWait() {
    if (shiftWait_.isActive()) {
        shiftWait_.stop();
        held_ = 0;
    }
}

void FormView::keyPressed(QKeyEvent& event) {
    event.accept();
    if (zooms(event) || shiftAlone(event)) {
        return;
    }
    if (const std::uint8_t own = ownModifier(event); own != 0) {
        const auto mask = static_cast<std::uint8_t>(modifierMask(event.modifiers()) | own);
        if (!event.isAutoRepeat()) {
            shiftWait_.stop();
            held_ = mask;
            holdModifiers(form_, mask);
            finish();
        }
        return;
    }
    const KeyStroke stroke = translate(event, decimal_);
    if (shiftWait_.isActive()) {
        dropShiftWait();
        if (stroke.shift != 0 || (form_.tabbedTo != nullptr && stroke.keyCode == kKeySpace)) {
            held_ = kShift;
            holdModifiers(form_, held_);
        }
    }
    pressKey(form_, stroke);
    showPressed(stroke, true);
    finish();
}

void FormView::keyReleased(QKeyEvent& event) {
    event.accept();
    if (event.isAutoRepeat()) {
        return;
    }
    if (const std::uint8_t own = ownModifier(event); own != 0) {
        // Platforms differ in whether the modifier that comes up is still reported.
        const bool unseen = shiftWait_.isActive();
        dropShiftWait();
        held_ = static_cast<std::uint8_t>(modifierMask(event.modifiers()) & ~own);
        if (unseen) {
            return;
        }
        releaseKey(form_, {.keyCode = kKeyShift, .shift = held_});
    } else {
        const KeyStroke stroke = translate(event, decimal_);
        // The Shift of a character that is typed with it is still down, and no modifier.
        const std::uint8_t left = stroke.character != 0 && stroke.shift == 0 ? std::uint8_t{0} : held_;
        releaseKey(form_, {.keyCode = stroke.keyCode, .shift = left});
        showPressed(stroke, false);
    }
    finish();
}

bool FormView::overridesShortcut(QKeyEvent& event) const {
    const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
    const bool forMenu = alt && menuHasLetter && menuHasLetter(event.key());
    event.setAccepted(!forMenu);
    return !forMenu;
}

bool FormView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        return overridesShortcut(*static_cast<QKeyEvent*>(event));
    }
    if (event->type() == QEvent::KeyPress) {
        keyPressed(*static_cast<QKeyEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::FocusIn) {
        sync();
    }
    return QWidget::event(event);
}

void FormView::letGo() {
    dropShiftWait();
    if (std::exchange(held_, std::uint8_t{0}) != 0) {
        releaseModifiers(form_);
    }
    if (pressedKey_ != nullptr) {
        std::exchange(pressedKey_, nullptr)->setPressed(false);
    }
}

void FormView::focusOutEvent(QFocusEvent* event) {
    letGo();
    sync();
    QWidget::focusOutEvent(event);
}

ControlWidget* FormView::keyFor(const KeyStroke& stroke) const {
    for (ControlWidget* widget : widgets_) {
        const Control& key = widget->control();
        const bool typed = stroke.character >= ' ' && !key.typedBy.empty() &&
                           key.typedBy.find(static_cast<char>(stroke.character)) != std::string::npos;
        const bool struck = key.struckBy != 0 && key.struckBy == stroke.keyCode && stroke.shift == 0;
        const bool byLetter =
            stroke.shift == kAlt && key.kind == ControlKind::Key && accessLetter(key.text) == stroke.keyCode;
        if (typed || struck || byLetter) {
            return widget;
        }
    }
    return nullptr;
}

void FormView::showPressed(const KeyStroke& stroke, bool pressed) {
    if (pressedKey_ != nullptr) {
        std::exchange(pressedKey_, nullptr)->setPressed(false);
    }
    if (pressed) {
        pressedKey_ = keyFor(stroke);
        if (pressedKey_ != nullptr) {
            pressedKey_->setPressed(true);
        }
    }
}

}  // namespace tallyforge::qt
