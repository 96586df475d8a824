// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/memory_registers.h"

#include "desk/click_sound.h"
#include "engine/engine.h"
#include "numbers/number_format.h"
#include "records/data_files.h"
#include "records/file_check.h"
#include "records/file_failure.h"
#include "records/settings_file.h"

#include <algorithm>
#include <cctype>

namespace tallyforge {

namespace {

constexpr std::string_view kFieldPattern = "0.0e+00";
constexpr std::string_view kNamePrompt = "Enter the name, only the first 4 characters will be used!";
constexpr std::size_t kNameWidth = 4;
constexpr std::uint8_t kStoreByName = 8;

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return text;
}

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

/// What may stand as a name in one line of a file.
std::string cleanName(std::string text) {
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }),
               text.end());
    return text.substr(0, kNameWidth);
}

}  // namespace

void storeInRegister(Engine& calc, int number, const ValueCell& value) {
    // An X that a key left empty counts as 0.
    calc.s.memory.Registers.at(static_cast<std::size_t>(number)) = value.isEmptyText() ? ValueCell::zero() : value;
    calc.form.txtReg_m.at(static_cast<std::size_t>(number) - 1).text = calc.patternText(value, kFieldPattern);
    calc.s.memory.RegistersUsed = true;
}

void nameRegister(Engine& calc, int number, std::string_view name) {
    calc.s.memory.RegisterNames.at(static_cast<std::size_t>(keyOfRegister(number))) = cleanName(std::string(name));
}

void MemoryRegisters::cmdSTO_Click() {
    EngineState& s = calc.s;
    calc.commit.BeginEntry();
    s.CurrentProc = "cmdSTO";
    if (calc.entryText().empty()) {
        calc.message(BoxKind::Stop, "Nothing to do!", "Please enter a number between 1 and 24, or 0 for names!");
        finish();
        return;
    }
    const auto typed = tryReadNumber(calc.entryText(), s.format.DecimalChar);
    const double number = typed ? roundHalfEven(*typed, 0) : -1.0;
    if (number < 0 || number > kRegisters) {
        calc.message(BoxKind::Stop, "Out of Range!", "Tne registers are 1 to 24 only!");
    } else if (number == 0) {
        byName();
    } else {
        actOn(static_cast<int>(number));
    }
    finish();
}

void MemoryRegisters::byName() {
    EngineState& s = calc.s;
    if (s.modifiers.ModifierMask > kShift) {
        // Only a recall and a store ask for a name.
        return;
    }
    const bool recalls = s.modifiers.ModifierMask == 0;
    std::string answer = calc.platform.inputBox({.title = recalls ? "Recall Named Register" : "Save to Named Register",
                                                 .prompt = std::string(kNamePrompt),
                                                 .preset = {}});
    if (answer.empty()) {
        return;
    }
    if (!recalls) {
        answer = lowered(answer);
        s.modifiers.ModifierMask = kStoreByName;
    }
    if (const int number = registerNamed(answer.substr(0, kNameWidth)); number != 0) {
        actOn(number);
    }
}

int MemoryRegisters::registerNamed(std::string_view name) const {
    const std::string wanted = withoutTrailingBlanks(std::string(name));
    for (int key = 0; key < kBankKeys; ++key) {
        if (withoutTrailingBlanks(calc.s.memory.RegisterNames.at(static_cast<std::size_t>(key))) == wanted) {
            return registerOfKey(key);
        }
    }
    return 0;
}

void MemoryRegisters::actOn(int number) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0:
            recall(number, "rcl");
            break;
        case kShift:
        case kStoreByName:
            store(number, calc.s.stack.Xreg);
            if (!calc.s.modes.ProgramMode) {
                calc.platform.playSound(clickSound());
            }
            break;
        case kCtrl: {
            const int key = keyOfRegister(number);
            Control& control = calc.form.cmdFunctions.at(static_cast<std::size_t>(key));
            const std::string caption = control.text;
            nameRegister(key);
            // The keypad shows functions here, not register names.
            control.text = caption;
            break;
        }
        default:
            break;
    }
}

void MemoryRegisters::recall(int number, std::string_view label) {
    EngineState& s = calc.s;
    s.memory.RegistersUsed = true;
    const ValueCell& held = s.memory.Registers.at(static_cast<std::size_t>(number));
    calc.form.setFocus(calc.form.cmdEnter);
    calc.commit.deliver({.value = held.isEmpty() ? ValueCell{0.0} : held, .label = label, .place = OnStack::Pushes});
}

void MemoryRegisters::finish() {
    calc.setEntry({});
    calc.s.entry.EntryOpen = false;
    calc.s.entry.EexActive = false;
    calc.ClearOptKeys();
}

void MemoryRegisters::nameRegister(int index) {
    EngineState& s = calc.s;
    const std::string answer =
        calc.platform.inputBox({.title = "Name Register " + std::to_string(registerOfKey(index)),
                                .prompt = "Enter a name, only the first 4 characters will be used!",
                                .preset = {}});
    if (const std::string name = cleanName(lowered(answer)); !name.empty()) {
        calc.form.cmdFunctions.at(static_cast<std::size_t>(index)).text = name;
        s.memory.RegisterNames.at(static_cast<std::size_t>(index)) = name;
    }
    calc.focusEntry();
    s.modifiers.ModifierMask = 0;
}

void MemoryRegisters::storeFromEntryOrX(int number) {
    const std::string typed = calc.entryText();
    store(number, typed.empty() ? calc.s.stack.Xreg : ValueCell{typed});
    calc.setEntry({});
    calc.s.entry.EntryOpen = false;
    calc.s.entry.EexActive = false;
}

void MemoryRegisters::RegisterKey(int index) {
    EngineState& s = calc.s;
    const int number = registerOfKey(index);
    switch (s.modifiers.ModifierMask) {
        case kShift:
            storeFromEntryOrX(number);
            break;
        case kCtrl:
            nameRegister(index);
            break;
        case 0:
            if (!calc.entryText().empty()) {
                calc.commit.cmdEnter_Click();
            }
            recall(number, "");
            break;
        default:
            calc.commit.cmdEnter_Click();
            break;
    }
    calc.ClearOptKeys();
}

void MemoryRegisters::MemoryArray() {
    EngineState& s = calc.s;
    s.modes.ProgramMode = false;
    calc.form.enableKeypadMenu(s.modes.MemoryArrayMode);
    s.modes.MemoryArrayMode = !s.modes.MemoryArrayMode;
    calc.form.cmdF11.enabled = !s.modes.MemoryArrayMode;
    if (s.modes.MemoryArrayMode) {
        keypadBefore_ = s.modes.ActiveKeypad;
        s.modes.ActiveKeypad = Keypad::MemoryArray;
        nameBefore_ = calc.form.lblName.text;
        calc.form.lblName.text = "Memory Array";
        calc.form.lblBank.visible = false;
        calc.form.cmdF11.tip = "Enter Program Mode";
        calc.form.cmdF12.tip = "Leave Memory Array";
        calc.keypads().RepaintKeypad();
        return;
    }
    if (s.modes.ActiveKeypad == Keypad::MemoryArray) {
        s.modes.ActiveKeypad = keypadBefore_;
    }
    calc.keypads().ShowKeypad(s.modes.ActiveKeypad);
    calc.form.lblName.text = nameBefore_;
    calc.form.lblBank.visible = true;
    calc.form.cmdF12.tip = "Enter Memory Array | Shift + perform Convert Fn (F10)";
}

std::array<RegisterLine, kBankKeys> MemoryRegisters::lines() const {
    std::array<RegisterLine, kBankKeys> all;
    for (int key = 0; key < kBankKeys; ++key) {
        const auto number = static_cast<std::size_t>(registerOfKey(key));
        all.at(static_cast<std::size_t>(key)) = {.name = calc.s.memory.RegisterNames.at(static_cast<std::size_t>(key)),
                                                 .value = calc.s.memory.Registers.at(number),
                                                 .tip = calc.form.txtReg_m.at(number - 1).tip};
    }
    return all;
}

void MemoryRegisters::take(const std::array<RegisterLine, kBankKeys>& all) {
    for (int key = 0; key < kBankKeys; ++key) {
        const RegisterLine& line = all.at(static_cast<std::size_t>(key));
        const auto number = static_cast<std::size_t>(registerOfKey(key));
        Control& field = calc.form.txtReg_m.at(number - 1);
        calc.s.memory.RegisterNames.at(static_cast<std::size_t>(key)) = line.name;
        // A register of 0 comes back empty, from a file and from memory alike.
        const auto held = line.value.tryNumber(calc.s.format.DecimalChar);
        const bool empty = line.value.isEmpty() || line.value.isEmptyText() || (!line.value.isTagged() && held == 0.0);
        calc.s.memory.Registers.at(number) = empty ? ValueCell{} : line.value;
        field.text = empty ? "" : calc.patternText(line.value, kFieldPattern);
        field.tip = line.tip;
        calc.s.memory.RegistersUsed = calc.s.memory.RegistersUsed || !empty;
    }
    if (calc.s.modes.MemoryArrayMode) {
        calc.keypads().RepaintKeypad();
    }
}

void MemoryRegisters::mnuSaveMem_Click() {
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    const auto path = askWhereToSave(calc, "Save Memory Registers", calc.s.files.MemoryFileName);
    if (!path) {
        return;
    }
    const char decimal = calc.s.format.DecimalChar;
    auto all = lines();
    tellLeftOut(calc, "Save Memory Registers", leaveOutUnheld(all, decimal));
    const auto fill = [&](WholeFile& file) {
        std::string text;
        for (const RegisterLine& line : all) {
            text += registerLine(line, decimal) + "\n";
        }
        checkReadsBack(all, text, decimal);
        file.write(text);
    };
    if (saveOrReport(calc, "mnuSaveMem_Click", *path, fill) && askForDefaultName(calc, *path)) {
        rememberFileName(calc, settings, DefaultName::Registers, *path);
    }
}

void MemoryRegisters::mnuRetMem_Click() {
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    const auto path = askWhatToRetrieve(calc, "Retrieve Memory Registers", calc.s.files.MemoryFileName);
    if (!path || !calc.question("Overwrite?", "This will overwrite your current memory registers, continue?")) {
        return;
    }
    const auto report = [&](const Failure& failure) {
        calc.message(BoxKind::Notice, "Retrieve Registers Error!", retrievalMessage(failure));
    };
    goOn(report, [&] {
        constexpr std::size_t kLargest = std::size_t{1} << 20;
        const std::string text = onFile([&] { return readWhole(*path, kLargest); });
        const auto rows = splitLines(text);
        if (rows.size() != kBankKeys) {
            throw Failure{FailureNumber::DamagedFile};
        }
        std::array<RegisterLine, kBankKeys> parsed;
        std::transform(rows.begin(), rows.end(), parsed.begin(),
                       [&](std::string_view row) { return parseRegisterLine(row, calc.s.format.DecimalChar); });
        take(parsed);
    });
}

}  // namespace tallyforge
