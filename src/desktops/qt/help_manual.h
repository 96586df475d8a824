// SPDX-License-Identifier: GPL-3.0-or-later
//
// The manual for paper: all pages of help as a PDF file.
#pragma once

#include "help/help_page.h"

#include <span>
#include <string>

namespace tallyforge::qt {

/// The bytes of the PDF, on the paper that is usual where the user lives.
[[nodiscard]] std::string manualPdf(std::span<const HelpPage> pages);

}  // namespace tallyforge::qt
