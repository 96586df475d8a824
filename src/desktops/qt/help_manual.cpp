// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/help_manual.h"

#include "desktops/qt/printing_output.h"
#include "help/manual.h"
#include "shell/about_dialog.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextDocument>

namespace tallyforge::qt {

namespace {

constexpr const char* kPaperStyle = R"(
body { font-family: "DejaVu Sans"; font-size: 9pt; color: black; }
a { color: black; text-decoration: none; }
pre, code { font-family: "DejaVu Sans Mono"; font-size: 8pt; }
pre { white-space: pre-wrap; background-color: #eeeeee; margin-left: 8px; }
h2 { margin-top: 24px; }
td { padding-right: 8px; }
.word { white-space: nowrap; }
.mask { background-color: #dddddd; }
.label, .caption { color: #555555; }
)";

/// Without the style of a browser, which the document does not understand.
QString bodyOf(const std::string& html) {
    const auto begin = html.find("<body>");
    return QString::fromStdString(begin == std::string::npos ? html : html.substr(begin));
}

}  // namespace

std::string manualPdf(std::span<const HelpPage> pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageLayout(usualPage());
        writer.setTitle("Tallyforge manual");
        QTextDocument document;
        document.setDefaultStyleSheet(kPaperStyle);
        document.setHtml(bodyOf(manualHtml(pages, version())));
        document.print(&writer);
    }
    return bytes.toStdString();
}

}  // namespace tallyforge::qt
