// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window's icon, drawn rather than loaded, so that it is sharp at every size.
#pragma once

#include <QIcon>

namespace tallyforge::qt {

/// A display over nine keys, one of them yellow.
[[nodiscard]] QIcon appIcon();

}  // namespace tallyforge::qt
