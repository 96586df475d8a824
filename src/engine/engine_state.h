// SPDX-License-Identifier: GPL-3.0-or-later
//
// The calculator's state: registers X and Y, the stack, last x, and the flags by which keys, entry
// line and commit talk to each other. A number travels one road: key handler, BeginEntry, entry
// line, commit (commit.h), stack, display, tape.
//
// What holds after every commit that was not taken back:
//   1. Stack[StackPtr-1] is Xreg, and Yreg is Stack[StackPtr-2].
//   2. EntryOpen and EexActive are false.
//   3. Stack[0] stays Empty unless a commit ran on an empty stack with EntryOpen false; Y is then 0.
//   4. Stack has at least StackPtr + 1 slots.
#pragma once

#include "engine/reset_bits.h"
#include "engine/tape_label.h"
#include "numbers/value_cell.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// Function keys on the bank, and memory registers.
inline constexpr int kBankKeys = 24;
inline constexpr int kRegisters = 24;

/// The three ways to show a number; also the index of the option keys `optFix`.
enum class DisplayMode : std::uint8_t { Fixed = 0, Scientific = 1, Engineering = 2 };
inline constexpr int kMaxDisplayDigits = 12;

/// How a number is to be shown.
struct NumberLook {
    DisplayMode mode = DisplayMode::Fixed;
    int digits = 2;
    char decimal = '.';
};

enum class AngleMode : std::uint8_t { Degrees, Radians, Grads };

/// Keypads by their id. The last four are transient and never part of the keypad cycle.
enum class Keypad : std::uint8_t {
    Standard = 0,
    Engineering = 1,
    Trigonometry = 2,
    Convert = 4,
    Magnetics = 8,
    Binary = 10,
    Tables = 20,
    Percent = 5,       ///< for one key press: key 4 means percent whatever keypad is shown
    Program = 11,      ///< Program mode
    MemoryArray = 12,  ///< the function keys are register keys
    LetterDrill = 21,  ///< overlay of the Tables keypad
};

/// What a save of the tape writes, or an undo reads (see tape_file.h).
enum class TapeFileKind : std::uint8_t {
    None = 0,
    Registers = 1,
    StackAndTape = 2,
    Everything = 3,
    Undo = 4,
    SavedByUser = 255,
};

/// Sentinels that a function leaves in Xreg.
inline constexpr const char* kNoMeaning = "XXX";    ///< this modifier has no meaning for the key
inline constexpr const char* kNothingDone = "ZZZ";  ///< nothing to commit

/// Most elements of the stack: a program that pushes without end stops here, long before the machine has no memory
/// for anything else.
inline constexpr int kMostElements = 1 << 20;

/// Registers X and Y, last x, and the stack.
struct StackState {
    /// Most bytes that the texts on the stack take together, about.
    static constexpr std::size_t kMostTextBytes = std::size_t{40} << 20U;

    ValueCell Xreg;
    ValueCell Yreg = ValueCell::zero();
    ValueCell LastX;
    std::vector<ValueCell> Stack = std::vector<ValueCell>(3);  ///< slot 0 lies under the stack; element 1 is the bottom
    int StackPtr = 1;                                          ///< next free slot; 1 is an empty stack
    int LowestStackPtr = 1;  ///< lowest StackPtr after a commit since the last statistics entry
    ValueCell KeepX;         ///< what a key that did nothing leaves in X; Empty for nothing

    [[nodiscard]] int depth() const { return StackPtr - 1; }
    /// Stack slot `slot`, or an Empty cell where there is none.
    [[nodiscard]] const ValueCell& slot(int slot) const {
        return slot >= 0 && static_cast<std::size_t>(slot) < Stack.size() ? Stack[static_cast<std::size_t>(slot)]
                                                                          : noCell();
    }
    /// A number can be committed at `place` over plain numbers, without more memory.
    [[nodiscard]] bool takesNumberAt(int place) const {
        const ValueCell* const cell = Stack.data() + place;
        return place > 0 && static_cast<std::size_t>(place) + 2 < Stack.size() && !cell->isText() && !Xreg.isText() &&
               !Yreg.isText() && (cell - 1)->isNumberOrEmpty();
    }
    /// Makes slots for a commit at `place`: a recalled value goes up by two, over the X that is there,
    /// with a free slot above it. Raises std::bad_alloc for one element too many; nothing has changed then.
    void makeRoom(int place) {
        if (place > kMostElements) {
            throw std::bad_alloc{};
        }
        const auto wanted = static_cast<std::size_t>(place) + 3;
        if (Stack.size() < wanted) {
            Stack.resize(wanted);
        }
    }

    /// Before a text of `size` characters goes on the stack. Raises std::bad_alloc where the texts on
    /// it take all that they may.
    void expectText(std::size_t size);

    /// The same as an operand: an empty one counts as 0.
    [[nodiscard]] ValueCell operand(int slotNumber) const;

private:
    [[nodiscard]] static const ValueCell& noCell();
    void countTexts();

    std::size_t untilCount_ = kMostTextBytes;  ///< bytes of texts that may come before they are counted again
};

/// How the coming number is written, where the format is a fixed one.
enum class WrittenAs : std::uint8_t { Number, Text, MinutesAndSeconds };

/// What a function leaves beside X for the commit that follows it; the commit takes it.
struct DeliveryState {
    TapeLabel FnLabel;  ///< label of the coming tape line
    WrittenAs writtenAs = WrittenAs::Number;
};

/// The entry line.
struct EntryState {
    bool EntryOpen = false;  ///< the coming commit pushes; false: it replaces the top
    bool EntryTouched = false;
    bool EexActive = false;       ///< the entry line holds an exponent
    bool BaseTagDue = false;      ///< a "#" was typed, its base letter is still to come
    bool BaseNumberDone = false;  ///< the entry line holds a whole number of a base
    bool DigitTyped = false;
    std::string BaseLetter;  ///< last base letter typed
    char Dropped = '\0';     ///< what the key before typed and the line refused; 0 for nothing
};

struct ModifierState {
    std::uint8_t ModifierMask = 0;
    bool ModifierLatched = false;  ///< chosen on screen, waits for a key
    bool CtrlHeld = false;
    bool ShiftCtrlHeld = false;
    bool NoKeyPaint = false;           ///< captions stay as they are under a modifier
    bool SkipModifierRelease = false;  ///< the next key-up does not repaint
};

struct ModeState {
    Keypad ActiveKeypad = Keypad::Standard;
    bool BaseMode = false;
    bool BaseSuspended = false;  ///< BaseMode is lifted for one key
    bool QuizMode = false;
    bool ProgramMode = false;
    bool MemoryArrayMode = false;
    bool TablesShown = false;
};

/// How numbers are read and shown.
struct FormatState {
    int DisplayDigits = 2;
    DisplayMode Mode = DisplayMode::Fixed;
    int SavedDigits = 2;
    DisplayMode SavedMode = DisplayMode::Fixed;
    bool DisplaySaved = false;
    DisplayMode RememberedMode = DisplayMode::Fixed;  ///< while the form is not the active one
    int WordSize = 64;
    char DecimalChar = '.';
    AngleMode Angle = AngleMode::Degrees;
    [[nodiscard]] NumberLook look() const { return {.mode = Mode, .digits = DisplayDigits, .decimal = DecimalChar}; }
    std::string BaseRemainder;  ///< remainder of the last base division, base form
};

/// Names of the files that the user works with, and what an undo would bring back.
struct FileState {
    TapeFileKind UndoKind = TapeFileKind::None;
    std::string TapeFileName;
    std::string MemoryFileName;
    std::string DefaultProgram;
    bool AutoLoadProgram = false;
};

/// Memory registers, by number 1 to 24 (slot 0 is unused); names by key index.
struct MemoryState {
    MemoryState();  ///< every register under its number

    std::array<ValueCell, kRegisters + 1> Registers;
    std::array<std::string, kBankKeys> RegisterNames;
    bool RegistersUsed = false;
};

struct WindowState {
    bool CompactForm = false;  ///< the display runs at other than 96 dots per inch
    int TapeRows = 7;
    bool ViewExtended = false;
    bool ShowYField = false;
    bool ShowLastxField = false;
    bool TallForm = false;
    int BasicHeight = 6200;  ///< height of the plain form, twips
    bool FormActive = false;
    int SavedTop = 0;
    int SavedLeft = 0;
    int LastTop = 0;
    int LastLeft = 0;
};

/// What the functions share with Reset and the settings.
struct FunctionState {
    /// Multi-input functions that have still to clear their stored inputs, one bit each.
    std::uint32_t FunctionResetMask = static_cast<std::uint32_t>(ResetBit::All);
    /// Whether a Reset has happened since this was last asked for `bit`.
    [[nodiscard]] bool takeReset(ResetBit bit) {
        const auto own = static_cast<std::uint32_t>(bit);
        const bool due = (FunctionResetMask & own) != 0;
        FunctionResetMask &= ~own;
        return due;
    }
    float TaxRate = 7.75F;
    bool RightTriangleHasAngle = false;  ///< the key of the angles is hidden until it is solved
};

/// A text that outlives the calculator: a literal, or one from a table. Set at each key, so not copied.
class LastingText {
public:
    LastingText() = default;
    // NOLINTBEGIN(google-explicit-constructor): set by plain assignment
    LastingText(const char* text) : text_(text) {}
    LastingText(std::string_view text) : text_(text) {}
    LastingText(const std::string& text) = delete;
    operator std::string_view() const { return text_; }
    // NOLINTEND(google-explicit-constructor)

private:
    std::string_view text_;
};

struct EngineState {
    StackState stack;
    DeliveryState delivery;
    EntryState entry;
    ModifierState modifiers;
    ModeState modes;
    FormatState format;
    FileState files;
    MemoryState memory;
    WindowState window;
    FunctionState functions;
    LastingText CurrentProc;  ///< last procedure that stored its name; titles of messages
};

/// The register that a key of the bank stands for in memory array mode, 1 to 24.
[[nodiscard]] int registerOfKey(int keyIndex);
/// The key of a register, 0 to 23.
[[nodiscard]] int keyOfRegister(int registerNumber);
/// The name that the register of a key has until it is renamed: its number, four characters wide.
[[nodiscard]] std::string defaultRegisterName(int keyIndex);

}  // namespace tallyforge
