// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/help_browser.h"

#include "desktops/qt/theme.h"
#include "help/help_html.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QUrl>

namespace tallyforge::qt {

namespace {

constexpr const char* kPageScheme = "help";
constexpr const char* kTrialScheme = "try";

QUrl urlOf(const HelpPage& page) {
    return {QString("%1:%2").arg(kPageScheme, QString::fromStdString(page.name))};
}

/// The classes of a page's HTML in the colours of `theme`.
QString styleFor(const Theme& theme) {
    constexpr double kCodePixels = 13.0;
    const QString family = faceFont({.face = Face::Terminal}, kCodePixels).family();
    return QString(R"(
a { color: %1; }
pre, code { font-family: "%2"; }
pre { white-space: pre-wrap; background-color: %3; margin-left: 8px; margin-top: 2px; margin-bottom: 8px; }
table { margin-top: 4px; margin-bottom: 4px; }
td { padding-right: 12px; }
.word { white-space: nowrap; }
.mask { background-color: %4; }
.label, .caption { color: %5; }
)")
        .arg(theme.accent.name(), family, theme.well.name(), theme.keyOperator.name(), theme.secondary.name());
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, QWidget* parent) : QTextBrowser(parent), book_(book) {
    setOpenLinks(false);
    setAccessibleName("Page");
    constexpr double kMargin = 16.0;
    document()->setDocumentMargin(kMargin);
    dress();
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    // The history learns of a page after those who hear this.
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& source) { page_ = book_.byName(source.path().toStdString()); });
}

void HelpBrowser::open(const HelpPage& page) {
    setSource(urlOf(page), QTextDocument::HtmlResource);
}

QVariant HelpBrowser::loadResource(int /*type*/, const QUrl& name) {
    const HelpPage* page = name.scheme() == kPageScheme ? book_.byName(name.path().toStdString()) : nullptr;
    return page == nullptr ? QVariant()
                           : QString::fromStdString(helpPageHtml(*page, {.offersTrial = static_cast<bool>(tryIt)}));
}

void HelpBrowser::follow(const QUrl& link) {
    const std::string path = link.path().toStdString();
    if (link.scheme() == kPageScheme) {
        if (const HelpPage* next = book_.byName(path); next != nullptr) {
            open(*next);
        }
    } else if (link.scheme() == kTrialScheme && page_ != nullptr && tryIt) {
        const auto examples = helpExamples(page_->body);
        if (const int number = link.path().toInt(); number >= 0 && number < static_cast<int>(examples.size())) {
            tryIt(examples[static_cast<std::size_t>(number)]);
        }
    }
}

void HelpBrowser::dress() {
    document()->setDefaultStyleSheet(styleFor(Theme::forPalette(palette())));
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        dress();
        if (page_ != nullptr) {
            const int place = verticalScrollBar()->value();
            reload();
            verticalScrollBar()->setValue(place);
        }
    }
}

}  // namespace tallyforge::qt
