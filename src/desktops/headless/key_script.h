// SPDX-License-Identifier: GPL-3.0-or-later
//
// Key scripts: one action a line, done to the calculator as a hand would do it, and what the eye
// sees printed. The runner knows no more than the form does.
#pragma once

#include "desktops/headless/headless_platform.h"
#include "shell/calculator.h"

#include <functional>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// How a script ended, as the exit status of the program that ran it.
enum class ScriptEnd : int { Done = 0, ExpectFailed = 1, WrongScript = 2 };

class KeyScript {
public:
    using Print = HeadlessPlatform::Print;

    /// Output lines go to `printLine`, complaints about the script to `complain`.
    KeyScript(HeadlessOptions options, Print printLine, Print complain);

    /// For a calculator that stands already, on a platform that has `desk` answer in its place. The
    /// script cannot end or restart it.
    KeyScript(Calculator& calculator, HeadlessPlatform& desk, Print printLine, Print complain);

    /// Runs the script to its end.
    ScriptEnd run(std::istream& script);

    /// The script has ended while this dialog is open; called for the topmost one.
    std::function<void(Form&)> leftOpen;

    [[nodiscard]] Calculator& calculator() { return *calculator_; }

private:
    struct Wrong {
        std::string reason;
    };
    using Action = void (KeyScript::*)(std::string_view rest);
    struct Word;
    static const std::vector<Word>& words();

    void start();
    bool step(std::istream& script);
    void perform(std::string_view line);
    void driveDialog(Form& dialog);
    void noteEnd();
    [[nodiscard]] Form& form() const;

    void type(std::string_view text);
    void key(std::string_view rest);
    void hold(std::string_view modifiers);
    void release(std::string_view rest);
    void clickControl(std::string_view rest);
    void doubleClickRow(std::string_view rest);
    void rightClickControl(std::string_view rest);
    void menu(std::string_view name);
    void close(std::string_view rest);
    void answer(std::string_view rest);
    void clipboard(std::string_view text);
    void restart(std::string_view rest);
    void restartProgram();
    void show(std::string_view words);
    void expect(std::string_view line);

    struct Target {
        Control* control = nullptr;
        int row = -1;
        std::uint8_t shift = 0;
    };
    [[nodiscard]] Target target(std::string_view text) const;
    /// Row of the list that `at` names.
    [[nodiscard]] std::size_t rowOf(const Target& at) const;
    template <typename Act>
    void withModifiers(std::uint8_t shift, Act act);
    void repeatHeld();

    HeadlessOptions options_;
    Print printLine_;
    Print complain_;
    std::unique_ptr<HeadlessPlatform> ownPlatform_;
    std::unique_ptr<Calculator> ownCalculator_;
    HeadlessPlatform* platform_ = nullptr;
    Calculator* calculator_ = nullptr;
    bool isGuest_ = false;  ///< the calculator is another's
    std::istream* script_ = nullptr;
    Form* dialog_ = nullptr;
    std::vector<std::string> shown_;
    std::uint8_t held_ = 0;
    int lineNumber_ = 0;
    bool ended_ = false;
    bool restartDue_ = false;
    bool expectFailed_ = false;
};

}  // namespace tallyforge
