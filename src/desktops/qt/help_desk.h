// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where help is asked for: reads the file of the help when the first page is wanted, and keeps the
// one window that shows pages.
#pragma once

#include "help/help_page.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tallyforge {
class HelpBook;
}

namespace tallyforge::qt {

class HelpWindow;

class HelpDesk {
public:
    HelpDesk();
    ~HelpDesk();
    HelpDesk(const HelpDesk&) = delete;
    HelpDesk& operator=(const HelpDesk&) = delete;

    /// Shows the page of a topic, or of a dialog. What cannot be shown is returned as a message.
    [[nodiscard]] std::string showTopic(const std::filesystem::path& file, int topic);
    [[nodiscard]] std::string showDialog(const std::filesystem::path& file, std::string_view form, int topic);

    /// Runs an example in the calculator, after asking; without it none is offered.
    std::function<void(const HelpExample&)> tryIt;

    /// nullptr until the first page was wanted.
    [[nodiscard]] HelpWindow* window() const { return window_.get(); }

private:
    [[nodiscard]] std::string load(const std::filesystem::path& file);
    [[nodiscard]] std::string show(const HelpPage* page);

    std::unique_ptr<HelpBook> book_;
    std::unique_ptr<HelpWindow> window_;
};

}  // namespace tallyforge::qt
