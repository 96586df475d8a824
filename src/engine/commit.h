// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commit: the one step by which every number reaches the stack, and the few operations around
// it. Functions leave a result in Xreg and a label in FnLabel; nothing but the commit changes the
// top of the stack for good. Four ways to deliver a result:
//   one operand    FetchX, set Xreg and FnLabel: the dispatch commits, and the top is replaced
//   two operands   the same with StackPtr lowered by one before the commit
//   pushing        set Xreg and FnLabel, PushResult
//   no value       Xreg = "ZZZ" and return
// Who is no function of the bank hands value, label and place to deliver().
#pragma once

#include "engine/tape.h"
#include "numbers/failure.h"
#include "numbers/value_cell.h"

#include <cstdint>
#include <string_view>

namespace tallyforge {

class Engine;

/// In the place of the topmost element, or above it.
enum class OnStack : std::uint8_t { ReplacesTop, Pushes };

/// What a caller wants committed.
struct Delivery {
    ValueCell value{};
    std::string_view label{};  ///< of the tape line
    OnStack place = OnStack::ReplacesTop;
    bool keepText = false;  ///< what stands in the entry line stays
};

class Commit {
public:
    explicit Commit(Engine& calculator) : calc(calculator) {}

    /// The click of the Enter key: commits what the entry line holds; on an empty line it duplicates
    /// X. Raises nothing: failures are shown in a box and repaired.
    void cmdEnter_Click() { commit({}); }
    /// Commits a value, whatever the entry line holds. Raises nothing.
    void deliver(Delivery delivery);
    /// Commits X under the label, and to the place, that a function has left with it. Raises nothing.
    void deliverX() { commit({.fromEntry = false}); }

    /// Nobody watches, and nothing is typed, held, latched or lit: a plain number needs no more than
    /// its place on the stack and its line of the tape.
    [[nodiscard]] bool quiet() const { return quiet_; }
    /// Looks whether it is so. It stays so until wake(), and while only plain numbers are committed.
    void settle();
    /// Something else comes: the next commit takes every step.
    void wake() { quiet_ = false; }

    /// The commit of a plain number at slot `place`, while it is quiet(): X, Y, the stack and the tape.
    /// Returns false, and has changed nothing, where the number needs more than one line.
    [[nodiscard]] bool put(double number, int place, KnownLabel label) {
        const bool fits = !label.wide || fitsBesideLabel(number);
        if (fits) {
            store(number, place, label.id);
        }
        return fits;
    }

    /// What the commit does with the text of `number` in the entry line while a program runs,
    /// without the text. `number` must be one that fifteen digits show in full.
    void enterStored(double number);
    /// Pushes `number` as Enter does on an empty entry line; it is last x, too.
    void pushCopy(double number);

    /// Pushes an X that was brought back from a list or the clipboard: the entry line is empty, so
    /// the commit takes X as it stands and goes up by one.
    void pushRecalled();

    /// Delivers X as a new stack element where there is no entry to consider. Chooses digits with
    /// AutoDigits unless it `keepsDigits`; the user's format is as before afterwards.
    void PushResult(bool keepsDigits = false);

    /// Brings the operand into X: commits a number that is still being typed, with a tape line unless
    /// `silently`, else takes the top of the stack. First call of every key function. Returns false where what was
    /// typed is no number (the box has said so): there is no operand then, and the function is not to run.
    [[nodiscard]] bool FetchX(bool silently = false);

    /// Before the first character of a number reaches the entry line.
    void BeginEntry();

    /// Engineering format with three digits for a result of 10000 or more, or below 1; two digits
    /// for 0. Leaves the format alone for all others. Raises 13 for a text that is no number.
    void AutoDigits();

    /// Writes a line of text on the tape and sets X to 0.
    void TapeLine(std::string_view text);

    /// Lowers the depth by `operands` - 1, for a function that has taken so many. A stack too short
    /// is taken as holding zeros; where it held an element, one is left for the result.
    void lowerStack(int operands);

    /// Lets Drop, x<>y, last x and REG be pressed, as they may be once there is an element.
    void enableStackKeys();

    /// Writes the last-x and y fields.
    void ShowSmallRegs();

private:
    /// What one commit does beside storing.
    struct Manner {
        bool fromEntry = true;  ///< what is typed becomes X first
        bool tapeLine = true;
        bool keepText = false;
    };
    void commit(Manner manner);
    [[nodiscard]] int placeOfX(bool fromEntry) const;
    [[nodiscard]] bool commitQuietly(bool fromEntry);
    void readEntry(Manner manner, ValueCell& savedLastX);
    [[nodiscard]] bool fitsBesideLabel(double number) const;
    void store(double number, int place, LabelId label);
    void storeInPlace(double number, int place, LabelId label);
    void storeWithCare(double number, int place, LabelId label);
    void letStackKeysBePressed();
    void noteNumber(double number, int place, LabelId label);
    void storeOnStack();
    void showAndFinish(Manner manner, const ValueCell& savedLastX);
    void takeBack(const ValueCell& savedLastX);
    void endExponent();
    void onFailure(const Failure& failure);

    Engine& calc;
    bool quiet_ = false;
    bool refused_ = false;  ///< the last entry was no number and has been taken back
};

}  // namespace tallyforge
