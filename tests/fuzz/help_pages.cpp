// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_book.h"
#include "help/help_file.h"
#include "help/help_html.h"
#include "help/page_reader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    static_cast<void>(readHelpFile(text));
    static_cast<void>(readHelpFileContents(text));
    try {
        const std::vector<HelpPage> pages = readHelpPages(text, "file");
        // What was read comes back from the file that it is compiled to.
        if (readHelpFile(writeHelpFile(pages)) != pages) {
            std::abort();
        }
        const HelpBook book({pages.begin(), pages.end()});
        for (const HelpPage& page : book.pages()) {
            static_cast<void>(helpPageHtml(page, {.offersTrial = true}));
            static_cast<void>(book.search(page.title));
        }
        static_cast<void>(bookFaults(book.pages()));
    } catch (const HelpSourceError&) {
        return 0;
    }
    return 0;
}
