// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/run_watch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

#include <utility>

namespace tallyforge::qt {

namespace {

// The Break key is the Pause key with Ctrl, and some keyboards have one for Cancel. X11 and Wayland
// have a key symbol of its own for the former, which Qt does not know.
bool isBreak(const QKeyEvent& key) {
    constexpr quint32 kBreakSymbol = 0xFF6B;
    const bool named = key.key() == Qt::Key_Pause || key.key() == Qt::Key_Cancel;
    const bool known = key.key() != 0 && key.key() != Qt::Key_unknown;
    return key.modifiers().testFlag(Qt::ControlModifier) &&
           (named || (!known && key.nativeVirtualKey() == kBreakSymbol));
}

}  // namespace

Interruption RunWatch::letPass(QObject* window) {
    window_ = window;
    wish_ = Interruption::None;
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::processEvents();
    QCoreApplication::instance()->removeEventFilter(this);
    return std::exchange(wish_, Interruption::None);
}

bool RunWatch::eventFilter(QObject* target, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            if (isBreak(static_cast<const QKeyEvent&>(*event))) {
                wish_ = Interruption::Break;
            }
            return true;
        case QEvent::Close:
            if (target != window_) {
                return false;
            }
            event->ignore();
            if (wish_ == Interruption::None) {
                wish_ = Interruption::Close;
            }
            return true;
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
            return true;
        default:
            return false;
    }
}

}  // namespace tallyforge::qt
