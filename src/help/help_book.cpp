// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_book.h"

#include "help/folded_text.h"
#include "help/inline_text.h"
#include "help/text_lines.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace tallyforge {

namespace {

std::vector<std::string> wordsOf(std::string_view question) {
    std::vector<std::string> words;
    const std::string folded = foldedText(question);
    std::string_view rest = trimmed(folded);
    while (!rest.empty()) {
        const auto end = std::min(rest.find(' '), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest = trimmed(rest.substr(end));
    }
    return words;
}

/// How `text` has a word: 2 as a whole one, 1 as the beginning of one, 0 not at all.
int matchOf(std::string_view text, std::string_view word) {
    int best = 0;
    for (auto at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
        if (beginsWord(text, at)) {
            const std::size_t end = at + word.size();
            if (end == text.size() || beginsWord(text, end) || text[end] == ' ') {
                return 2;
            }
            best = 1;
        }
    }
    return best;
}

std::string joined(const std::vector<std::string>& parts) {
    std::string all;
    for (const std::string& part : parts) {
        all += part + '\n';
    }
    return all;
}

/// Calls `see` with each link of a text.
template <typename See>
void eachLink(std::string_view marked, const See& see) {
    for (const InlineSpan& span : inlineSpans(marked)) {
        if (!span.link.empty()) {
            see(span.link);
        }
    }
}

template <typename See>
void eachLinkOf(const HelpBlock& block, const See& see) {
    if (block.kind != HelpBlock::Kind::Verbatim) {
        eachLink(block.text, see);
    }
    for (const std::string& item : block.items) {
        eachLink(item, see);
    }
    for (const HelpFact& fact : block.facts) {
        eachLink(fact.text, see);
    }
    for (const auto& row : block.rows) {
        for (const std::string& cell : row) {
            eachLink(cell, see);
        }
    }
}

}  // namespace

HelpBook::HelpBook(std::vector<HelpPage> pages) : pages_(std::move(pages)) {
    for (const HelpPage& page : pages_) {
        byName_.emplace(page.name, &page);
        for (const int topic : page.topics) {
            byTopic_.emplace(topic, &page);
        }
        for (const std::string& dialog : page.dialogs) {
            byDialog_.emplace(dialog, &page);
        }
        for (const std::string& entry : page.index) {
            index_.push_back({.text = entry, .page = &page});
        }
    }
    sortIndex();
}

void HelpBook::sortIndex() {
    std::vector<std::pair<std::string, IndexEntry>> sorted;
    sorted.reserve(index_.size());
    for (IndexEntry& entry : index_) {
        sorted.emplace_back(foldedText(entry.text), std::move(entry));
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        if (sorted[i].first == sorted[i - 1].first) {
            sorted[i - 1].second.shared = sorted[i].second.shared = true;
        }
    }
    std::transform(sorted.begin(), sorted.end(), index_.begin(), [](auto& pair) { return std::move(pair.second); });
}

const HelpPage* HelpBook::byTopic(int topic) const {
    const auto found = byTopic_.find(topic);
    return found == byTopic_.end() ? nullptr : found->second;
}

const HelpPage* HelpBook::byName(std::string_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

const HelpPage* HelpBook::byDialog(std::string_view form) const {
    const auto found = byDialog_.find(form);
    return found == byDialog_.end() ? nullptr : found->second;
}

void HelpBook::fold() const {
    for (const HelpPage& page : pages_) {
        const std::string index = joined(page.index) + joined(page.words);
        searched_.push_back({.title = foldedText(page.title),
                             .index = foldedText(index),
                             .text = foldedText(joined(page.messages) + page.body)});
    }
}

int HelpBook::rankOf(const Searched& page, std::string_view word) {
    constexpr int kTitle = 100;
    constexpr int kIndex = 30;
    constexpr int kText = 5;
    return std::max(
        {kTitle * matchOf(page.title, word), kIndex * matchOf(page.index, word), kText * matchOf(page.text, word)});
}

std::vector<const HelpPage*> HelpBook::search(std::string_view question) const {
    const std::vector<std::string> words = wordsOf(question);
    if (words.empty()) {
        return {};
    }
    if (searched_.empty()) {
        fold();
    }
    std::vector<std::pair<int, const HelpPage*>> hits;
    for (std::size_t i = 0; i < searched_.size(); ++i) {
        int rank = 0;
        for (const std::string& word : words) {
            int best = 0;
            for (const std::string& spelling : spellingsOf(word)) {
                best = std::max(best, rankOf(searched_[i], spelling));
            }
            rank = best == 0 ? 0 : rank + best;
            if (rank == 0) {
                break;
            }
        }
        if (rank > 0) {
            hits.emplace_back(rank, &pages_[i]);
        }
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const auto& one, const auto& other) { return one.first > other.first; });
    std::vector<const HelpPage*> found;
    std::transform(hits.begin(), hits.end(), std::back_inserter(found), [](const auto& hit) { return hit.second; });
    return found;
}

std::vector<std::string> bookFaults(std::span<const HelpPage> pages) {
    std::vector<std::string> faults;
    std::map<std::string, const HelpPage*> claimed;
    const auto claim = [&](const HelpPage& page, const std::string& what) {
        const auto [had, fresh] = claimed.emplace(what, &page);
        if (!fresh) {
            faults.push_back(page.file + ": " + page.name + ": " + what + " belongs to " + had->second->name + " of " +
                             had->second->file);
        }
    };
    for (const HelpPage& page : pages) {
        claim(page, "name " + page.name);
        for (const int topic : page.topics) {
            claim(page, "topic " + std::to_string(topic));
        }
    }
    for (const HelpPage& page : pages) {
        for (const HelpBlock& block : helpBlocks(page.body)) {
            eachLinkOf(block, [&](const std::string& link) {
                if (!claimed.contains("name " + link)) {
                    faults.push_back(page.file + ": " + page.name + ": no page " + link);
                }
            });
        }
    }
    return faults;
}

}  // namespace tallyforge
