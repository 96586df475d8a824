// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/all_dialogs.h"
#include "desktops/qt/dialog_view.h"
#include "desktops/qt/form_view.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include <algorithm>

namespace tallyforge {
namespace {

/// The smallest screen that a dialog must stand on wholly, less what window and desktop need.
constexpr QSize kSmallScreen(1366 - 2, 768 - 70);
/// Text smaller than this is hard to read.
constexpr int kLegible = 9;

double scaleOnSmallScreen(const Form& dialog) {
    return std::min({qt::FormView::kUsualScale, static_cast<double>(kSmallScreen.width()) / dialog.place.width,
                     static_cast<double>(kSmallScreen.height()) / dialog.contentHeight()});
}

/// The width that the text of a widget needs beside what else it draws; 0 for one that scrolls.
int neededWidth(const QWidget& widget) {
    constexpr int kMargin = 8;
    constexpr int kIndicator = 20;
    const QFontMetrics metrics(widget.font());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return metrics.horizontalAdvance(button->text().remove('&')) + (button->isCheckable() ? kIndicator : kMargin);
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->wordWrap() ? 0 : metrics.horizontalAdvance(label->text());
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return metrics.horizontalAdvance(box->title().remove('&')) + kMargin;
    }
    return 0;
}

TEST(AllDialogsInAWindow, ClipNothingOnASmallScreen) {
    openAllDialogs([](Form& dialog) {
        qt::DialogView view(dialog, '.', scaleOnSmallScreen(dialog), nullptr);
        view.sync();
        view.show();
        EXPECT_LE(view.width(), kSmallScreen.width() + 1) << dialogKey(dialog);
        EXPECT_LE(view.height(), kSmallScreen.height() + 1) << dialogKey(dialog);
        for (const Control* control : dialog.controls()) {
            const QWidget* widget = view.widgetOf(*control);
            if (widget == nullptr || !control->visible) {
                continue;
            }
            if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->wordWrap()) {
                EXPECT_LE(label->heightForWidth(label->width()), label->height() + 2)
                    << dialogKey(dialog) << " " << control->fullName();
            }
            EXPECT_LE(neededWidth(*widget), widget->width()) << dialogKey(dialog) << " " << control->fullName();
            if (control->kind == ControlKind::Picture) {
                // It scales as a whole and has no text of its own.
                continue;
            }
            EXPECT_GE(widget->font().pixelSize(), kLegible) << dialogKey(dialog) << " " << control->fullName();
            EXPECT_GE(widget->height() + 2, QFontMetrics(widget->font()).height())
                << dialogKey(dialog) << " " << control->fullName();
        }
    });
}

}  // namespace
}  // namespace tallyforge
