// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where a window may stand so that it lies wholly on its screen, with what the window manager puts
// around it.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>

namespace tallyforge::qt {

/// What a window manager puts around a dialog or another window beside the main one, where it has
/// not said so yet.
inline constexpr QSize kUsualFrame(4, 36);

/// The place nearest to `wish` at which a window of size `outer`, frame included, lies in `room`; one
/// that is larger begins at the room's left or upper edge.
[[nodiscard]] inline QPoint placeInside(const QRect& room, QPoint wish, QSize outer) {
    return {std::clamp(wish.x(), room.left(), std::max(room.left(), room.right() + 1 - outer.width())),
            std::clamp(wish.y(), room.top(), std::max(room.top(), room.bottom() + 1 - outer.height()))};
}

}  // namespace tallyforge::qt
