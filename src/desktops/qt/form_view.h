// SPDX-License-Identifier: GPL-3.0-or-later
//
// Renders a form: a widget for each control, one factor from twips to pixels for all of them. All
// input goes to the form by form_input.h, and after each handler what changed is shown.
#pragma once

#include "platform/form.h"
#include "platform/form_input.h"

#include <QHash>
#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <vector>

namespace tallyforge::qt {

class ControlWidget;

class FormView : public QWidget {
    Q_OBJECT
public:
    /// Pixels a twip at the usual size: a key is 40 pixels wide.
    static constexpr double kUsualScale = 0.1;

    FormView(Form& form, char decimal, QWidget* parent = nullptr);

    /// Shows what changed in the form since the last time.
    void sync();
    /// Draws the form as large as the view allows, after either has changed its size.
    void refit();
    [[nodiscard]] Form& form() const { return form_; }
    [[nodiscard]] QRect toPixels(const Place& place) const;
    [[nodiscard]] double scale() const { return scale_; }
    /// Size of the contents at `scale` pixels a twip.
    [[nodiscard]] QSize sizeAt(double scale) const;
    [[nodiscard]] ControlWidget* widgetOf(const Control& control) const;

    // Input, from the control widgets.
    void clicked(Control& control, Qt::KeyboardModifiers modifiers);
    void rightClicked(Control& control, Qt::KeyboardModifiers modifiers);
    void rowClicked(Control& list, std::size_t row);
    void rowDoubleClicked(Control& list, std::size_t row);
    void keyPressed(QKeyEvent& event);
    void keyReleased(QKeyEvent& event);
    /// Whether a key that the window could take as a short cut belongs to the form.
    [[nodiscard]] bool overridesShortcut(QKeyEvent& event) const;

    /// The form asked to be closed, or to be of another size.
    std::function<void()> formChanged;
    /// A menu has the access letter `key`.
    std::function<bool(int key)> menuHasLetter;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void keyReleaseEvent(QKeyEvent* event) override { keyReleased(*event); }
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void finish();
    void letGo();
    [[nodiscard]] std::uint8_t ownModifier(const QKeyEvent& event) const;
    void showPressed(const KeyStroke& stroke, bool pressed);
    [[nodiscard]] ControlWidget* keyFor(const KeyStroke& stroke) const;
    template <typename Act>
    void underModifiers(Qt::KeyboardModifiers modifiers, Act act);

    Form& form_;
    char decimal_;
    double scale_ = kUsualScale;
    QPoint origin_;  ///< where the form's left upper corner stands
    std::uint8_t held_ = 0;
    std::vector<ControlWidget*> widgets_;
    QHash<const Control*, ControlWidget*> byControl_;
    ControlWidget* pressedKey_ = nullptr;
};

}  // namespace tallyforge::qt
