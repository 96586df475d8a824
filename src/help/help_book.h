// SPDX-License-Identifier: GPL-3.0-or-later
//
// All pages of help together: found by topic, name or dialog, through the index, and by the words
// in them.
#pragma once

#include "help/help_page.h"

#include <cstddef>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

struct IndexEntry {
    std::string text;
    const HelpPage* page = nullptr;
    bool shared = false;  ///< other pages have the same entry
};

class HelpBook {
public:
    /// Where two pages claim one topic, name or dialog, the first has it.
    explicit HelpBook(std::vector<HelpPage> pages);
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;

    [[nodiscard]] std::span<const HelpPage> pages() const { return pages_; }
    /// The page of a topic, of that name, of that form; nullptr where there is none.
    [[nodiscard]] const HelpPage* byTopic(int topic) const;
    [[nodiscard]] const HelpPage* byName(std::string_view name) const;
    [[nodiscard]] const HelpPage* byDialog(std::string_view form) const;
    /// The entries of the index in the order of the alphabet.
    [[nodiscard]] const std::vector<IndexEntry>& index() const { return index_; }

    /// The pages that have every word of `question`, or a word that begins like it: first those that
    /// have it in the title, then in the index, then in the text. Signs count as words, and by their
    /// names. Nothing for an empty question.
    [[nodiscard]] std::vector<const HelpPage*> search(std::string_view question) const;

private:
    /// A page as it is searched.
    struct Searched {
        std::string title;
        std::string index;
        std::string text;
    };
    void sortIndex();
    void fold() const;
    [[nodiscard]] static int rankOf(const Searched& page, std::string_view word);

    std::vector<HelpPage> pages_;
    std::map<int, const HelpPage*> byTopic_;
    std::map<std::string_view, const HelpPage*, std::less<>> byName_;
    std::map<std::string_view, const HelpPage*, std::less<>> byDialog_;
    std::vector<IndexEntry> index_;
    mutable std::vector<Searched> searched_;  ///< made at the first question
};

/// What does not fit together, a line each: names and topics that two pages claim, links that lead
/// nowhere.
[[nodiscard]] std::vector<std::string> bookFaults(std::span<const HelpPage> pages);

}  // namespace tallyforge
