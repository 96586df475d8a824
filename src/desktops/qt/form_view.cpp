// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/form_view.h"

#include "desktops/qt/control_widget.h"
#include "desktops/qt/key_translation.h"
#include "platform/key_codes.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
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
    for (ControlWidget* widget : widgets_) {
        widget->sync(scale_, hasFocus() && form_.focus == &widget->control());
    }
}

void FormView::resizeEvent(QResizeEvent* /*event*/) {
    refit();
}

void FormView::refit() {
    const double wide = static_cast<double>(width()) / std::max(form_.place.width, 1);
    const double high = static_cast<double>(height()) / std::max(form_.contentHeight(), 1);
    scale_ = std::min(wide, high);
    // What a window of another shape has to spare stands on both sides.
    const QSize contents = sizeAt(scale_);
    origin_ = {std::max(width() - contents.width(), 0) / 2, std::max(height() - contents.height(), 0) / 2};
    sync();
}

void FormView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::forPalette(palette()).window);
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

void FormView::finish() {
    sync();
    if (formChanged) {
        formChanged();
    }
}

template <typename Act>
void FormView::underModifiers(Qt::KeyboardModifiers modifiers, Act act) {
    setFocus();
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

void FormView::keyPressed(QKeyEvent& event) {
    event.accept();
    if (const std::uint8_t own = ownModifier(event); own != 0) {
        const auto mask = static_cast<std::uint8_t>(modifierMask(event.modifiers()) | own);
        if (!event.isAutoRepeat()) {
            held_ = mask;
            holdModifiers(form_, mask);
            finish();
        }
        return;
    }
    const KeyStroke stroke = translate(event, decimal_);
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
        held_ = static_cast<std::uint8_t>(modifierMask(event.modifiers()) & ~own);
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
    const Control* key = nullptr;
    const int character = stroke.character;
    if (stroke.keyCode == kKeyEnter) {
        key = form_.defaultKey;
    } else if (character >= '0' && character <= '9') {
        key = form_.find("cmdNumPad", character - '0');
    } else if (character == static_cast<unsigned char>(decimal_)) {
        key = form_.find("cmdNumPad", 10);
    } else if (const auto at = std::string("/*-+").find(static_cast<char>(character));
               character != 0 && at != std::string::npos) {
        key = form_.find("cmdMath", static_cast<int>(at));
    } else if (stroke.keyCode == kKeyBackspace) {
        key = form_.find("cmdBackSpace");
    }
    return key == nullptr ? nullptr : widgetOf(*key);
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
