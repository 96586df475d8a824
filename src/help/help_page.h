// SPDX-License-Identifier: GPL-3.0-or-later
//
// A page of help as it is written, and what its text consists of. Texts are UTF-8. A page has a
// title, a name that links lead to, and says which help topics, program words, dialogs and messages
// it is about; its body is a small Markdown, taken apart only when the page is shown.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

struct HelpPage {
    std::string title{};
    std::string name{};  ///< small letters, digits and "-"
    std::string file{};  ///< the file of sources that it stands in, without its ending: its chapter
    std::vector<int> topics{};
    std::vector<std::string> index{};     ///< entries of the index that lead here
    std::vector<std::string> words{};     ///< of the program language
    std::vector<std::string> dialogs{};   ///< names of forms
    std::vector<std::string> messages{};  ///< texts of boxes that it explains
    std::string body{};
    friend bool operator==(const HelpPage&, const HelpPage&) = default;
};

/// An example: a key script, and all that it shows.
struct HelpExample {
    std::string keys;
    std::string out;
};

/// A line such as "Range: x > 0".
struct HelpFact {
    std::string label;
    std::string text;
};

struct HelpBlock {
    enum class Kind { Heading, Paragraph, Facts, List, Table, Verbatim, Example };
    Kind kind = Kind::Paragraph;
    std::string text{};                            ///< Heading, Paragraph, Verbatim
    int level = 2;                                 ///< Heading: 2 or 3
    std::vector<std::string> items{};              ///< List
    std::vector<HelpFact> facts{};                 ///< Facts
    std::vector<std::vector<std::string>> rows{};  ///< Table: heads first
    HelpExample example{};
};

/// The body of a page, block by block; a block that nothing closes ends with the text.
[[nodiscard]] std::vector<HelpBlock> helpBlocks(std::string_view body);

/// The examples of a page in their order.
[[nodiscard]] std::vector<HelpExample> helpExamples(std::string_view body);

/// The modifiers, added together, that a section of a key's page is about, by its heading: "Key:
/// Sine" is 0, "Shift+Ctrl: ..." is 3; none where the heading is another one.
struct MaskHeading {
    std::uint8_t mask = 0;
    std::string_view keys;  ///< "Shift+Ctrl"
    std::string_view text;  ///< what stands behind the colon
};
[[nodiscard]] std::optional<MaskHeading> maskHeading(std::string_view heading);

}  // namespace tallyforge
