// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/dialog_window.h"

#include "desktops/qt/form_view.h"
#include "desktops/qt/main_window.h"
#include "desktops/qt/theme.h"
#include "desktops/qt/window_place.h"
#include "platform/dialog_run.h"
#include "platform/form_input.h"
#include "platform/text.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace tallyforge::qt {

namespace {

QScreen* screenOf(const QWidget* widget) {
    return widget == nullptr ? QGuiApplication::primaryScreen() : widget->screen();
}

/// The main form's scale, or the largest smaller one at which the dialog is wholly on the screen.
double scaleFor(const Form& form, const MainWindow* mainWindow) {
    const QSize room = screenOf(mainWindow)->availableSize() - kUsualFrame;
    const double usual = mainWindow == nullptr ? FormView::kUsualScale : mainWindow->scale();
    const double wide = (room.width() - 1.0) / std::max(form.place.width, 1);
    const double high = (room.height() - 1.0) / std::max(form.contentHeight(), 1);
    return std::min({usual, wide, high});
}

}  // namespace

DialogWindow::DialogWindow(Form& form, char decimal, const MainWindow* mainWindow, QWidget* parent)
    : QDialog(parent), form_(form), view_(new DialogView(form, decimal, scaleFor(form, mainWindow), this)) {
    setWindowTitle(QString::fromStdString(toUnicode(form.title, Face::Arial)));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(view_);
    view_->formChanged = [this] {
        if (!form_.open) {
            done(QDialog::Accepted);
        }
    };
    // The window of the help stays in reach.
    setWindowModality(Qt::WindowModal);
    place(mainWindow);
}

// The form's place is in twips beside the main form; on screen both are larger by the same factor.
void DialogWindow::place(const MainWindow* mainWindow) {
    if (mainWindow == nullptr) {
        return;
    }
    const auto pixels = [&](int twips) { return static_cast<int>(std::lround(twips * mainWindow->scale())); };
    const QRect room = mainWindow->screen()->availableGeometry();
    const QSize size = view_->usualSize() + kUsualFrame;
    const QPoint wish = mainWindow->pos() + QPoint(pixels(form_.place.left - mainWindow->form().place.left),
                                                   pixels(form_.place.top - mainWindow->form().place.top));
    move(placeInside(room, wish, size));
}

void DialogWindow::run() {
    view_->sync();
    show();
    activateDialog(form_);
    view_->sync();
    if (form_.open) {
        exec();
    }
}

void DialogWindow::reject() {
    closeForm(form_);
    if (form_.open) {
        view_->sync();
    } else {
        QDialog::reject();
    }
}

}  // namespace tallyforge::qt
