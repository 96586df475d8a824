// SPDX-License-Identifier: GPL-3.0-or-later
//
// One widget for one control of a form. It draws the control, passes the mouse on, and tells
// assistive tools its name and present meaning. It keeps what it showed last, and redraws only
// what differs.
#pragma once

#include "desktops/qt/control_painter.h"
#include "platform/form.h"

#include <QScrollBar>
#include <QTimer>
#include <QWidget>

#include <cstdint>

namespace tallyforge::qt {

class FormView;

class ControlWidget : public QWidget {
    Q_OBJECT
public:
    ControlWidget(FormView& formView, Control& shown);

    /// Takes over what changed in the control since the last time.
    void sync(double pixelsPerTwip, bool hasKeyboard);

    [[nodiscard]] Control& control() const { return control_; }
    /// Shows the key as pressed, for a press by keyboard.
    void setPressed(bool pressed);
    [[nodiscard]] bool isPressed() const { return pressed_; }
    [[nodiscard]] bool hasKeyboard() const { return hasKeyboard_; }
    /// What the control says at the moment: a field's text, or X where it rests; a list's selected row.
    [[nodiscard]] QString meaning() const;
    /// What a label shows.
    [[nodiscard]] QString label() const;
    /// Where row `row` of a list stands on the screen; empty for one that is scrolled away.
    [[nodiscard]] QRect rowPlace(std::size_t row) const;
    [[nodiscard]] std::size_t rowUnder(QPoint global) const;
    /// Clicks the control for an assistive tool.
    void clickForTool();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void syncList();
    void syncMeaning();
    void syncRefusals();
    void setHovered(bool hovered);
    [[nodiscard]] QString labelText() const;
    [[nodiscard]] QString noteText() const;
    [[nodiscard]] bool isKey() const { return control_.kind == ControlKind::Key; }
    [[nodiscard]] bool isList() const { return control_.kind == ControlKind::List; }
    [[nodiscard]] std::size_t rowAt(double y) const;
    /// The whole text of the field, or of the row at that place, where it is shown with its middle
    /// left out.
    [[nodiscard]] QString cutText(QPoint at) const;

    FormView& view_;
    Control& control_;
    QScrollBar* scrollBar_ = nullptr;
    int wheelTurn_ = 0;  ///< turned, and not yet a row
    FittedCaption caption_;
    double pixelsPerTwip_ = 0.0;
    bool held_ = false;     ///< the mouse button went down on it
    bool pressed_ = false;  ///< and it looks so
    bool hovered_ = false;
    bool idle_ = false;
    QTimer flash_;  ///< runs while the edge shows that something was refused
    int refusals_ = 0;
    bool hasKeyboard_ = false;
    QString note_;   ///< shown faintly: X at rest, the first steps
    QString label_;  ///< the name line's text

    // What was shown last.
    std::string text_;
    std::string tip_;
    Place place_;
    Font font_;
    KeyColour colour_ = KeyColour::Plain;
    std::size_t caret_ = 0;
    std::uint64_t revision_ = 0;
    bool enabled_ = false;
    bool visible_ = false;
    bool checked_ = false;
    bool fresh_ = true;
};

}  // namespace tallyforge::qt
