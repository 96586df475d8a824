// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/main_window.h"

#include "desktops/qt/app_icon.h"
#include "desktops/qt/theme.h"
#include "desktops/qt/window_place.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMoveEvent>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace tallyforge::qt {

namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr const char* kZoomKey = "Window/Zoom";

bool canPlaceWindows() {
    return !QGuiApplication::platformName().startsWith("wayland");
}

QString caption(const Control& control) {
    return QString::fromStdString(toUnicode(control.text, Face::Arial));
}

}  // namespace

MainWindow::MainWindow(Form& form, char decimal)
    : form_(form), view_(new FormView(form, decimal, this)), wish_(FormView::kUsualScale) {
    followTheme();
    setWindowTitle(QString::fromStdString(toUnicode(form.title, Face::Arial)));
    setCentralWidget(view_);
    buildMenus();
    view_->formChanged = [this] { syncWindow(); };
    view_->zoomed = [this](int steps) { zoom(steps); };
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
            if (control->placesWindow) {
                action->setVisible(canPlaceWindows());
            }
            actions_.push_back({control, action});
        }
    }
    menuBar()->setFocusPolicy(Qt::NoFocus);
}

// Esc closes a menu and leaves the menu bar in force, so that the pointer alone opens the next one;
// a second Esc ends that, and the keyboard is given back at once.
void MainWindow::leaveMenus() {
    QTimer::singleShot(0, this, [this] {
        if (QApplication::activePopupWidget() == nullptr) {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QApplication::sendEvent(menuBar(), &escape);
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
        const bool enabled = entry->enabled && static_cast<bool>(entry->click);
        action->setEnabled(enabled);
        // A letter leads to an entry that can be chosen.
        const QString shown = enabled ? caption(*entry) : caption(*entry).remove('&');
        // Behind a tab it is shown only: the key itself is heard by the form.
        action->setText(entry->shortCut.empty() ? shown : shown + '\t' + QString::fromStdString(entry->shortCut));
        action->setCheckable(entry->checked);
        action->setChecked(entry->checked);
    }
}

void MainWindow::present() {
    presented_ = true;
    if (remembersSize) {
        recallSize();
    }
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
        shownWidth_ = form_.place.width;
        shownHeight_ = form_.contentHeight();
        takeSize(wish_);
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

// The window manager's frame is unknown until the window stands; until then it is taken as usual.
QSize MainWindow::frame() const {
    const QSize around = frameGeometry().size() - size();
    return knownFrame_.isValid() || !around.isNull() ? around : kUsualFrame;
}

// The largest scale at which the whole form stands on the screen.
double MainWindow::largestScale() const {
    const QSize room = screen()->availableSize() - frame() - QSize(0, menuBar()->sizeHint().height());
    // A pixel less each way: sizes are rounded up.
    return std::min(static_cast<double>(room.width() - 1) / form_.place.width,
                    static_cast<double>(room.height() - 1) / form_.contentHeight());
}

void MainWindow::takeSize(double scale) {
    const double limit = fitsScreen ? largestScale() : scale;
    constexpr double kLegible = FormView::kUsualScale * 0.6;
    view_->setMinimumSize(view_->sizeAt(std::min(kLegible, limit)));
    if ((windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0) {
        const bool outer = !std::exchange(sizing_, true);
        const QSize contents = view_->sizeAt(std::min(scale, limit));
        resize(contents.width(), contents.height() + menuBar()->sizeHint().height());
        // The view has its size now, and not only when the window is shown: everything is fitted once.
        layout()->activate();
        sizing_ = !outer;
        keepOnScreen();
    }
    view_->refit();
}

// A window that grew beyond the screen moves as far as it must, and back when it is small again.
void MainWindow::keepOnScreen() {
    if (!fitsScreen || !isVisible() || !canPlaceWindows()) {
        return;
    }
    const QRect room = screen()->availableGeometry();
    const QSize outer = size() + frame();
    const QPoint wished = home_ && pos() == away_ ? *home_ : pos();
    const QPoint kept = placeInside(room, wished, outer);
    if (kept != pos()) {
        home_ = kept == wished ? std::nullopt : std::optional(wished);
        away_ = kept;
        move(kept);
    }
}

void MainWindow::noteFrame() {
    const QSize around = frameGeometry().size() - size();
    if (presented_ && fitsScreen && isVisible() && around != knownFrame_) {
        knownFrame_ = around;
        takeSize(wish_);
    }
}

void MainWindow::zoom(int steps) {
    constexpr double kStep = 1.1;
    constexpr double kSmallest = FormView::kUsualScale * 0.75;
    constexpr double kLargest = FormView::kUsualScale * 3.0;
    const double next = steps == 0 ? FormView::kUsualScale : view_->scale() * std::pow(kStep, steps);
    wish_ = std::clamp(next, kSmallest, kLargest);
    takeSize(wish_);
}

void MainWindow::recallSize() {
    const double stored = QSettings("Oakhollow", "Tallyforge").value(kZoomKey, 1.0).toDouble();
    wish_ = FormView::kUsualScale * (stored >= 0.5 && stored <= 4.0 ? stored : 1.0);
}

void MainWindow::storeSize() const {
    QSettings("Oakhollow", "Tallyforge").setValue(kZoomKey, wish_ / FormView::kUsualScale);
}

// What a first look does not need comes after it.
void MainWindow::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (!std::exchange(seen_, true)) {
        QTimer::singleShot(0, this, [this] {
            setWindowIcon(appIcon());
            colourPopups();
        });
    }
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // Frames come some time after the window.
    for (const int soon : {0, 150}) {
        QTimer::singleShot(soon, this, [this] { noteFrame(); });
    }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const bool filled = (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
    if (presented_ && isVisible() && !sizing_ && !filled) {
        view_->refit();
        wish_ = view_->scale();
    }
}

void MainWindow::moveEvent(QMoveEvent* event) {
    if (presented_ && !isMinimized()) {
        // The place of the frame, which move() takes, too; the event has that of the contents.
        form_.place.left = static_cast<int>(std::lround(pos().x() * kTwipsPerPixel));
        form_.place.top = static_cast<int>(std::lround(pos().y() * kTwipsPerPixel));
    }
    QMainWindow::moveEvent(event);
    noteFrame();
}

void MainWindow::followTheme() {
    if (const QPalette wanted = Theme::paletteFor(QApplication::palette()); wanted != palette()) {
        setPalette(wanted);
        colourPopups();
    }
}

// Menus are windows of their own.
void MainWindow::colourPopups() {
    QToolTip::setPalette(palette());
    for (QMenu* menu : findChildren<QMenu*>()) {
        menu->setPalette(palette());
    }
}

bool MainWindow::event(QEvent* event) {
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        followTheme();
    }
    return done;
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
    if (remembersSize && !form_.open) {
        storeSize();
    }
    event->setAccepted(!form_.open);
}

}  // namespace tallyforge::qt
