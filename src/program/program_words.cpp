// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_words.h"

#include "engine/key_names.h"

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
constexpr FunctionWord standard(std::string_view word, int index, int mask = kMaskAsItStands) {
    return {.word = word, .keypad = Keypad::Standard, .key = index, .mask = mask};
}
constexpr FunctionWord trig(std::string_view word, int index, int mask = kMaskAsItStands) {
    return {.word = word, .keypad = Keypad::Trigonometry, .key = index, .mask = mask};
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

    standard("1/x", key::Reciprocal),
    standard("sqr", key::Square),
    standard("sqrt", key::SquareRoot),
    standard("pi", key::Pi),
    standard("^", key::Power),
    standard("rnd", key::Round),
    standard("int", key::Round, 1),
    standard("frc", key::Round, 2),
    standard("p>r", key::Polar),
    standard("r>p", key::Polar, 1),
    standard("ln", key::NaturalLog),
    standard("aln", key::NaturalLog, 1),
    standard("log", key::CommonLog),
    standard("alog", key::CommonLog, 1),
    standard("n!", key::Factorial, 0),
    standard("n.!", key::Factorial, 1),
    standard("gamma", key::Factorial, 2),

    trig("m>d", key::Hours),
    trig("d>m", key::Hours, 1),
    trig("h+m", key::Hours, 2),
    trig("sinh", key::HyperbolicSine),
    trig("asinh", key::HyperbolicSine, 1),
    trig("sech", key::HyperbolicSine, 2),
    trig("asech", key::HyperbolicSine, 3),
    trig("sec", key::Secant),
    trig("asec", key::Secant, 1),
    trig("cot", key::Cotangent),
    trig("acot", key::Cotangent, 1),
    trig("csc", key::Cosecant),
    trig("acsc", key::Cosecant, 1),
    trig("r>d", key::AngleUnits),
    trig("d>r", key::AngleUnits, 1),
    trig("d>g", key::AngleUnits, 2),
    trig("g>d", key::AngleUnits, 3),
    trig("r>g", key::AngleUnits, 4),
    trig("g>r", key::AngleUnits, 5),
    trig("tanh", key::HyperbolicTangent),
    trig("atanh", key::HyperbolicTangent, 1),
    trig("coth", key::HyperbolicTangent, 2),
    trig("acoth", key::HyperbolicTangent, 3),
    trig("cosh", key::HyperbolicCosine),
    trig("acosh", key::HyperbolicCosine, 1),
    trig("csch", key::HyperbolicCosine, 2),
    trig("acsch", key::HyperbolicCosine, 3),
    trig("tan", key::Tangent),
    trig("atan", key::Tangent, 1),
    trig("cos", key::Cosine),
    trig("acos", key::Cosine, 1),
    trig("sin", key::Sine),
    trig("asin", key::Sine, 1),
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
