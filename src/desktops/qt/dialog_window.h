// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window of a dialog: as large as the main form's window is zoomed, beside it where the form
// says, and wholly on the screen. Its close button and Esc do what the form does.
#pragma once

#include "desktops/qt/dialog_view.h"
#include "platform/form.h"

#include <QDialog>

namespace tallyforge::qt {

class MainWindow;

class DialogWindow : public QDialog {
    Q_OBJECT
public:
    /// `parent` is the window below; `mainWindow`, where there is one, gives scale and place.
    DialogWindow(Form& form, char decimal, const MainWindow* mainWindow, QWidget* parent);

    /// Shows the dialog and returns when its form is closed.
    void run();
    void sync() { view_->sync(); }
    void reject() override;
    [[nodiscard]] DialogView& view() { return *view_; }

private:
    void place(const MainWindow* mainWindow);

    Form& form_;
    DialogView* view_;
};

}  // namespace tallyforge::qt
