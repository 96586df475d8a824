// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/dialog_view.h"

#include "desktops/qt/key_translation.h"
#include "desktops/qt/plain_style.h"
#include "desktops/qt/theme.h"
#include "platform/form_focus.h"
#include "platform/key_codes.h"

#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace tallyforge::qt {

namespace {

/// Whether a line edit does by itself what `event` asks for: it moves the caret, selects, copies.
bool isOfLineEdit(const QKeyEvent& event) {
    constexpr std::array kOwn{QKeySequence::Copy,
                              QKeySequence::Cut,
                              QKeySequence::Paste,
                              QKeySequence::SelectAll,
                              QKeySequence::MoveToNextChar,
                              QKeySequence::MoveToPreviousChar,
                              QKeySequence::MoveToStartOfLine,
                              QKeySequence::MoveToEndOfLine,
                              QKeySequence::SelectNextChar,
                              QKeySequence::SelectPreviousChar,
                              QKeySequence::SelectStartOfLine,
                              QKeySequence::SelectEndOfLine};
    return std::any_of(kOwn.begin(), kOwn.end(), [&event](auto which) { return event.matches(which); });
}

/// The keys that open a drop-down list.
bool opensChoice(const QKeyEvent& event) {
    const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
    return event.key() == Qt::Key_F4 || event.key() == Qt::Key_Space ||
           (alt && (event.key() == Qt::Key_Down || event.key() == Qt::Key_Up));
}

}  // namespace

DialogView::DialogView(Form& form, char decimal, double scale, QWidget* parent)
    : QWidget(parent), form_(form), decimal_(decimal), scale_(scale) {
    setPalette(Theme::paletteFor(palette()));
    auto* style = new PlainStyle();
    style->setParent(this);
    for (Control* control : form.controls()) {
        auto made = makeDialogControl(*control, *this, this);
        if (made == nullptr) {
            continue;
        }
        QWidget& widget = made->widget();
        widget.setFocusPolicy(canHaveFocus(control->kind) ? Qt::StrongFocus : Qt::NoFocus);
        widget.setStyle(style);
        widget.installEventFilter(this);
        widgets_.insert(control, &widget);
        byWidget_.insert(&widget, control);
        controls_.push_back(std::move(made));
    }
    tieLists();
    setFixedSize(usualSize());
}

// Lists of one group are the columns of one table: they scroll together, by the bar of the last.
void DialogView::tieLists() {
    const auto listOf = [](const DialogControl& control) { return qobject_cast<QListView*>(&control.widget()); };
    for (const auto& one : controls_) {
        for (const auto& other : controls_) {
            QListView* const list = listOf(*one);
            QListView* const follower = listOf(*other);
            const std::string& group = one->control().group;
            if (list == nullptr || follower == nullptr || list == follower || group.empty() ||
                group != other->control().group) {
                continue;
            }
            connect(list->verticalScrollBar(), &QScrollBar::valueChanged, follower->verticalScrollBar(),
                    &QScrollBar::setValue);
            if (one->control().place.left < other->control().place.left) {
                list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            }
        }
    }
}

QSize DialogView::usualSize() const {
    return {static_cast<int>(std::ceil(form_.place.width * scale_)),
            static_cast<int>(std::ceil(form_.contentHeight() * scale_))};
}

void DialogView::sync() {
    const bool outer = !std::exchange(syncing_, true);
    for (const auto& control : controls_) {
        control->sync(scale_);
        if (auto* key = qobject_cast<QPushButton*>(&control->widget())) {
            key->setDefault(&control->control() == form_.defaultKey);
        }
    }
    alignOptions();
    if (QWidget* focused = form_.focus == nullptr ? nullptr : widgetOf(*form_.focus);
        focused != nullptr && !focused->hasFocus()) {
        focused->setFocus();
    }
    syncing_ = !outer;
}

// Options that exclude each other are set in one size, that of the longest.
void DialogView::alignOptions() {
    for (const auto& one : controls_) {
        if (one->control().kind != ControlKind::Option) {
            continue;
        }
        int least = one->textPixels();
        for (const auto& other : controls_) {
            least = sameGroup(one->control(), other->control()) ? std::min(least, other->textPixels()) : least;
        }
        if (least != one->textPixels()) {
            one->setTextPixels(least);
        }
    }
}

void DialogView::finish() {
    sync();
    if (formChanged) {
        formChanged();
    }
}

void DialogView::clicked(Control& control) {
    click(form_, control, modifierMask(QGuiApplication::keyboardModifiers()));
    finish();
}

void DialogView::rowClicked(Control& list, std::size_t row) {
    clickRow(form_, list, row);
    finish();
}

void DialogView::rowDoubleClicked(Control& list, std::size_t row) {
    doubleClickRow(form_, list, row);
    finish();
}

// What the line edit did is done again by keys, so that the field's filter sees every character.
void DialogView::retyped(Control& field, const QString& text) {
    const std::string before = field.text;
    const std::string after = fromUnicode(text.toStdString());
    const auto head = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto same = static_cast<std::size_t>(head.first - before.begin());
    const std::size_t room = std::min(before.size(), after.size()) - same;
    const auto tail =
        std::mismatch(before.rbegin(), before.rbegin() + static_cast<std::ptrdiff_t>(room), after.rbegin());
    const auto kept = static_cast<std::size_t>(tail.first - before.rbegin());
    form_.focus = &field;
    field.caret = before.size() - kept;
    for (std::size_t gone = before.size() - kept - same; gone > 0 && form_.open; --gone) {
        pressKey(form_, {.keyCode = kKeyBackspace, .character = kKeyBackspace});
    }
    pasteText(form_, after.substr(same, after.size() - kept - same));
    finish();
}

void DialogView::eraseSelection(Control& field, QWidget& at) {
    auto* edit = qobject_cast<QLineEdit*>(&at);
    if (edit == nullptr || !edit->hasSelectedText()) {
        return;
    }
    field.caret = static_cast<std::size_t>(edit->selectionEnd());
    for (int left = edit->selectionLength(); left > 0 && form_.open; --left) {
        pressKey(form_, {.keyCode = kKeyBackspace, .character = kKeyBackspace});
    }
    edit->deselect();
}

bool DialogView::keyPressed(QWidget& at, const QKeyEvent& event) {
    Control& control = *byWidget_.value(&at);
    if (const std::uint8_t own = modifierOfKey(event.key()); own != 0) {
        holdModifiers(form_, static_cast<std::uint8_t>(modifierMask(event.modifiers()) | own));
        finish();
        return true;
    }
    const bool isField = control.kind == ControlKind::Field;
    if ((isField && isOfLineEdit(event)) || (control.kind == ControlKind::Choice && opensChoice(event))) {
        return false;
    }
    const KeyStroke stroke = translate(event, decimal_);
    auto* edit = qobject_cast<QLineEdit*>(&at);
    const bool selected = edit != nullptr && edit->hasSelectedText();
    const bool erases = stroke.keyCode == kKeyBackspace || stroke.keyCode == kKeyDelete;
    if (selected && (erases || stroke.character >= ' ')) {
        eraseSelection(control, at);
    }
    if (!selected || !erases) {
        pressKey(form_, stroke);
    }
    finish();
    return true;
}

bool DialogView::keyReleased(const QKeyEvent& event) {
    if (event.isAutoRepeat()) {
        return false;
    }
    if (const std::uint8_t own = modifierOfKey(event.key()); own != 0) {
        releaseKey(form_,
                   {.keyCode = kKeyShift, .shift = static_cast<std::uint8_t>(modifierMask(event.modifiers()) & ~own)});
    } else {
        releaseKey(form_, translate(event, decimal_));
    }
    finish();
    return false;
}

void DialogView::focusTaken(Control& control) {
    if (!syncing_ && form_.focus != &control) {
        focusClicked(form_, control);
        settleFocus(form_);
        finish();
    }
}

bool DialogView::mousePressed(Control& control, const QEvent& event) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    if (mouse.button() != Qt::RightButton || control.kind == ControlKind::Field) {
        return false;
    }
    rightClick(form_, control, modifierMask(mouse.modifiers()));
    finish();
    return true;
}

bool DialogView::eventFilter(QObject* watched, QEvent* event) {
    Control* control = byWidget_.value(watched, nullptr);
    if (control == nullptr || !form_.open) {
        return QWidget::eventFilter(watched, event);
    }
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Letters with Alt are the form's own.
            event->accept();
            return true;
        case QEvent::KeyPress:
            return keyPressed(*qobject_cast<QWidget*>(watched), *static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            return keyReleased(*static_cast<QKeyEvent*>(event));
        case QEvent::FocusIn:
            focusTaken(*control);
            return false;
        case QEvent::MouseButtonPress:
            return mousePressed(*control, *event);
        default:
            return QWidget::eventFilter(watched, event);
    }
}

void DialogView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::forPalette(palette()).window);
}

}  // namespace tallyforge::qt
