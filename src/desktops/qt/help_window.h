// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window of the help, beside the calculator and not over it: a page, the index or what a search
// has found, back and forward. It remembers its place and size in the desktop's settings store.
#pragma once

#include "desktops/qt/help_browser.h"
#include "help/help_book.h"

#include <QWidget>

#include <vector>

class QLineEdit;
class QListWidget;
class QSplitter;
class QToolButton;

namespace tallyforge::qt {

class HelpWindow : public QWidget {
    Q_OBJECT
public:
    explicit HelpWindow(const HelpBook& book);
    ~HelpWindow() override;

    /// Shows the page, the window where it is hidden, and brings it to the front.
    void present(const HelpPage& page);
    [[nodiscard]] HelpBrowser& browser() { return *browser_; }
    [[nodiscard]] QLineEdit& searchField() { return *search_; }
    [[nodiscard]] QListWidget& list() { return *list_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void arrange();
    void addShortcuts();
    QToolButton* addButton(const QString& text, const QString& spoken);
    void fillList();
    void openRow(int row);
    void followTheme();
    void recallPlace();
    void standBeside(const QWidget* calculator);
    void storePlace() const;

    const HelpBook& book_;
    QToolButton* back_;
    QToolButton* forward_;
    QToolButton* home_;
    QLineEdit* search_;
    QListWidget* list_;
    HelpBrowser* browser_;
    QSplitter* split_;
    std::vector<const HelpPage*> rows_;  ///< the page behind each row of the list
    bool placed_ = false;
};

}  // namespace tallyforge::qt
