// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/help_window.h"

#include "desktops/qt/app_icon.h"
#include "desktops/qt/theme.h"
#include "desktops/qt/window_place.h"
#include "help/inline_text.h"

#include <QApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tallyforge::qt {

namespace {

constexpr const char* kPlaceKey = "Help/Geometry";
constexpr const char* kSplitKey = "Help/Split";
constexpr QSize kUsualSize(940, 680);
constexpr int kIntroduction = 500;

QString unmarked(const std::string& text) {
    return QString::fromStdString(plainText(text));
}

/// An entry that leads to several pages says to which.
QString entryText(const IndexEntry& entry) {
    const QString text = unmarked(entry.text);
    return entry.shared ? text + " (" + unmarked(entry.page->title) + ")" : text;
}

}  // namespace

HelpWindow::HelpWindow(const HelpBook& book)
    : book_(book),
      back_(addButton("◀ Back", "Back")),
      forward_(addButton("Forward ▶", "Forward")),
      home_(addButton("Introduction", "Introduction")),
      search_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      browser_(new HelpBrowser(book, this)),
      split_(new QSplitter(Qt::Horizontal, this)) {
    setWindowTitle("Tallyforge Help");
    setWindowIcon(appIcon());
    // The calculator ends without it.
    setAttribute(Qt::WA_QuitOnClose, false);
    followTheme();
    arrange();
    addShortcuts();
    fillList();
    connect(search_, &QLineEdit::textChanged, this, [this] { fillList(); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { openRow(0); });
    connect(list_, &QListWidget::itemClicked, this, [this] { openRow(list_->currentRow()); });
    connect(list_, &QListWidget::itemActivated, this, [this] { openRow(list_->currentRow()); });
    connect(back_, &QToolButton::clicked, browser_, &QTextBrowser::backward);
    connect(forward_, &QToolButton::clicked, browser_, &QTextBrowser::forward);
    connect(home_, &QToolButton::clicked, this, [this] {
        if (const HelpPage* page = book_.byTopic(kIntroduction); page != nullptr) {
            browser_->open(*page);
        }
    });
    connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        const HelpPage* page = browser_->page();
        setWindowTitle(page == nullptr ? "Tallyforge Help" : unmarked(page->title) + " - Tallyforge Help");
    });
}

HelpWindow::~HelpWindow() {
    storePlace();
}

QToolButton* HelpWindow::addButton(const QString& text, const QString& spoken) {
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setAccessibleName(spoken);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void HelpWindow::arrange() {
    search_->setPlaceholderText("Search the help");
    search_->setAccessibleName("Search the help");
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    back_->setEnabled(false);
    forward_->setEnabled(false);
    auto* bar = new QHBoxLayout;
    for (QToolButton* button : {back_, forward_, home_}) {
        bar->addWidget(button);
    }
    bar->addStretch();
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search_);
    column->addWidget(list_);
    split_->addWidget(side);
    split_->addWidget(browser_);
    split_->setStretchFactor(1, 1);
    split_->setSizes({kUsualSize.width() / 4, 3 * kUsualSize.width() / 4});
    split_->setChildrenCollapsible(false);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(bar);
    whole->addWidget(split_, 1);
    setTabOrder(search_, list_);
    setTabOrder(list_, browser_);
}

void HelpWindow::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, const auto& act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(QKeySequence(Qt::Key_Escape), [this] { close(); });
    add(QKeySequence::Back, [this] { browser_->backward(); });
    add(QKeySequence::Forward, [this] { browser_->forward(); });
    add(QKeySequence::Find, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    add(QKeySequence::ZoomIn, [this] { browser_->zoomIn(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Equal), [this] { browser_->zoomIn(); });
    add(QKeySequence::ZoomOut, [this] { browser_->zoomOut(); });
}

void HelpWindow::fillList() {
    const std::string question = search_->text().toStdString();
    const bool searches = search_->text().trimmed().size() > 0;
    list_->clear();
    rows_.clear();
    QStringList texts;
    if (searches) {
        rows_ = book_.search(question);
        std::transform(rows_.begin(), rows_.end(), std::back_inserter(texts),
                       [](const HelpPage* page) { return unmarked(page->title); });
    } else {
        for (const IndexEntry& entry : book_.index()) {
            texts.append(entryText(entry));
            rows_.push_back(entry.page);
        }
    }
    list_->setAccessibleName(searches ? QString("%1 pages found").arg(rows_.size()) : QString("Index"));
    list_->addItems(texts);
}

void HelpWindow::openRow(int row) {
    if (row >= 0 && row < static_cast<int>(rows_.size())) {
        list_->setCurrentRow(row);
        browser_->open(*rows_[static_cast<std::size_t>(row)]);
    }
}

void HelpWindow::present(const HelpPage& page) {
    if (!placed_) {
        recallPlace();
        placed_ = true;
    }
    if (browser_->page() != &page) {
        browser_->open(page);
    }
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

// The first rows of the list are a key away from the field.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        list_->setFocus();
        list_->setCurrentRow(0);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void HelpWindow::followTheme() {
    const QPalette wanted = Theme::paletteFor(QApplication::palette());
    if (wanted != palette()) {
        setPalette(wanted);
    }
}

bool HelpWindow::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        followTheme();
    }
    return done;
}

void HelpWindow::hideEvent(QHideEvent* event) {
    storePlace();
    QWidget::hideEvent(event);
}

void HelpWindow::recallPlace() {
    const QSettings settings("Oakhollow", "Tallyforge");
    if (!restoreGeometry(settings.value(kPlaceKey).toByteArray())) {
        standBeside(QApplication::activeWindow());
    }
    split_->restoreState(settings.value(kSplitKey).toByteArray());
}

// At first where it hides the least of the calculator.
void HelpWindow::standBeside(const QWidget* calculator) {
    const QScreen* screen = calculator == nullptr ? QGuiApplication::primaryScreen() : calculator->screen();
    const QRect room = screen->availableGeometry();
    resize(kUsualSize.boundedTo(room.size() - kUsualFrame));
    if (calculator != nullptr) {
        const QRect taken = calculator->frameGeometry();
        const bool right = room.right() - taken.right() >= taken.left() - room.left();
        const QSize outer = size() + kUsualFrame;
        const int left = right ? taken.right() + 1 : taken.left() - outer.width();
        move(placeInside(room, QPoint(left, taken.top()), outer));
    }
}

void HelpWindow::storePlace() const {
    if (placed_) {
        QSettings settings("Oakhollow", "Tallyforge");
        settings.setValue(kPlaceKey, saveGeometry());
        settings.setValue(kSplitKey, split_->saveState());
    }
}

}  // namespace tallyforge::qt
