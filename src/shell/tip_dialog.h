// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tip of the day: a random line of the tips file, at the start and from the menu.
#pragma once

#include "platform/form.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

class TipDialog : public Form {
public:
    /// Name of the file of tips, one a line, in the folder of what was installed.
    static constexpr const char* kFile = "TIPOFDAY.TXT";
    /// The desktop's option that says whether tips are shown at the start.
    static constexpr std::string_view kOption = "Show Tips at Startup";

    TipDialog(Engine& calculator, std::vector<std::string> tips);

    Control lblTipText, chkLoadTipsAtStartup, cmdNextTip, cmdOK;

private:
    void cmdNextTip_Click();
    void chkLoadTipsAtStartup_Click();

    Engine& calc;
    std::vector<std::string> tips_;
};

/// The lines of a tips file, without empty ones and what is no character of a text. Of a line that
/// is no tip of a reasonable length the head.
[[nodiscard]] std::vector<std::string> readTips(std::string_view file);

/// Shows a tip; a message where there is no file of tips. Returns whether tips are to be shown at
/// the start from now on.
bool showTips(Engine& calc);

}  // namespace tallyforge
