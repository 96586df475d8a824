// SPDX-License-Identifier: GPL-3.0-or-later
#include "message_texts.h"

#include "platform/file_store.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <string_view>

namespace tallyforge {

namespace {

/// What a user reads in a box is a sentence; captions, tips and names are none.
bool isSentence(std::string_view text) {
    constexpr std::size_t kShortest = 10;
    constexpr std::string_view kEnds = ".!?";
    return text.size() >= kShortest && text.find(' ') != text.npos && text.front() != ' ' &&
           kEnds.find(text.back()) != kEnds.npos;
}

/// The string literals of a C++ source, those that stand side by side as one.
class Literals {
public:
    explicit Literals(std::string_view source) : rest_(source) {}

    std::vector<std::string> read() {
        while (!rest_.empty()) {
            if (rest_.starts_with("//") || rest_.front() == '#') {
                rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
            } else if (rest_.starts_with("'\"'") || rest_.starts_with("'\\\"'")) {
                rest_.remove_prefix(rest_.find('\'', 2) + 1);
            } else if (rest_.front() == '"') {
                takeLiteral();
            } else {
                // Only blanks and the mark of an eight-bit text stand between two pieces of one.
                const bool between = std::string_view(" \n_t").find(rest_.front()) != std::string_view::npos;
                joins_ = joins_ && between;
                rest_.remove_prefix(1);
            }
        }
        return std::move(found_);
    }

private:
    void takeLiteral() {
        std::string text;
        rest_.remove_prefix(1);
        while (!rest_.empty() && rest_.front() != '"') {
            if (rest_.front() == '\\' && rest_.size() > 1) {
                rest_.remove_prefix(1);
                text += rest_.front() == 'n' ? '\n' : rest_.front();
            } else {
                text += rest_.front();
            }
            rest_.remove_prefix(1);
        }
        rest_.remove_prefix(std::min<std::size_t>(1, rest_.size()));
        if (joins_ && !found_.empty()) {
            found_.back() += text;
        } else {
            found_.push_back(std::move(text));
        }
        joins_ = true;
    }

    std::string_view rest_;
    std::vector<std::string> found_;
    bool joins_ = false;
};

/// Sources whose sentences are no messages: notes beside a list, what a program's check tells.
bool isOtherwise(const std::string& file) {
    constexpr std::array<std::string_view, 13> kOthers{
        "program_check",   "unit_document", "convert_lines",   "headless",       "desktops",           "help/",
        "pictures",        "sketch",        "hardware_charts", "material_lists", "physical_constants", "colour_code",
        "parameter_tables"};
    return std::any_of(kOthers.begin(), kOthers.end(),
                       [&](std::string_view part) { return file.find(part) != std::string::npos; });
}

/// Labels and captions that end with a point.
bool isLabel(std::string_view text) {
    constexpr std::array<std::string_view, 5> kLabels{"Use Alt Click to save Cnv. Fctr.", "Reset Cheby.",
                                                      "Reset Flux Cap.", "F9 or KP\nto Exit!", "&System Info..."};
    return std::find(kLabels.begin(), kLabels.end(), text) != kLabels.end();
}

}  // namespace

const std::vector<MessageText>& messageTexts() {
    static const std::vector<MessageText> kTexts = [] {
        const std::filesystem::path root(TALLYFORGE_SOURCE_ROOT "/src");
        std::set<std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            const auto ending = entry.path().extension();
            if ((ending == ".cpp" || ending == ".h") && !isOtherwise(entry.path().lexically_relative(root).string())) {
                files.insert(entry.path().string());
            }
        }
        std::vector<MessageText> texts;
        for (const std::string& file : files) {
            const std::string source = readWhole(file);
            for (std::string& text : Literals(source).read()) {
                if (isSentence(text) && !isLabel(text)) {
                    texts.push_back({.file = std::filesystem::path(file).filename().string(), .text = std::move(text)});
                }
            }
        }
        return texts;
    }();
    return kTexts;
}

}  // namespace tallyforge
