// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/dialog_session.h"
#include "unit/headless/script_fixture.h"

#include <vector>

namespace tallyforge {
namespace {

class DialogScript : public ScriptTest {
protected:
    /// Runs a script that begins by opening `dialog` from a key of the main form.
    ScriptEnd runIn(Form& dialog, std::vector<HookedLines::Line> lines) {
        lines.insert(lines.begin(), {"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }});
        return runHooked(std::move(lines));
    }
};

TEST_F(DialogScript, ASessionIsHeardAsWritten) {
    SessionDialog dialog;
    std::vector<HookedLines::Line> lines;
    for (std::size_t i = 1; i < kSession.size(); ++i) {
        const SessionStep& before = kSession.at(i - 1);
        lines.push_back({std::string(kSession.at(i).action),
                         [&dialog, &before] { EXPECT_EQ(dialog.heard(), before.heard) << before.action; }});
    }
    EXPECT_EQ(runIn(dialog, std::move(lines)), ScriptEnd::Done);
    EXPECT_EQ(complaints, Lines{});
    EXPECT_EQ(dialog.heard(), kSession.back().heard);
    EXPECT_EQ(out, (Lines{R"(dialog frmSession "Session")", "dialog frmSession closed"}));
}

TEST_F(DialogScript, ADialogShowsItsFocusAndItsStates) {
    SessionDialog dialog;
    EXPECT_EQ(runIn(dialog, {{"click chkBox", {}},
                             {"show dialog chkBox txtLocked optSize(0) cmdApply", {}},
                             {"close", {}},
                             {"show dialog", {}}}),
              ScriptEnd::Done);
    EXPECT_EQ(
        out, (Lines{R"(dialog frmSession "Session")", "dialog frmSession", R"(chkBox "" enabled visible checked focus)",
                    R"(txtLocked "" disabled visible)", R"(optSize(0) "" enabled visible checked)",
                    R"(cmdApply "&Apply" enabled visible)", "dialog frmSession closed", "dialog none"}));
}

TEST_F(DialogScript, APastedTextGoesThroughTheFieldsFilter) {
    SessionDialog dialog;
    EXPECT_EQ(runIn(dialog, {{"clipboard 1,234 m", {}}, {"key Ctrl+v", {}}, {"show txtNumber", {}}}), ScriptEnd::Done);
    EXPECT_EQ(out.at(1), R"(txtNumber "1234" enabled visible focus)");
}

}  // namespace
}  // namespace tallyforge
