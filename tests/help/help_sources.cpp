// SPDX-License-Identifier: GPL-3.0-or-later
#include "help_sources.h"

#include "help/inline_text.h"
#include "help/page_reader.h"
#include "platform/file_store.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>

namespace tallyforge {

const std::vector<HelpPage>& helpSources() {
    static const std::vector<HelpPage> kPages = [] {
        std::set<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(TALLYFORGE_SOURCE_ROOT "/data/help")) {
            if (entry.path().extension() == ".md") {
                files.insert(entry.path());
            }
        }
        std::vector<HelpPage> pages;
        for (const auto& file : files) {
            auto read = readHelpPages(readWhole(file), file.stem().string());
            std::move(read.begin(), read.end(), std::back_inserter(pages));
        }
        return pages;
    }();
    return kPages;
}

std::string bareText(std::string_view text) {
    std::string bare;
    for (const char c : plainText(text)) {
        const bool blank = c == ' ' || c == '\n' || c == '\t';
        if (!blank) {
            bare += c;
        } else if (!bare.empty() && bare.back() != ' ') {
            bare += ' ';
        }
    }
    return bare;
}

const std::string& allHelpText() {
    static const std::string kText = [] {
        std::string all;
        for (const HelpPage& page : helpSources()) {
            for (const std::string& message : page.messages) {
                all += bareText(message) + " ";
            }
            all += bareText(page.title) + " ";
            // By paragraphs: a mark that is not closed ends with its own.
            std::string_view rest = page.body;
            while (!rest.empty()) {
                const auto end = std::min(rest.find('\n'), rest.size());
                all += bareText(rest.substr(0, end)) + " ";
                rest.remove_prefix(std::min(end + 1, rest.size()));
            }
        }
        return bareText(all);
    }();
    return kText;
}

}  // namespace tallyforge
