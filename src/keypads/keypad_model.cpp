// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/keypad_model.h"

#include "dialogs/unit_choice.h"
#include "electrical/drills.h"
#include "engine/engine.h"
#include "numbers/word_size.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallyforge {

namespace {

constexpr std::size_t kLongestHistory = 7;

/// Writes what differs only: a renderer then sees only what changed.
template <typename Held, typename Wanted>
void assign(Held& held, const Wanted& wanted) {
    if (held != wanted) {
        held = wanted;
    }
}

void write(Control& key, const KeyCaption& caption) {
    assign(key.text, caption.text);
    assign(key.font, Font{.face = caption.face, .points = caption.points});
    key.visible = true;
}

void look(Control& key, const KeyCaption& caption, std::string_view tip, KeyColour colour) {
    write(key, caption);
    assign(key.tip, tip);
    key.colour = colour;
}

void hideWhereDue(Control& key, const KeyRow& row, const EngineState& state) {
    if (row.hidden != nullptr && row.hidden(state)) {
        key.visible = false;
    }
}

bool unitsMatter(Keypad keypad) {
    return keypad == Keypad::Engineering || keypad == Keypad::Magnetics;
}

}  // namespace

KeypadModel::KeypadModel(Engine& calculator) : calc(calculator) {}

void KeypadModel::show(Keypad keypad) {
    if (calc.s.modes.MemoryArrayMode || calc.s.modes.ProgramMode) {
        return;
    }
    lay(keypad);
    remember(keypad);
    showHint(keypad);
}

void KeypadModel::lay(Keypad keypad) {
    EngineState& s = calc.s;
    s.modes.TablesShown = false;
    calc.form.cmdF11.enabled = true;
    calc.form.cmdF12.enabled = true;
    if (keypad == Keypad::LetterDrill || s.modes.ActiveKeypad == Keypad::LetterDrill) {
        overlayBank(keypad == Keypad::LetterDrill);
    }
    s.modes.ActiveKeypad = keypad;
    if (s.modes.BaseMode && keypad != Keypad::Binary) {
        leaveBinary();
    } else if (!s.modes.BaseMode && keypad == Keypad::Binary) {
        enterBinary();
    }
    writeHint(keypad);
    assign(calc.form.lblBank.text, keypad == Keypad::LetterDrill ? "Letter Drills" : keypadTable(keypad).name);
    paintPlain();
    tickMenu(keypad);
    s.modes.TablesShown = keypad == Keypad::Tables;
}

// The label beside the keypad's name.
void KeypadModel::writeHint(Keypad keypad) {
    Control& hint = calc.form.lblCnvrt;
    hint.visible = keypad == Keypad::Convert || keypad == Keypad::LetterDrill;
    hint.font.points = 8.0F;
    // At the far end, clear of a longer name.
    hint.rightAligned = keypad == Keypad::LetterDrill;
    if (keypad == Keypad::Convert) {
        hint.text = "Use Alt Click to save Cnv. Fctr.";
        hint.tip = " Conversion Factor saved to Reg 2 ";
    } else if (keypad == Keypad::LetterDrill) {
        hint.text = "F9 or KP\nto Exit!";
        hint.tip.clear();
    }
}

// While the letters lie on the bank the way out is by F9 or the arrows.
void KeypadModel::overlayBank(bool letters) {
    calc.form.enableKeypadMenu(!letters);
    calc.form.cmdF11.enabled = !letters;
    calc.form.cmdF12.enabled = !letters;
}

void KeypadModel::paintLetterDrills() {
    for (int i = 0; i < kBankKeys; ++i) {
        look(calc.form.cmdFunctions.at(static_cast<std::size_t>(i)), KeyCaption{drillLetters(i)}, letterDrillTip(i),
             KeyColour::Plain);
    }
}

void KeypadModel::paintPlain() {
    const Keypad keypad = calc.s.modes.ActiveKeypad;
    if (keypad == Keypad::LetterDrill) {
        paintLetterDrills();
        return;
    }
    calc.display.enableByteKeys(keypad != Keypad::Binary || calc.s.format.WordSize >= kSmallestByteWord);
    const KeypadTable& table = keypadTable(keypad);
    for (const KeyRow& row : table.rows) {
        Control& key = calc.form.cmdFunctions.at(static_cast<std::size_t>(row.key));
        look(key, captionOf(row, 0), tipOf(table, row), row.colour);
        hideWhereDue(key, row, calc.s);
    }
    if (dressConversions && keypad == Keypad::Convert) {
        dressConversions();
    }
}

KeyCaption KeypadModel::captionOf(const KeyRow& row, std::uint8_t mask) const {
    if (row.captionNow != nullptr && chosenCaption) {
        if (const auto chosen = chosenCaption(row, mask); chosen) {
            return *chosen;
        }
    }
    return mask == 0 || row.common ? row.caption : row.under.at(mask);
}

// The bank is painted after every key, so that tips with units are composed once a choice.
std::string_view KeypadModel::tipOf(const KeypadTable& table, const KeyRow& row) {
    if (tips_.table != &table || tips_.units != calc.units) {
        tips_.table = &table;
        tips_.units = calc.units;
        for (const KeyRow& each : table.rows) {
            tips_.texts.at(static_cast<std::size_t>(each.key)) = withUnits(each.tip, calc.units);
        }
    }
    return tips_.texts.at(static_cast<std::size_t>(row.key));
}

void KeypadModel::enterBinary() {
    EngineState& s = calc.s;
    s.modes.BaseMode = true;
    calc.display.SaveDisplay(0);
    calc.display.writeDigitsCaption();
    calc.form.cmdChs.text = "Mod";
    calc.form.cmdChs.tip = " Recall last Remainder ";
}

void KeypadModel::leaveBinary() {
    calc.s.modes.BaseMode = false;
    calc.display.RestoreDisplay();
    calc.display.writeDigitsCaption();
}

bool KeypadModel::bankIsLent() const {
    const EngineState& s = calc.s;
    return s.modes.MemoryArrayMode || s.modes.ProgramMode || s.modes.QuizMode;
}

// Looks only: a short cut lends a function of another keypad for one key, and neither the base
// mode nor the menu may notice.
void KeypadModel::repaint() {
    if (calc.s.modes.MemoryArrayMode) {
        paintRegisterNames();
    } else if (!bankIsLent()) {
        paintPlain();
    }
    calc.LightModifiers(0);
}

void KeypadModel::paint(std::uint8_t mask) {
    const KeypadTable& table = keypadTable(calc.s.modes.ActiveKeypad);
    if (calc.s.modifiers.NoKeyPaint || bankIsLent() || !table.paintsUnderModifiers) {
        return;
    }
    if (mask == 0) {
        paintPlain();
        return;
    }
    for (const KeyRow& row : table.rows) {
        Control& key = calc.form.cmdFunctions.at(static_cast<std::size_t>(row.key));
        const KeyCaption caption = captionOf(row, mask);
        if (caption.text.empty()) {
            key.visible = false;
        } else {
            write(key, caption);
            hideWhereDue(key, row, calc.s);
        }
    }
    const bool keepsCaptions = mask == kShift || mask == kAlt;
    if (dressConversions && keepsCaptions && table.id == Keypad::Convert) {
        dressConversions();
    }
}

void KeypadModel::paintRegisterNames() {
    calc.display.enableByteKeys(true);
    for (std::size_t i = 0; i < calc.form.cmdFunctions.size(); ++i) {
        const KeyCaption caption{calc.s.memory.RegisterNames.at(i), Face::SmallFonts, 7.0F};
        look(calc.form.cmdFunctions.at(i), caption, " Click: recall | Shift+: save | Ctrl+: name ", KeyColour::Plain);
    }
}

// The bank is plain already when the arrow key comes up. The Tables keypad ignores key-ups, so there
// the flag would wait for a modifier's.
void KeypadModel::skipNextRelease() {
    calc.s.modifiers.SkipModifierRelease = !calc.s.modes.TablesShown;
}

void KeypadModel::step(int direction) {
    if (calc.s.modes.MemoryArrayMode) {
        return;
    }
    const auto tables = keypadTables();
    const auto* const present = &keypadTable(calc.s.modes.ActiveKeypad);
    const auto at = std::find(tables.begin(), tables.end(), present) - tables.begin();
    const auto count = static_cast<std::ptrdiff_t>(tables.size());
    show(tables[static_cast<std::size_t>((at + direction + count) % count)]->id);
    skipNextRelease();
}

void KeypadModel::next() {
    step(1);
}

void KeypadModel::previous() {
    step(-1);
}

void KeypadModel::remember(Keypad keypad) {
    if (keypad == Keypad::LetterDrill || (!history_.empty() && history_.front() == keypad)) {
        return;
    }
    history_.insert(history_.begin(), keypad);
    if (history_.size() > kLongestHistory) {
        history_.pop_back();
    }
}

void KeypadModel::rotateHistory(bool back) {
    if (history_.size() < 2 || calc.s.modes.MemoryArrayMode) {
        return;
    }
    const auto pivot = back ? history_.begin() + 1 : history_.end() - 1;
    std::rotate(history_.begin(), pivot, history_.end());
    lay(history_.front());
    skipNextRelease();
}

void KeypadModel::historyBack() {
    rotateHistory(true);
}

void KeypadModel::historyForward() {
    rotateHistory(false);
}

void KeypadModel::tickMenu(Keypad keypad) {
    for (const KeypadEntry& entry : calc.form.keypadMenu()) {
        entry.control.checked = entry.keypad == keypad;
    }
}

void KeypadModel::showHint(Keypad keypad) {
    if (!unitsMatter(keypad) || hinted_ || !hintDue || !hintDue(keypad)) {
        return;
    }
    hinted_ = true;
    calc.message(BoxKind::Plain, std::string(keypadTable(keypad).name) + " Keypad",
                 "Right click any of the light colored Buttons to\nchange the units used for that function, and "
                 "the\nyellow buttons perform multiple calculations!");
}

}  // namespace tallyforge
