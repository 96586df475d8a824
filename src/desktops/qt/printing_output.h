// SPDX-License-Identifier: GPL-3.0-or-later
//
// Puts a print job on a printer or into a PDF file, page by page.
#pragma once

#include "platform/print_job.h"

#include <QPageLayout>
#include <QString>

#include <functional>

class QPagedPaintDevice;

namespace tallyforge::qt {

enum class PrintEnd { Done, Cancelled, Failed };

/// Asked before each page, counted from 0; false ends the printing.
using PageWatch = std::function<bool(int page, int pages)>;

/// The paper that is usual where the user lives, with narrow margins.
[[nodiscard]] QPageLayout usualPage();

/// Paints all pages on `device` in its own page layout.
[[nodiscard]] PrintEnd paintPages(QPagedPaintDevice& device, const PrintJob& job, const PageWatch& goesOn = {});

/// Writes the pages as a PDF file, whole or not at all.
[[nodiscard]] PrintEnd writePdf(const QString& path, const PrintJob& job, const QPageLayout& page,
                                const PageWatch& goesOn = {});

}  // namespace tallyforge::qt
