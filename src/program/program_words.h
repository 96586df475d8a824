// SPDX-License-Identifier: GPL-3.0-or-later
//
// The words of the language: statements, which a line or a word is tested for in the order of
// their table, and function words, each of which stands for one press of a calculator key.
#pragma once

#include "engine/engine_state.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tallyforge {

enum class Statement {
    None,
    Trac,
    Stop,
    Cbld,
    Bold,
    Umsg,
    Gsb,
    Glb,
    SetFlag,
    ClearFlag,
    TestFlag,
    Pause,
    Format,  ///< fix, sci, eng: notes the format, then runs as a function word
    Dsp,
    Name,
    Reset,
    Aset,
    End,
    EndIf,
    If,
    Sto,
    Rcl,
    X,
    Y,
    Seed,
    Kill,
};

struct StatementRow {
    std::string_view word;
    bool whole;  ///< the line is the word and nothing else; false: it begins with the word
    Statement statement;
};

/// In the order in which a line is tested.
[[nodiscard]] std::span<const StatementRow> statementRows();
/// The statement that `text`, in small letters, is; None for a number, a name or a function word.
[[nodiscard]] Statement statementOf(std::string_view text);

/// Keys that are no function keys of a keypad.
enum class DirectKey {
    None,
    ProgramMode,
    Reset,
    ClearRegisters,
    ResetAll,
    Drop,
    Exchange,
    ChangeSign,
    Store,
    Recall,
    Enter,
    LastX,
    Degrees,
    Radians,
    Grads,
    Fixed,
    Scientific,
    Engineering,
    Divide,
    Multiply,
    Subtract,
    Add,
};

/// Mask of a word that leaves the modifiers as they stand.
inline constexpr int kMaskAsItStands = -1;

struct FunctionWord {
    std::string_view word;
    DirectKey direct = DirectKey::None;
    // A function key: the row of its keypad, pressed with the modifiers of `mask`.
    Keypad keypad = Keypad::Standard;
    int key = -1;
    int mask = kMaskAsItStands;
};

[[nodiscard]] std::span<const FunctionWord> functionWords();
/// The row of `word`, in small letters; nullptr where it is no function word.
[[nodiscard]] const FunctionWord* findFunction(std::string_view word);

/// What a word is in the "if" grammar.
enum class OperatorClass { None, Math, Equal, Order, Then };

struct Operator {
    OperatorClass kind = OperatorClass::None;
    std::string_view text{};  ///< "<=" counts as "<", ">=" as ">"
};
/// The operator that `word` begins with.
[[nodiscard]] Operator ClassifyOperator(std::string_view word);

}  // namespace tallyforge
