// SPDX-License-Identifier: GPL-3.0-or-later
//
// Renders a form: a widget for each control, one factor from twips to pixels for all of them. All
// input goes to the form by form_input.h, and after each handler what changed is shown.
#pragma once

#include "platform/form.h"
#include "platform/form_input.h"

#include <QHash>
#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <string>
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

    /// The pointer is over this control, or over none.
    void pointAt(const Control* control);
    /// What the name line says at present, eight-bit.
    [[nodiscard]] std::string nameLine() const;
    /// Hears what a listener is told: results with their labels, modes, keypads.
    std::function<void(const QString&)> announced;

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
    /// Ctrl with +, - or 0: larger (1), smaller (-1), the usual size (0).
    std::function<void(int steps)> zoomed;
    /// A menu has the access letter `key`.
    std::function<bool(int key)> menuHasLetter;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void keyReleaseEvent(QKeyEvent* event) override { keyReleased(*event); }
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void finish();
    [[nodiscard]] bool zooms(const QKeyEvent& event) const;
    [[nodiscard]] bool shiftAlone(const QKeyEvent& event);
    void dropShiftWait();
    void letGo();
    void announce();
    void announceRefusal();
    void say(ControlWidget& widget, const QString& text);
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
    QTimer shiftWait_;  ///< runs while a Shift may still belong to a character
    std::vector<ControlWidget*> widgets_;
    QHash<const Control*, ControlWidget*> byControl_;
    ControlWidget* pressedKey_ = nullptr;
    int refusals_ = 0;                              ///< of the field that is typed in, as told last
    QHash<const Control*, QString> told_;           ///< what was last announced of a label
    QHash<const Control*, std::uint64_t> counted_;  ///< and of a list
};

}  // namespace tallyforge::qt
