// SPDX-License-Identifier: GPL-3.0-or-later
//
// A page of help as HTML without a colour of its own: classes ("mask", "label", "keys") are dressed
// by the style sheet of whoever shows it.
#pragma once

#include "help/help_page.h"

#include <string>
#include <string_view>

namespace tallyforge {

struct HelpHtml {
    /// What a link to a page begins with; the page's name follows.
    std::string_view linkTo = "help:";
    /// Offers "Try it" beside each example that can be tried: a link "try:N", N counted from 0.
    bool offersTrial = false;
    /// Level of the title's heading.
    int topLevel = 1;
};

[[nodiscard]] std::string helpPageHtml(const HelpPage& page, const HelpHtml& how);

/// `text` with "&", "<", ">" and quotes written as HTML wants them.
[[nodiscard]] std::string htmlEscaped(std::string_view text);

/// `marked` with its marks as HTML.
[[nodiscard]] std::string inlineHtml(std::string_view marked, const HelpHtml& how);

/// Whether an example may be run in a user's calculator: it leaves settings, files, printer and
/// clipboard alone and does not end the program.
[[nodiscard]] bool canBeTried(const HelpExample& example);

}  // namespace tallyforge
