// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_words.h"

#include <algorithm>
#include <array>

namespace tallyforge {

namespace {

constexpr std::array<StatementRow, 27> kStatements{{
    {"trac", false, Statement::Trac},    {"stop", true, Statement::Stop},    {"cbld", false, Statement::Cbld},
    {"bold", false, Statement::Bold},    {"umsg", true, Statement::Umsg},    {"gsb", false, Statement::Gsb},
    {"glb", false, Statement::Glb},      {"sf-", false, Statement::SetFlag}, {"cf-", false, Statement::ClearFlag},
    {"tf-", false, Statement::TestFlag}, {"pause", false, Statement::Pause}, {"fix", true, Statement::Format},
    {"sci", true, Statement::Format},    {"eng", true, Statement::Format},   {"dsp", false, Statement::Dsp},
    {"name", false, Statement::Name},    {"reset", false, Statement::Reset}, {"aset", false, Statement::Aset},
    {"end", true, Statement::End},       {"endif", true, Statement::EndIf},  {"if", false, Statement::If},
    {"sto", false, Statement::Sto},      {"rcl", false, Statement::Rcl},     {"x", true, Statement::X},
    {"y", true, Statement::Y},           {"seed", true, Statement::Seed},    {"kill", true, Statement::Kill},
}};

constexpr FunctionWord direct(std::string_view word, DirectKey key) {
    return {.word = word, .direct = key};
}
constexpr FunctionWord standard(std::string_view word, int key, int mask = kMaskAsItStands) {
    return {.word = word, .keypad = Keypad::Standard, .key = key, .mask = mask};
}
constexpr FunctionWord trig(std::string_view word, int key, int mask = kMaskAsItStands) {
    return {.word = word, .keypad = Keypad::Trigonometry, .key = key, .mask = mask};
}

constexpr std::array kFunctions{
    direct("kill", DirectKey::ProgramMode),
    direct("reset", DirectKey::Reset),
    direct("cset", DirectKey::ClearRegisters),
    direct("aset", DirectKey::ResetAll),
    direct("drop", DirectKey::Drop),
    direct("x~y", DirectKey::Exchange),
    direct("chs", DirectKey::ChangeSign),
    direct("sto", DirectKey::Store),
    direct("rcl", DirectKey::Recall),
    direct("enter", DirectKey::Enter),
    direct("lstx", DirectKey::LastX),
    direct("deg", DirectKey::Degrees),
    direct("rad", DirectKey::Radians),
    direct("grad", DirectKey::Grads),
    direct("fix", DirectKey::Fixed),
    direct("sci", DirectKey::Scientific),
    direct("eng", DirectKey::Engineering),
    direct("/", DirectKey::Divide),
    direct("*", DirectKey::Multiply),
    direct("-", DirectKey::Subtract),
    direct("+", DirectKey::Add),

    standard("1/x", 0),
    standard("sqr", 1),
    standard("sqrt", 2),
    standard("pi", 3),
    standard("^", 5),
    standard("rnd", 11),
    standard("int", 11, 1),
    standard("frc", 11, 2),
    standard("p>r", 12),
    standard("r>p", 12, 1),
    standard("ln", 14),
    standard("aln", 14, 1),
    standard("log", 15),
    standard("alog", 15, 1),
    standard("n!", 23, 0),
    standard("n.!", 23, 1),
    standard("gamma", 23, 2),

    trig("m>d", 4),
    trig("d>m", 4, 1),
    trig("h+m", 4, 2),
    trig("sinh", 6),
    trig("asinh", 6, 1),
    trig("sech", 6, 2),
    trig("asech", 6, 3),
    trig("sec", 7),
    trig("asec", 7, 1),
    trig("cot", 9),
    trig("acot", 9, 1),
    trig("csc", 10),
    trig("acsc", 10, 1),
    trig("r>d", 16),
    trig("d>r", 16, 1),
    trig("d>g", 16, 2),
    trig("g>d", 16, 3),
    trig("r>g", 16, 4),
    trig("g>r", 16, 5),
    trig("tanh", 17),
    trig("atanh", 17, 1),
    trig("coth", 17, 2),
    trig("acoth", 17, 3),
    trig("cosh", 18),
    trig("acosh", 18, 1),
    trig("csch", 18, 2),
    trig("acsch", 18, 3),
    trig("tan", 20),
    trig("atan", 20, 1),
    trig("cos", 21),
    trig("acos", 21, 1),
    trig("sin", 22),
    trig("asin", 22, 1),
};

}  // namespace

std::span<const StatementRow> statementRows() {
    return kStatements;
}

Statement statementOf(std::string_view text) {
    const auto* const found = std::find_if(kStatements.begin(), kStatements.end(), [text](const StatementRow& row) {
        return row.whole ? text == row.word : text.starts_with(row.word);
    });
    return found == kStatements.end() ? Statement::None : found->statement;
}

std::span<const FunctionWord> functionWords() {
    return kFunctions;
}

const FunctionWord* findFunction(std::string_view word) {
    const auto* const found = std::find_if(kFunctions.begin(), kFunctions.end(),
                                           [word](const FunctionWord& row) { return row.word == word; });
    return found == kFunctions.end() ? nullptr : found;
}

Operator ClassifyOperator(std::string_view word) {
    if (word.empty()) {
        return {};
    }
    switch (word.front()) {
        case '*':
        case '/':
        case '-':
        case '+':
        case '^':
            return {OperatorClass::Math, word.substr(0, 1)};
        case '=':
            return {OperatorClass::Equal, word.substr(0, 1)};
        case '<':
        case '>':
            return {OperatorClass::Order, word.substr(0, word.size() > 1 && word[1] == '>' ? 2 : 1)};
        default:
            return word == "then" ? Operator{OperatorClass::Then, word} : Operator{};
    }
}

}  // namespace tallyforge
