// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/help_desk.h"

#include "desktops/qt/help_window.h"
#include "help/help_book.h"
#include "help/help_file.h"
#include "platform/file_store.h"

#include <utility>

namespace tallyforge::qt {

namespace {

constexpr std::size_t kLargestHelpFile = std::size_t{32} * 1024 * 1024;

}  // namespace

HelpDesk::HelpDesk() = default;
HelpDesk::~HelpDesk() = default;

std::string HelpDesk::load(const std::filesystem::path& file) {
    if (book_ != nullptr) {
        return {};
    }
    const std::string name = "The help file " + file.filename().string();
    try {
        auto pages = readHelpFile(readWhole(file, kLargestHelpFile));
        if (!pages) {
            return name + " is damaged!";
        }
        book_ = std::make_unique<HelpBook>(std::move(*pages));
    } catch (const FileError& error) {
        return name + (error.problem() == FileProblem::NotFound ? " was not found!" : " cannot be read!");
    }
    return {};
}

std::string HelpDesk::show(const HelpPage* page) {
    if (page == nullptr) {
        return "The help has no page about this!";
    }
    if (window_ == nullptr) {
        window_ = std::make_unique<HelpWindow>(*book_);
        window_->browser().tryIt = tryIt;
    }
    window_->present(*page);
    return {};
}

std::string HelpDesk::showTopic(const std::filesystem::path& file, int topic) {
    std::string problem = load(file);
    return problem.empty() ? show(book_->byTopic(topic)) : problem;
}

std::string HelpDesk::showDialog(const std::filesystem::path& file, std::string_view form, int topic) {
    std::string problem = load(file);
    if (!problem.empty()) {
        return problem;
    }
    const HelpPage* page = book_->byDialog(form);
    return show(page != nullptr ? page : book_->byTopic(topic));
}

}  // namespace tallyforge::qt
