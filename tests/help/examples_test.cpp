// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every example of the help runs, and shows what its page says.
#include "desktops/headless/key_script.h"
#include "help/help_html.h"
#include "help_sources.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <sstream>
#include <string>

namespace tallyforge {
namespace {

class HelpExamples : public testing::TestWithParam<HelpPage> {};

/// What a fresh calculator shows of the script, complaints and all.
std::string transcriptOf(const std::string& keys) {
    const TemporaryFolder folder;
    std::string out;
    const auto print = [&out](std::string_view line) { out += std::string(line) + '\n'; };
    KeyScript script({.data = folder.path, .home = TALLYFORGE_PROGRAMS_FOLDER}, print, print);
    std::istringstream lines(keys);
    if (script.run(lines) != ScriptEnd::Done) {
        out += "the script has not run to its end\n";
    }
    return out;
}

TEST_P(HelpExamples, ShowWhatTheyGive) {
    for (const HelpExample& example : helpExamples(GetParam().body)) {
        EXPECT_EQ(transcriptOf(example.keys), example.out) << "the script:\n" << example.keys;
    }
}

INSTANTIATE_TEST_SUITE_P(OfPage, HelpExamples, testing::ValuesIn(helpSources()), [](const auto& page) {
    std::string name = page.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

}  // namespace

void PrintTo(const HelpPage& page, std::ostream* out) {
    *out << page.file << ": " << page.title;
}

}  // namespace tallyforge
