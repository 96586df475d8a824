// SPDX-License-Identifier: GPL-3.0-or-later
//
// A whole calculator on a test platform, typed and clicked as by a hand.
#pragma once

#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "shell/calculator.h"
#include "support/test_platform.h"
#include "support/typing.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class CalculatorAtHand {
public:
    CalculatorAtHand() { start(); }

    /// Ends the program and starts it again on the same data folder.
    void start() {
        calculator = std::make_unique<Calculator>(platform);
        calculator->start();
    }
    [[nodiscard]] Engine& calc() const { return calculator->engine(); }
    [[nodiscard]] EngineState& s() const { return calc().s; }
    [[nodiscard]] MainForm& form() const { return calc().form; }

    void press(int keyCode, int character = 0, std::uint8_t shift = 0) const {
        strike(form(), keyCode, character, shift);
    }
    void type(std::string_view text) const { strikeAll(form(), text); }
    void enter(std::string_view text) const {
        type(text);
        press(kKeyEnter, 13);
    }
    void clickWith(std::uint8_t mask, Control& control) const {
        if (mask != 0) {
            holdModifiers(form(), mask);
        }
        click(form(), control);
        if (mask != 0) {
            releaseModifiers(form());
        }
    }
    void choose(Control& control) const { clickWith(0, control); }

    [[nodiscard]] std::string x() const { return calc().text(s().stack.Xreg); }
    [[nodiscard]] std::string reg(std::size_t number) const { return calc().text(s().memory.Registers.at(number)); }
    [[nodiscard]] std::vector<std::string> tape() const {
        std::vector<std::string> lines;
        for (auto row = static_cast<std::size_t>(calc().tape.fillers()); row < calc().tape.count(); ++row) {
            lines.push_back(calc().tape.row(row));
        }
        return lines;
    }
    [[nodiscard]] std::string file(const std::string& name) const {
        std::ifstream in(platform.folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void writeFile(const std::string& name, std::string_view bytes) const {
        std::ofstream(platform.folder / name, std::ios::binary) << bytes;
    }
    /// Stack, small registers and tape, as text; a save and a retrieval must bring them back.
    [[nodiscard]] std::vector<std::string> stackAndTape() const {
        // An X, Y or last x that there is none of comes back as 0.
        const auto orZero = [this](const ValueCell& cell) {
            const std::string text = calc().text(cell);
            return text.empty() ? "0" : text;
        };
        std::vector<std::string> all{orZero(s().stack.Xreg), orZero(s().stack.Yreg), orZero(s().stack.LastX),
                                     std::to_string(s().stack.StackPtr)};
        for (int element = 1; element < s().stack.StackPtr; ++element) {
            all.push_back(calc().text(s().stack.slot(element)));
        }
        for (std::size_t row = 0; row < calc().tape.count(); ++row) {
            all.push_back(calc().tape.row(row) + "=" + calc().text(calc().tape.value(row)));
        }
        return all;
    }
    /// The memory registers and their names, as text.
    [[nodiscard]] std::vector<std::string> registers() const {
        std::vector<std::string> all;
        for (int number = 1; number <= kRegisters; ++number) {
            // A register that reads as 0 comes back empty.
            const ValueCell& cell = s().memory.Registers.at(static_cast<std::size_t>(number));
            all.push_back(cell.tryNumber(s().format.DecimalChar) == 0.0 ? "" : calc().text(cell));
        }
        for (std::string name : s().memory.RegisterNames) {
            // In a file a name is filled up with blanks.
            name.erase(name.find_last_not_of(' ') + 1);
            all.push_back(name);
        }
        return all;
    }
    /// Everything that a save and a retrieval must bring back, as text.
    [[nodiscard]] std::vector<std::string> everything() const {
        auto all = stackAndTape();
        const auto others = registers();
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }

    TestPlatform platform;
    std::unique_ptr<Calculator> calculator;
};

}  // namespace tallyforge
