// SPDX-License-Identifier: GPL-3.0-or-later
//
// All units as a document: docs/units.md is this text.
#pragma once

#include <string>

namespace tallyforge {

/// Markdown, UTF-8: a table a group, a row a unit with its factor, exact value, difference, definition
/// and source.
[[nodiscard]] std::string unitDocument();

}  // namespace tallyforge
