// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_html.h"

#include "help/inline_text.h"
#include "help/manual.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

std::string html(std::string_view marked) {
    return inlineHtml(marked, {});
}

TEST(HelpHtml, MarksWithinALineBecomeTags) {
    EXPECT_EQ(html("a `b` **c** *d* [e](f)"), "a <code>b</code> <b>c</b> <i>d</i> <a href=\"help:f\">e</a>");
    EXPECT_EQ(html("**`b`** and [`c`](d)"), "<b><code>b</code></b> and <a href=\"help:d\"><code>c</code></a>");
    EXPECT_EQ(html("`a * b * c`"), "<code>a * b * c</code>");
}

TEST(HelpHtml, AMarkThatNothingClosesIsACharacter) {
    EXPECT_EQ(html("2 * 3 * 4"), "2 * 3 * 4");
    EXPECT_EQ(html("a ` b [c] (d) **e"), "a ` b [c] (d) **e");
    EXPECT_EQ(html("\\*a\\* \\\\ \\|"), "*a* \\ |");
    EXPECT_EQ(html("*"), "*");
    EXPECT_EQ(html(""), "");
}

TEST(HelpHtml, NothingOfAPageCanBecomeATag) {
    EXPECT_EQ(html("x < y & \"z\" > 1"), "x &lt; y &amp; &quot;z&quot; &gt; 1");
    EXPECT_EQ(html("[a](\"><b>)"), "<a href=\"help:&quot;&gt;&lt;b&gt;\">a</a>");
    EXPECT_EQ(html("`<b>`"), "<code>&lt;b&gt;</code>");
}

TEST(HelpHtml, PlainTextHasNoMarks) {
    EXPECT_EQ(plainText("a `b` **c *d* g** [e](f)"), "a b c d g e");
}

TEST(HelpHtml, APageHasItsTitleSectionsAndExamples) {
    HelpPage page{.title = "Sine", .name = "sine"};
    page.body = "For angles.\n\n## Shift: Arc sine\nRange: |x| ≤ 1\n\n```keys\ntype 2\n```\n```out\nx 2\n```\n";
    const std::string shown = helpPageHtml(page, {.offersTrial = true});
    EXPECT_NE(shown.find("<h1>Sine</h1>"), std::string::npos);
    EXPECT_NE(shown.find("<h2><span class=\"mask\">Shift</span> Arc sine</h2>"), std::string::npos);
    EXPECT_NE(shown.find("<td class=\"label\">Range</td><td>|x| ≤ 1</td>"), std::string::npos);
    EXPECT_NE(shown.find("<pre class=\"keys\">type 2</pre>"), std::string::npos);
    EXPECT_NE(shown.find("<pre class=\"out\">x 2</pre>"), std::string::npos);
    EXPECT_NE(shown.find("href=\"try:0\""), std::string::npos);
    EXPECT_EQ(helpPageHtml(page, {}).find("try:"), std::string::npos);
    EXPECT_EQ(shown.find("color"), std::string::npos);
}

TEST(HelpHtml, ATableHasAHeadAndRowsAndAListItsItems) {
    HelpPage page{.title = "Units", .name = "units"};
    page.body = "| A | `b` |\n|---|---|\n| 1 | 2 < 3 |\n| 4 | |\n\n- one\n- *two*\n\n```text\na <b>\n```\n";
    const std::string shown = helpPageHtml(page, {});
    EXPECT_NE(shown.find("<tr><th align=\"left\">A</th><th align=\"left\"><code>b</code></th></tr>"
                         "<tr><td class=\"word\">1</td><td>2 &lt; 3</td></tr><tr><td class=\"word\">4</td><td "
                         "class=\"word\"></td></tr></table>"),
              std::string::npos)
        << shown;
    EXPECT_NE(shown.find("<ul><li>one</li><li><i>two</i></li></ul>"), std::string::npos) << shown;
    EXPECT_NE(shown.find("<pre class=\"text\">a &lt;b&gt;</pre>"), std::string::npos) << shown;
}

TEST(HelpHtml, AnExampleThatTouchesFilesOrSettingsIsNotOffered) {
    EXPECT_TRUE(canBeTried({.keys = "menu mnuTrig\ntype 2\nclick cmdEnter\nshow x\n", .out = {}}));
    EXPECT_FALSE(canBeTried({.keys = "type 2\nmenu mnuSave\n", .out = {}}));
    EXPECT_FALSE(canBeTried({.keys = "restart\n", .out = {}}));
    EXPECT_FALSE(canBeTried({.keys = "answer text my file\nmenu mnuEngNormal\n", .out = {}}));
    EXPECT_FALSE(canBeTried({.keys = "  close\n", .out = {}}));
}

TEST(Manual, HoldsContentsPagesAndIndexInOneFile) {
    HelpPage sine{.title = "Sine", .name = "sine", .file = "10-trigonometry_keypad"};
    sine.index = {"angle"};
    sine.body = "See [cosine](cosine).\n";
    const HelpPage cosine{.title = "Cosine", .name = "cosine", .file = "20-more"};
    const std::string manual = manualHtml(std::vector<HelpPage>{sine, cosine}, "1.2.3");
    EXPECT_NE(manual.find("Manual of version 1.2.3"), std::string::npos);
    EXPECT_NE(manual.find("<h3>Trigonometry keypad</h3>"), std::string::npos);
    EXPECT_NE(manual.find("<li><a href=\"#sine\">Sine</a></li>"), std::string::npos);
    EXPECT_NE(manual.find("<a name=\"cosine\"></a><h2>Cosine</h2>"), std::string::npos);
    EXPECT_NE(manual.find("<a href=\"#cosine\">cosine</a>"), std::string::npos);
    EXPECT_NE(manual.find("<li><a href=\"#sine\">angle</a></li>"), std::string::npos);
    EXPECT_TRUE(manual.ends_with("</html>\n"));
}

TEST(Manual, BeginsWithTheIntroductionAndEndsWithTheGlossary) {
    std::vector<HelpPage> pages;
    for (const char* file : {"binary-keypad", "convert-keypad", "glossary", "introduction", "lists", "programs"}) {
        pages.push_back({.title = file, .name = file, .file = file});
    }
    const std::string manual = manualHtml(pages, "1");
    std::size_t at = 0;
    for (const char* file : {"introduction", "convert-keypad", "binary-keypad", "lists", "programs", "glossary"}) {
        const std::size_t found = manual.find("<a name=\"" + std::string(file) + "\">");
        EXPECT_GT(found, at) << file;
        at = found;
    }
}

TEST(Manual, ADocumentIsAPageOfItsOwn) {
    const std::string changes = documentHtml("# Changes\n\n## 0.1.0\n\n- One\n- Two\n");
    EXPECT_NE(changes.find("<title>Changes</title>"), std::string::npos);
    EXPECT_NE(changes.find("<h1>Changes</h1>"), std::string::npos);
    EXPECT_NE(changes.find("<ul><li>One</li><li>Two</li></ul>"), std::string::npos);
}

}  // namespace
}  // namespace tallyforge
