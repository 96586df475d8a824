// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/main_window.h"

#include "desktops/qt/app_icon.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMoveEvent>
#include <QScreen>
#include <QTimer>

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
    setWindowIcon(appIcon());
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
            connect(menu, &QMenu::aboutToHide, this, [this] { leaveMenus(); });
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

// Esc closes a menu and leaves the menu bar in force; here it gives the keyboard back at once.
void MainWindow::leaveMenus() {
    QTimer::singleShot(0, this, [this] {
        if (QApplication::activePopupWidget() == nullptr && menuBar()->activeAction() != nullptr) {
            menuBar()->setActiveAction(nullptr);
            view_->setFocus();
        }
    });
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
        takeSize(scale);
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

// The largest scale at which the whole form stands on the screen.
double MainWindow::largestScale() const {
    const QSize border = frameGeometry().size() - size();
    const QSize room = screen()->availableSize() - border - QSize(0, menuBar()->sizeHint().height());
    // A pixel less each way: sizes are rounded up.
    return std::min(static_cast<double>(room.width() - 1) / form_.place.width,
                    static_cast<double>(room.height() - 1) / form_.contentHeight());
}

void MainWindow::takeSize(double scale) {
    const double limit = fitsScreen ? largestScale() : scale;
    constexpr double kLegible = FormView::kUsualScale * 0.6;
    view_->setMinimumSize(view_->sizeAt(std::min(kLegible, limit)));
    if ((windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0) {
        const QSize contents = view_->sizeAt(std::min(scale, limit));
        resize(contents.width(), contents.height() + menuBar()->sizeHint().height());
    }
    view_->refit();
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
