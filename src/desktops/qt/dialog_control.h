// SPDX-License-Identifier: GPL-3.0-or-later
//
// One of Qt's own widgets for one control of a dialog: a line edit, a radio button, a list and so
// on, made once and refreshed after each handler. Selection, caret and what a screen reader hears
// are Qt's; what a hand does goes to the form by form_input.h.
#pragma once

#include "platform/form.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace tallyforge::qt {

/// What a widget of a dialog reports; the view passes it on to the form.
class DialogHand {
public:
    virtual ~DialogHand() = default;
    virtual void clicked(Control& control) = 0;
    virtual void rowClicked(Control& list, std::size_t row) = 0;
    virtual void rowDoubleClicked(Control& list, std::size_t row) = 0;
    /// The line edit has another text without a key: by paste, a drop, an input method.
    virtual void retyped(Control& field, const QString& text) = 0;
};

class DialogControl {
public:
    explicit DialogControl(Control& shown) : control_(shown) {}
    virtual ~DialogControl() = default;
    DialogControl(const DialogControl&) = delete;
    DialogControl& operator=(const DialogControl&) = delete;

    /// Shows the control as it is now, at `scale` pixels a twip.
    void sync(double scale);
    [[nodiscard]] Control& control() const { return control_; }
    /// Height of the text in pixels, as it was fitted.
    [[nodiscard]] int textPixels() const { return widget().font().pixelSize(); }
    void setTextPixels(int pixels);
    [[nodiscard]] virtual QWidget& widget() const = 0;

protected:
    /// Shows what is particular to the kind; `font` is the control's at the present scale.
    virtual void show(const QFont& font, double scale) = 0;
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString plainCaption() const;
    /// The font, made smaller until `text` is no wider than the widget less `margin` pixels.
    [[nodiscard]] QFont fitted(QFont font, const QString& text, int margin) const;

private:
    Control& control_;
};

/// The widget for a control; nullptr for one that a dialog does not show (a menu).
[[nodiscard]] std::unique_ptr<DialogControl> makeDialogControl(Control& control, DialogHand& hand, QWidget* parent);

}  // namespace tallyforge::qt
