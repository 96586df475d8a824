// SPDX-License-Identifier: GPL-3.0-or-later
//
// Program files as a test reads them: their lines of code, without comments and texts of messages.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace tallyforge {

inline const std::filesystem::path kSourceRoot{TALLYFORGE_SOURCE_ROOT};

inline std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

inline std::vector<std::string> wordsOf(const std::string& line) {
    std::istringstream in(line);
    return {std::istream_iterator<std::string>(in), {}};
}

/// The lines of a program behind its declaration that are neither comments nor texts of messages.
inline std::vector<std::string> codeOf(const std::string& program) {
    std::vector<std::string> code;
    bool sections = false;
    bool message = false;
    for (const std::string& line : linesOf(program)) {
        sections = sections || line.starts_with("lbl ");
        if (message) {
            message = line.ends_with("#_");
        } else if (sections && !line.empty() && !line.starts_with("'")) {
            code.push_back(line);
            message = line == "umsg";
        }
    }
    return code;
}

}  // namespace tallyforge
