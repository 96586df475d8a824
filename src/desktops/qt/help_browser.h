// SPDX-License-Identifier: GPL-3.0-or-later
//
// Shows pages of the help. It takes them from the book by their names, and their colours from the
// theme that fits its palette.
#pragma once

#include "help/help_book.h"

#include <QTextBrowser>

#include <functional>

namespace tallyforge::qt {

class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    HelpBrowser(const HelpBook& book, QWidget* parent);

    /// Shows a page and notes it in the history.
    void open(const HelpPage& page);
    /// The page that shows; nullptr before the first one.
    [[nodiscard]] const HelpPage* page() const { return page_; }
    /// The user wants to try an example of the page.
    std::function<void(const HelpExample&)> tryIt;

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void follow(const QUrl& link);
    void dress();

    const HelpBook& book_;
    const HelpPage* page_ = nullptr;
};

}  // namespace tallyforge::qt
