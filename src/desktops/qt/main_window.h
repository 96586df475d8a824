// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main form's window: menu bar, the rendered form, and what the desktop tells a window.
#pragma once

#include "desktops/qt/form_view.h"
#include "platform/form.h"

#include <QMainWindow>
#include <QPoint>
#include <QSize>

#include <optional>
#include <vector>

class QAction;
class QMenu;

namespace tallyforge::qt {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(Form& form, char decimal);

    [[nodiscard]] FormView& view() { return *view_; }
    [[nodiscard]] const Form& form() const { return form_; }
    /// Pixels a twip at present.
    [[nodiscard]] double scale() const { return view_->scale(); }
    /// Shows the form's size, place and menu as they are now. To be called once it is loaded.
    void present();

    /// Whether the window grows no larger than the screen; a picture of it may.
    bool fitsScreen = true;
    /// Whether the size is kept in the desktop's settings store from one start to the next.
    bool remembersSize = false;

    /// Enlarges or reduces by `steps`; 0 is back to the usual size.
    void zoom(int steps);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildMenus();
    void syncMenus();
    void syncWindow();
    /// Makes the window as large as its form at `scale`, but for a window that fills the screen.
    void takeSize(double scale);
    [[nodiscard]] double largestScale() const;
    [[nodiscard]] QSize frame() const;
    void noteFrame();
    void keepOnScreen();
    void recallSize();
    void storeSize() const;
    void leaveMenus();
    void choose(Control& entry);
    /// Takes the theme's colours for menus and tool tips, too.
    void followTheme();
    void colourPopups();

    struct MenuAction {
        Control* entry;
        QAction* action;
    };
    Form& form_;
    FormView* view_;
    std::vector<MenuAction> actions_;
    double wish_;                 ///< the scale that the user wants, where the screen has room for it
    QSize knownFrame_;            ///< what the window manager put around the window
    std::optional<QPoint> home_;  ///< where it stood before it had to move to stay on the screen
    QPoint away_;                 ///< where it was moved then
    bool sizing_ = false;         ///< the size is being set by ourselves
    int shownWidth_ = 0;
    int shownHeight_ = 0;
    bool onTop_ = false;
    bool presented_ = false;
    bool seen_ = false;  ///< it has been painted once
};

}  // namespace tallyforge::qt
