// SPDX-License-Identifier: GPL-3.0-or-later
//
// Runs key scripts in a test: a script goes in as a text, its transcript comes out as lines. A
// script may be given line by line with something to do to the calculator before a line is read.
#pragma once

#include "desktops/headless/key_script.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace tallyforge {

using Lines = std::vector<std::string>;

/// A stream that runs a line's hook when the line is about to be read.
class HookedLines : public std::streambuf {
public:
    struct Line {
        std::string text;
        std::function<void()> before;
    };
    explicit HookedLines(std::vector<Line> given) : lines_(std::move(given)) {}

protected:
    int_type underflow() override {
        if (next_ == lines_.size()) {
            return traits_type::eof();
        }
        const Line& line = lines_[next_++];
        if (line.before) {
            line.before();
        }
        buffer_ = line.text + "\n";
        setg(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
        return traits_type::to_int_type(buffer_.front());
    }

private:
    std::vector<Line> lines_;
    std::size_t next_ = 0;
    std::string buffer_;
};

class ScriptTest : public testing::Test {
protected:
    /// Runs `text` on a calculator of its own that keeps the data folder of the test.
    ScriptEnd run(const std::string& text) {
        std::istringstream stream(text);
        return runStream(stream);
    }

    ScriptEnd runHooked(std::vector<HookedLines::Line> given) {
        HookedLines lines(std::move(given));
        std::istream stream(&lines);
        return runStream(stream);
    }

    /// The transcript of a script that must run to its end.
    Lines shown(const std::string& text) {
        EXPECT_EQ(run(text), ScriptEnd::Done) << text;
        EXPECT_EQ(complaints, Lines{}) << text;
        return out;
    }

    MainForm& form() { return script->calculator().engine().form; }
    void open(Form& dialog) { script->calculator().engine().platform.showDialog(dialog); }

    TemporaryFolder folder;
    HeadlessOptions options{.data = folder.path, .home = folder.path};
    Lines out;
    Lines complaints;
    KeyScript* script = nullptr;

private:
    ScriptEnd runStream(std::istream& stream) {
        out.clear();
        complaints.clear();
        KeyScript running(
            options, [this](std::string_view line) { out.emplace_back(line); },
            [this](std::string_view line) { complaints.emplace_back(line); });
        script = &running;
        const ScriptEnd end = running.run(stream);
        script = nullptr;
        return end;
    }
};

}  // namespace tallyforge
