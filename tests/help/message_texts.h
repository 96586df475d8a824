// SPDX-License-Identifier: GPL-3.0-or-later
//
// The texts of all boxes, gathered from the sources: the literals in calls that show a box and in
// the tables of messages. What is put together while running is given by its longest fixed piece.
#pragma once

#include <string>
#include <vector>

namespace tallyforge {

struct MessageText {
    std::string file;
    std::string text;  ///< UTF-8
};

[[nodiscard]] const std::vector<MessageText>& messageTexts();

}  // namespace tallyforge
