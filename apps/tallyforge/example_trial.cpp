// SPDX-License-Identifier: GPL-3.0-or-later
#include "apps/tallyforge/example_trial.h"

#include "desktops/headless/key_script.h"
#include "help/help_html.h"
#include "platform/form_input.h"

#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

namespace {

constexpr const char* kTitle = "Try it";

/// Somebody answers in the user's place as long as this lives.
class InHisPlace {
public:
    InHisPlace(qt::QtPlatform& platform, Platform& standIn) : platform_(platform) { platform_.setStandIn(&standIn); }
    ~InHisPlace() { platform_.setStandIn(nullptr); }
    InHisPlace(const InHisPlace&) = delete;
    InHisPlace& operator=(const InHisPlace&) = delete;

private:
    qt::QtPlatform& platform_;
};

/// Presses the keys; what went wrong, or nothing.
std::string play(qt::QtPlatform& platform, Calculator& calculator, const HelpExample& example) {
    const auto drop = [](std::string_view) {};
    HeadlessPlatform hand({.decimal = platform.decimalCharacter()}, drop);
    std::string complaint;
    KeyScript script(calculator, hand, drop, [&complaint](std::string_view line) { complaint = line; });
    const InHisPlace standsIn(platform, hand);
    std::istringstream keys(example.keys);
    static_cast<void>(script.run(keys));
    releaseModifiers(calculator.engine().form);
    return complaint;
}

}  // namespace

void tryExample(qt::QtPlatform& platform, Calculator& calculator, qt::MainWindow& window, const HelpExample& example) {
    const auto tell = [&platform](std::string text) {
        platform.messageBox({.kind = BoxKind::Info, .title = kTitle, .text = std::move(text)});
    };
    if (platform.isBusy() || calculator.programs().running()) {
        return tell("Close the dialog, or let the program end, before you try an example.");
    }
    if (!canBeTried(example)) {
        return tell("This example uses files or settings and is only to be read.");
    }
    const Answer answer = platform.messageBox({.kind = BoxKind::Question,
                                               .title = kTitle,
                                               .text = "Press the keys of this example in your calculator?\n\nIts "
                                                       "numbers go on your stack and your tape.",
                                               .buttons = BoxButtons::YesNo});
    if (answer != Answer::Yes) {
        return;
    }
    const std::string complaint = play(platform, calculator, example);
    window.view().sync();
    if (!complaint.empty()) {
        tell("The example cannot go on here: " + complaint);
    }
}

}  // namespace tallyforge
