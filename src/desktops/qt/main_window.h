// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main form's window: menu bar, the rendered form, and what the desktop tells a window.
#pragma once

#include "desktops/qt/form_view.h"
#include "platform/form.h"

#include <QMainWindow>

#include <vector>

class QAction;
class QMenu;

namespace tallyforge::qt {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(Form& form, char decimal);

    [[nodiscard]] FormView& view() { return *view_; }
    /// Shows the form's size, place and menu as they are now. To be called once it is loaded.
    void present();

    /// Whether the window grows no larger than the screen; a picture of it may.
    bool fitsScreen = true;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void buildMenus();
    void syncMenus();
    void syncWindow();
    /// Makes the window as large as its form at `scale`, but for a window that fills the screen.
    void takeSize(double scale);
    [[nodiscard]] double largestScale() const;
    void leaveMenus();
    void choose(Control& entry);

    struct MenuAction {
        Control* entry;
        QAction* action;
    };
    Form& form_;
    FormView* view_;
    std::vector<MenuAction> actions_;
    int shownWidth_ = 0;
    int shownHeight_ = 0;
    bool onTop_ = false;
    bool presented_ = false;
};

}  // namespace tallyforge::qt
