// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/form_reader.h"

#include "desktops/headless/headless_platform.h"
#include "engine/engine.h"

#include <array>
#include <utility>

namespace tallyforge {

namespace {

using Lines = std::vector<std::string>;

/// `head` and `text` with a blank between, or `head` alone before nothing.
std::string joined(std::string head, std::string_view text) {
    if (!text.empty()) {
        head += ' ';
        head += text;
    }
    return head;
}

std::string cellText(const Engine& calc, const ValueCell& cell) {
    return toUnicode(calc.text(cell), Face::Arial);
}

Lines stackLines(const Engine& calc) {
    Lines lines;
    for (int i = 1; i <= calc.s.stack.depth(); ++i) {
        lines.push_back(joined("stack " + std::to_string(i), cellText(calc, calc.s.stack.slot(i))));
    }
    return lines;
}

Lines tapeLines(const Engine& calc, bool values) {
    Lines lines;
    const auto fillers = static_cast<std::size_t>(calc.tape.fillers());
    for (std::size_t row = fillers; row < calc.tape.count(); ++row) {
        const std::string number = std::to_string(row - fillers + 1);
        lines.push_back(values ? joined("tapevalue " + number, cellText(calc, calc.tape.value(row)))
                               : joined("tape " + number, toUnicode(calc.tape.row(row), Face::Terminal)));
    }
    return lines;
}

Lines bankLines(const Engine& calc) {
    Lines lines;
    const auto& marks = calc.form.lblStkReg;
    const std::size_t top = marks.size() - 1 - (calc.s.window.CompactForm ? 2 : 0);
    for (std::size_t row = 0; row < calc.stackList.count(); ++row) {
        std::string line = "bank " + std::to_string(row + 1) + " " + toUnicode(calc.stackList.row(row), Face::Terminal);
        if (row <= top && marks.at(top - row).visible) {
            line += " " + marks.at(top - row).text;
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

Lines registerLines(const Engine& calc) {
    Lines lines;
    for (int number = 1; number <= kRegisters; ++number) {
        const auto key = static_cast<std::size_t>(keyOfRegister(number));
        const std::string& name = calc.s.memory.RegisterNames.at(key);
        const ValueCell& cell = calc.s.memory.Registers.at(static_cast<std::size_t>(number));
        const bool renamed = name != defaultRegisterName(static_cast<int>(key));
        const auto value = cell.tryNumber(calc.s.format.DecimalChar);
        const bool filled = !cell.isEmptyText() && (!value || *value != 0.0);
        if (!renamed && !filled) {
            continue;
        }
        const auto lastLetter = name.find_last_not_of(' ');
        std::string line = "reg " + std::to_string(number);
        line = joined(line, toUnicode(name.substr(0, lastLetter + 1), Face::Arial));
        line = joined(line, cellText(calc, cell));
        const std::string& shown = calc.form.txtReg_m.at(static_cast<std::size_t>(number) - 1).text;
        if (!shown.empty()) {
            line.append(" [").append(toUnicode(shown, Face::Arial)).append("]");
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

Lines keyLines(const Engine& calc) {
    constexpr std::array<std::string_view, 4> kColours{"plain", "yellow", "blue", "yellow"};
    Lines lines;
    for (const Control& key : calc.form.cmdFunctions) {
        if (key.visible) {
            lines.push_back("key " + std::to_string(key.index) + " " + inQuotes(key.text, key.font.face) + " " +
                            std::string(kColours.at(static_cast<std::size_t>(key.colour))) +
                            (key.font.bold ? " bold" : ""));
        }
    }
    return lines;
}

Lines tipLines(const Engine& calc) {
    Lines lines;
    for (const Control& key : calc.form.cmdFunctions) {
        if (key.visible) {
            lines.push_back("tip " + std::to_string(key.index) + " " + inQuotes(key.tip));
        }
    }
    return lines;
}

std::string formatLine(const EngineState& s) {
    constexpr std::array<std::string_view, 3> kModes{"fixed", "sci", "eng"};
    return "format " + std::string(kModes.at(static_cast<std::size_t>(s.format.Mode))) + " " +
           std::to_string(s.format.DisplayDigits) + " word " + std::to_string(s.format.WordSize);
}

std::string angleLine(const EngineState& s) {
    constexpr std::array<std::string_view, 3> kModes{"deg", "rad", "grad"};
    return "angle " + std::string(kModes.at(static_cast<std::size_t>(s.format.Angle)));
}

std::string lampsLine(const MainForm& form) {
    std::string line = "lamps";
    line += form.shaShift.visible ? " Shift" : "";
    line += form.shaCtrl.visible ? " Ctrl" : "";
    line += form.shaAlt.visible ? " Alt" : "";
    return line;
}

std::string keypadLine(const Engine& calc) {
    const bool mode = calc.s.modes.ProgramMode || calc.s.modes.MemoryArrayMode;
    const Control& label = mode ? calc.form.lblName : calc.form.lblBank;
    return "keypad " + std::to_string(static_cast<int>(calc.s.modes.ActiveKeypad)) + " " + inQuotes(label.text);
}

Lines menuLines(const Form& form) {
    Lines lines;
    for (const Control* control : form.controls()) {
        if (control->kind == ControlKind::MenuEntry) {
            lines.push_back("menu " + control->name + " " + inQuotes(control->text) +
                            (control->checked ? " ticked" : "") + (control->enabled ? "" : " disabled"));
        }
    }
    return lines;
}

std::string stateText(const Control& control, bool checked) {
    return std::string(control.enabled ? " enabled" : " disabled") + (control.visible ? " visible" : " hidden") +
           (checked ? " checked" : "");
}

Lines formLines(const Form& form) {
    Lines lines;
    for (const Control* control : form.controls()) {
        lines.push_back(controlLine(form, *control));
    }
    return lines;
}

}  // namespace

std::string controlLine(const Form& form, const Control& control) {
    return control.fullName() + " " + inQuotes(control.text, control.font.face) + stateText(control, control.checked) +
           (form.focus == &control ? " focus" : "");
}

std::string rowLine(const Control& list, int number, std::size_t row) {
    return list.name + "(" + std::to_string(number) + ") " + inQuotes(list.rows->row(row), list.font.face) +
           stateText(list, list.rows->selected() == row);
}

std::optional<Lines> readWord(const Engine& calc, const Form& form, std::string_view word) {
    const bool mainForm = &form == static_cast<const Form*>(&calc.form);
    struct Word {
        std::string_view name;
        Lines (*read)(const Engine&);
    };
    constexpr std::array<Word, 16> kWords{{
        {"x", [](const Engine& c) { return Lines{joined("x", cellText(c, c.s.stack.Xreg))}; }},
        {"y", [](const Engine& c) { return Lines{joined("y", cellText(c, c.s.stack.Yreg))}; }},
        {"lastx", [](const Engine& c) { return Lines{joined("lastx", cellText(c, c.s.stack.LastX))}; }},
        {"entry",
         [](const Engine& c) { return Lines{joined("entry", toUnicode(c.form.txtXreg.text, Face::Terminal))}; }},
        {"depth", [](const Engine& c) { return Lines{"depth " + std::to_string(c.s.stack.depth())}; }},
        {"stack", stackLines},
        {"tape", [](const Engine& c) { return tapeLines(c, false); }},
        {"tapevalues", [](const Engine& c) { return tapeLines(c, true); }},
        {"bank", bankLines},
        {"regs", registerLines},
        {"keys", keyLines},
        {"tips", tipLines},
        {"keypad", [](const Engine& c) { return Lines{keypadLine(c)}; }},
        {"lamps", [](const Engine& c) { return Lines{lampsLine(c.form)}; }},
        {"format", [](const Engine& c) { return Lines{formatLine(c.s)}; }},
        {"angle", [](const Engine& c) { return Lines{angleLine(c.s)}; }},
    }};
    for (const Word& known : kWords) {
        if (known.name == word) {
            return known.read(calc);
        }
    }
    if (word == "menu") {
        return menuLines(calc.form);
    }
    if (word == "dialog") {
        return Lines{"dialog " + (mainForm ? std::string("none") : form.name)};
    }
    if (word == "form") {
        return formLines(form);
    }
    if (word == "clipboard") {
        return Lines{joined("clipboard", toUnicode(calc.platform.clipboardText(), Face::Arial))};
    }
    return std::nullopt;
}

}  // namespace tallyforge
