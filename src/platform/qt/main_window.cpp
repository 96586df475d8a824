// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMoveEvent>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace tallyforge::qt {

namespace {

constexpr double kTwipsPerPixel = 15.0;

bool canPlaceWindows() {
    return !QGuiApplication::platformName().startsWith("wayland");
}

QString caption(const Control& control) {
    return QString::fromStdString(toUnicode(control.text, Face::Arial));
}

}  // namespace

MainWindow::MainWindow(Form& form, char decimal) : form_(form), view_(new FormView(form, decimal, this)) {
    setWindowTitle(QString::fromStdString(toUnicode(form.title, Face::Arial)));
    setCentralWidget(view_);
    buildMenus();
    view_->formChanged = [this] { syncWindow(); };
    view_->menuHasLetter = [this](int key) {
        const auto actions = menuBar()->actions();
        return std::any_of(actions.begin(), actions.end(), [key](const QAction* action) {
            const qsizetype mark = action->text().indexOf('&');
            return mark >= 0 && action->text().at(mark + 1).toUpper().unicode() == key;
        });
    };
    setFocusProxy(view_);
}

void MainWindow::buildMenus() {
    std::map<std::string, QMenu*, std::less<>> menus;
    for (Control* control : form_.controls()) {
        if (control->kind == ControlKind::Menu) {
            const auto holder = menus.find(control->menu);
            QMenu* menu = holder == menus.end() ? menuBar()->addMenu(caption(*control))
                                                : holder->second->addMenu(caption(*control));
            menus.emplace(control->name, menu);
            connect(menu, &QMenu::aboutToShow, this, [this] { syncMenus(); });
        } else if (control->kind == ControlKind::Separator) {
            menus.at(control->menu)->addSeparator();
        } else if (control->kind == ControlKind::MenuEntry) {
            QAction* action = menus.at(control->menu)->addAction(caption(*control));
            connect(action, &QAction::triggered, this, [this, control] { choose(*control); });
            if (control->name == "mnuAOT" || control->name == "mnuPosition") {
                action->setVisible(canPlaceWindows());
            }
            actions_.push_back({control, action});
        }
    }
    menuBar()->setFocusPolicy(Qt::NoFocus);
}

void MainWindow::choose(Control& entry) {
    click(form_, entry);
    view_->setFocus();
    view_->sync();
    syncWindow();
}

void MainWindow::syncMenus() {
    for (const auto& [entry, action] : actions_) {
        action->setEnabled(entry->enabled && static_cast<bool>(entry->click));
        action->setCheckable(entry->checked);
        action->setChecked(entry->checked);
    }
}

void MainWindow::present() {
    presented_ = true;
    syncMenus();
    syncWindow();
    if (canPlaceWindows() && (form_.place.left > 0 || form_.place.top > 0)) {
        move(static_cast<int>(form_.place.left / kTwipsPerPixel), static_cast<int>(form_.place.top / kTwipsPerPixel));
    }
    view_->setFocus();
    view_->sync();
}

void MainWindow::syncWindow() {
    if (!form_.open) {
        close();
        return;
    }
    const bool resized = shownWidth_ != form_.place.width || shownHeight_ != form_.contentHeight();
    if (presented_ && resized) {
        const double scale = shownWidth_ == 0 ? FormView::kUsualScale : view_->scale();
        shownWidth_ = form_.place.width;
        shownHeight_ = form_.contentHeight();
        view_->setMinimumSize(view_->sizeAt(FormView::kUsualScale * 0.6));
        const QSize contents = view_->sizeAt(scale);
        const int menuHeight = menuBar()->sizeHint().height();
        resize(contents.width(), contents.height() + menuHeight);
        view_->sync();
    }
    if (std::exchange(onTop_, form_.alwaysOnTop) != form_.alwaysOnTop && canPlaceWindows()) {
        // The window is made anew by this; it comes back where it was.
        const QPoint place = pos();
        const bool visible = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, onTop_);
        move(place);
        if (visible) {
            show();
            view_->setFocus();
        }
    }
}

void MainWindow::moveEvent(QMoveEvent* event) {
    if (presented_ && !isMinimized()) {
        // The place of the frame, which move() takes, too; the event has that of the contents.
        form_.place.left = static_cast<int>(std::lround(pos().x() * kTwipsPerPixel));
        form_.place.top = static_cast<int>(std::lround(pos().y() * kTwipsPerPixel));
    }
    QMainWindow::moveEvent(event);
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) {
        form_.minimised = isMinimized();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (form_.open) {
        closeForm(form_);
    }
    event->setAccepted(!form_.open);
}

}  // namespace tallyforge::qt
