// SPDX-License-Identifier: GPL-3.0-or-later
//
// One run of a program: the section of a label, line by line and word by word, until its "end".
#pragma once

#include "program/key_words.h"
#include "program/program_faults.h"
#include "program/program_mode.h"
#include "program/program_text.h"
#include "program/trace.h"

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

/// What runs share that run inside one another (a "reset" runs "init").
struct RunControl {
    int running = 0;
    bool interrupted = false;  ///< the user has ended the run
    int words = 0;             ///< since the desktop was last asked
    std::chrono::steady_clock::time_point asked{};
};

class ProgramRun {
public:
    struct Tools {
        Engine& calc;
        ProgramState& state;
        ProgramMode& mode;
        KeyWords& keys;
        RunControl& control;
    };

    ProgramRun(Tools runTools, std::shared_ptr<ProgramText> programText, bool isInit)
        : tools(runTools),
          calc(runTools.calc),
          state(runTools.state),
          text(std::move(programText)),
          trace_(runTools.calc, runTools.state),
          init_(isInit) {}

    /// Runs the section of `label` to its end. Raises ProgramFault, and Failure where a word does.
    void run(const std::string& label);
    /// Puts back the format and the digits that the run has changed.
    void restoreFormat();

    /// Number of the line last read, for messages.
    [[nodiscard]] int lineNumber() const { return lineNumber_; }
    [[nodiscard]] bool killed() const { return killed_; }

private:
    struct Return {
        int position;
        int lineNumber;
    };
    using Words = std::vector<ProgramWord>;

    void goOneLineOn();
    WrittenLine nextLine();
    [[nodiscard]] const ProgramLine& takenApart();
    void runLine(const ProgramLine& line);
    void runBehindIf(const ProgramLine& line);
    void runIf(const ProgramLine& line);
    void expressionOrAssignment(const ProgramLine& line);
    void assign(const ProgramLine& line);
    void executeAll(const Words& words, std::size_t from, int storeTo = -1);

    void executeWord(const ProgramWord& word);
    void executeStatement(const ProgramWord& word);
    void pressFunction(const FunctionWord& word, int registerNumber = 0);
    void pushNumber(double number);
    /// `value` has made the trip through its text when it was stored.
    void pushVariable(double value);
    void pushCopy(const ValueCell& cell);
    void roundTrip();

    void compare(const ProgramWord& word);
    void pushSeconds();  ///< of the day
    void trac(const ProgramWord& word);
    void listVariables();
    void mark(const ProgramWord& word, bool bold);
    void showMessage();
    void jump(const ProgramWord& word, bool returns);
    void findLabel(const std::string& label);
    void flag(const ProgramWord& word);
    void testFlag(int number);
    void pause(const ProgramWord& word);
    void rename(const ProgramWord& word);
    void reset(const ProgramWord& word);
    void endOfSection();
    void memory(const ProgramWord& word);
    void digits(const ProgramWord& word);
    void stop();
    void breathe();
    void tick();
    [[nodiscard]] int operand(const ProgramWord& word) const;
    [[nodiscard]] double numberInX() const;
    [[nodiscard]] std::string shown(const ValueCell& cell) const;
    [[nodiscard]] std::string nearLine() const;
    [[nodiscard]] bool over() const { return ended_ || tools.control.interrupted; }

    Tools tools;
    Engine& calc;
    ProgramState& state;
    std::shared_ptr<ProgramText> text;
    Trace trace_;
    bool init_;

    int position_ = 0;    ///< line last read
    int lineNumber_ = 0;  ///< the same for messages; the list of variables leaves it changed
    static constexpr std::size_t kDeepest = 9;
    std::vector<Return> returns_;
    bool ended_ = false;
    bool killed_ = false;
    bool behindIf_ = false;
    std::size_t tokensOfIf_ = 0;
    /// The words that a bare "rcl" takes its number from, and the place among them.
    const Words* row_ = nullptr;
    std::size_t at_ = 0;
    std::optional<DisplayMode> formatBefore_;
    std::optional<int> digitsBefore_;
};

}  // namespace tallyforge
