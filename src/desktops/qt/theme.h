// SPDX-License-Identifier: GPL-3.0-or-later
//
// Colours and fonts of the window, for a light and a dark desktop. Text keeps a contrast of at
// least 4.5 to 1 on what it stands on.
#pragma once

#include "platform/form.h"

#include <QColor>
#include <QFont>
#include <QPalette>

namespace tallyforge::qt {

struct Theme {
    QColor window;
    QColor text;
    QColor dimText;
    QColor keyPlain;
    QColor keyYellow;
    QColor keyBlue;
    QColor keyEdge;
    QColor field;
    QColor fieldText;
    QColor fieldEdge;
    QColor selection{};  ///< under the row that is chosen, with the desktop's accent in it
    QColor lamp;
    QColor secondary;  ///< labels on the tape, X at rest, first steps
    QColor accent;     ///< Enter, the focus
    QColor onAccent;
    QColor keyOperator;
    QColor keyMode;
    QColor well;

    [[nodiscard]] const QColor& keyFace(KeyColour colour) const;
    /// The face of a key of this kind and group.
    [[nodiscard]] const QColor& keyFace(const Control& key) const;
    /// Ink on it; dim for a key that is disabled, or idle under the modifiers that are held.
    [[nodiscard]] const QColor& keyText(const Control& key, bool idle = false) const;
    /// The theme for a desktop of this palette: dark where its windows are, its accent for what is
    /// chosen, and all colours its own where it is one of high contrast.
    [[nodiscard]] static Theme forPalette(const QPalette& palette);
    /// The desktop's palette with this theme's colours, for Qt's own widgets, menus and tool tips.
    [[nodiscard]] static QPalette paletteFor(const QPalette& desktop);

private:
    void takeOver(const QPalette& palette);
};

/// Contrast of two colours as the accessibility guidelines for the web define it, 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The font for `font` with text `pixels` high.
[[nodiscard]] QFont faceFont(const Font& font, double pixels);

/// Pixels that a font of `points` is high where a twip is `pixelsPerTwip` wide.
[[nodiscard]] double fontPixels(const Font& font, double pixelsPerTwip);

}  // namespace tallyforge::qt
