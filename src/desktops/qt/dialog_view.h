// SPDX-License-Identifier: GPL-3.0-or-later
//
// The contents of a dialog's window: Qt's own widgets for the controls of a form. Keys go to the
// form before a widget sees them, so that a dialog does the same in a window and in a script; a
// line edit keeps what moves its caret, selects and copies.
#pragma once

#include "desktops/qt/dialog_control.h"
#include "platform/form.h"
#include "platform/form_input.h"

#include <QHash>
#include <QSize>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QKeyEvent;

namespace tallyforge::qt {

class DialogView : public QWidget, private DialogHand {
    Q_OBJECT
public:
    DialogView(Form& form, char decimal, double scale, QWidget* parent);

    /// Shows what changed in the form since the last time.
    void sync();
    [[nodiscard]] QSize usualSize() const;
    [[nodiscard]] QWidget* widgetOf(const Control& control) const { return widgets_.value(&control, nullptr); }

    /// Something was done to the form, which may be closed now.
    std::function<void()> formChanged;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void clicked(Control& control) override;
    void rowClicked(Control& list, std::size_t row) override;
    void rowDoubleClicked(Control& list, std::size_t row) override;
    void retyped(Control& field, const QString& text) override;

    [[nodiscard]] bool keyPressed(QWidget& at, const QKeyEvent& event);
    [[nodiscard]] bool keyReleased(const QKeyEvent& event);
    [[nodiscard]] bool mousePressed(Control& control, const QEvent& event);
    void focusTaken(Control& control);
    void eraseSelection(Control& field, QWidget& at);
    void alignOptions();
    void tieLists();
    void finish();

    Form& form_;
    char decimal_;
    double scale_;
    bool syncing_ = false;
    std::vector<std::unique_ptr<DialogControl>> controls_;
    QHash<const Control*, QWidget*> widgets_;
    QHash<const QObject*, Control*> byWidget_;
};

}  // namespace tallyforge::qt
