// SPDX-License-Identifier: GPL-3.0-or-later
//
// Compiles the pages of help while building: the file that the window reads, the manual, and other
// documents from Markdown. It is not installed.
//
//     help-compiler --help-file OUT SOURCE ...      all pages in one file
//     help-compiler --manual OUT VERSION SOURCE ... all pages as HTML
//     help-compiler --document OUT SOURCE           one Markdown file as HTML
#include "help/help_book.h"
#include "help/help_file.h"
#include "help/manual.h"
#include "help/page_reader.h"
#include "platform/file_store.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace tallyforge;

constexpr std::size_t kLargestSource = std::size_t{8} * 1024 * 1024;

std::vector<HelpPage> readSources(std::span<const std::string> names) {
    std::vector<HelpPage> pages;
    for (const std::string& name : names) {
        try {
            const std::filesystem::path path(name);
            std::vector<HelpPage> read = readHelpPages(readWhole(path, kLargestSource), path.stem().string());
            std::move(read.begin(), read.end(), std::back_inserter(pages));
        } catch (const HelpSourceError& error) {
            throw std::runtime_error(name + ":" + std::to_string(error.line) + ": " + error.reason);
        } catch (const FileError&) {
            throw std::runtime_error(name + ": cannot be read");
        }
    }
    return pages;
}

bool compile(std::span<const std::string> words) {
    if (words.size() < 2) {
        return false;
    }
    const std::string& what = words[0];
    const std::filesystem::path out(words[1]);
    if (what == "--help-file") {
        const std::vector<HelpPage> pages = readSources(words.subspan(2));
        for (const std::string& fault : bookFaults(pages)) {
            std::cerr << "help: " << fault << '\n';
        }
        writeWhole(out, writeHelpFile(pages));
    } else if (what == "--manual" && words.size() >= 3) {
        writeWhole(out, manualHtml(readSources(words.subspan(3)), words[2]));
    } else if (what == "--document" && words.size() == 3) {
        writeWhole(out, documentHtml(readWhole(words[2], kLargestSource)));
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    try {
        if (compile(words)) {
            return 0;
        }
        std::cerr << "usage: help-compiler --help-file OUT SOURCE ... | --manual OUT VERSION SOURCE ... | "
                     "--document OUT SOURCE\n";
    } catch (const std::exception& error) {
        std::cerr << "help-compiler: " << error.what() << '\n';
    }
    return 1;
}
