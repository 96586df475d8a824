// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's own style, less the one thing that makes every start slow: a menu bar asks for the
// picture of its "more" button, which hardly any window shows, and reading that file loads the plug-ins
// of all picture formats. Here the button's chevrons are drawn.
#pragma once

#include <QProxyStyle>

namespace tallyforge::qt {

class DesktopStyle final : public QProxyStyle {
    Q_OBJECT
public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

/// Makes it the style of the application, which is there already: it knows the desktop's own.
void installStyle();

}  // namespace tallyforge::qt
