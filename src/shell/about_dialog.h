// SPDX-License-Identifier: GPL-3.0-or-later
//
// What this calculator is: name, version, licence, and on request what a bug report needs.
#pragma once

#include "platform/form.h"

#include <string>

namespace tallyforge {

class Engine;

/// The calculator's version, "1.2.3".
[[nodiscard]] std::string_view version();

class AboutDialog : public Form {
public:
    explicit AboutDialog(Engine& calculator);

    Control lblTitle, lblVersion, lblDescription, lblLicence, lblLibraries, cmdOK, cmdSysInfo;

private:
    void cmdSysInfo_Click();

    Engine& calc;
};

}  // namespace tallyforge
