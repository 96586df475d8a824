// SPDX-License-Identifier: GPL-3.0-or-later
//
// The arithmetic quiz. It takes over the calculator for its length: one key of the bank is left,
// which takes the greatest number to be used and then the answers; everything that could disturb
// is switched off. Ending it, by its key, by Reset or by closing, gives everything back.
#pragma once

#include "engine/engine_state.h"
#include "engine/key_names.h"
#include "platform/form.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

class Quiz {
public:
    explicit Quiz(Engine& calculator) : calc(calculator) {}

    /// The key of the bank that runs the quiz.
    static constexpr int kKey = key::QuizSum;

    /// Plain: addition, Shift: subtraction. While the quiz runs plain takes the number that was
    /// put on the stack, and Ctrl+Alt ends.
    void quizKey();
    /// Starts multiplication or division.
    void multiply();
    void divide();

    [[nodiscard]] bool running() const { return running_; }
    /// Gives back what the quiz has taken; nothing where none runs. Commits nothing.
    void end();

private:
    /// What a control was like before.
    struct Kept {
        Control* control = nullptr;
        bool visible = true;
        bool enabled = true;
    };

    void start(int operation);
    void takeOver();
    void dressKey(std::string_view caption, std::string_view tip);
    void takeNumber();
    void takeMaximum();
    void takeAnswer();
    void makeProblem();
    void poseProblem();
    void sayScore();
    void stop();
    void ignore();

    Engine& calc;
    bool running_ = false;
    int QuizOp = 0;  ///< 2 add, 3 subtract, 4 multiply, 5 divide; 10 more while the maximum is awaited
    int QuizMax = 0;
    int QuizA = 0;
    int QuizB = 0;
    int QuizAnswer = 0;
    std::string QuizText;  ///< label of the problem
    int QuizAsked = 0;
    int QuizRight = 0;
    int QuizWrong = 0;
    int ownTop_ = 0;  ///< StackPtr as the quiz has left it; what lies above was put there as input
    std::vector<Kept> kept_;
    bool keptNoKeyPaint_ = false;
    DisplayMode keptMode_ = DisplayMode::Fixed;
    int keptDigits_ = 2;
};

}  // namespace tallyforge
