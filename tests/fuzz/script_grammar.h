// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes as a key script that is right in every line as long as no dialog is open: two bytes
// choose a line, so that a changed byte is another action and not a wrong word.
#pragma once

#include "engine/main_form.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

/// Bytes, one after the other; zeros behind the last.
class ByteChoice {
public:
    explicit ByteChoice(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    [[nodiscard]] bool done() const { return at_ >= bytes_.size(); }
    [[nodiscard]] std::size_t below(std::size_t count) { return done() ? 0 : bytes_[at_++] % count; }
    template <std::size_t Count>
    [[nodiscard]] std::string pick(const std::array<std::string_view, Count>& words) {
        return std::string(words[below(Count)]);
    }

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

namespace grammar {

inline constexpr std::array<std::string_view, 9> kModifiers{
    "", "", "Shift+", "Ctrl+", "Alt+", "Shift+Ctrl+", "Shift+Alt+", "Ctrl+Alt+", "Shift+Ctrl+Alt+"};
inline constexpr std::array<std::string_view, 20> kTexts{"1",     "2.5",  "-7",   "60",   "1e300", "1e-9", "0",
                                                         "#101b", "#FFh", "#17o", "#99d", "3+",    "*",    "7.0419",
                                                         "24",    "999",  "5!",   "x",    "a",     "0.125"};
inline constexpr std::array<std::string_view, 18> kKeys{"Enter", "Esc",  "Backspace", "Delete", "Insert", "Up",
                                                        "Down",  "Left", "Right",     "Tab",    "Space",  "F1",
                                                        "F9",    "F10",  "F11",       "F12",    "Home",   "End"};
inline constexpr std::array<std::string_view, 8> kNames{"a.txt", "b.txt", "short", "long",
                                                        "../x",  "",      "..",    "undo.rec"};
inline constexpr std::array<std::string_view, 5> kAnswers{"yes", "no", "ok", "cancel", "yes"};
inline constexpr std::array<std::string_view, 8> kClips{"1,234.56", "12 mm",  "  7e3 ", "#FFh",
                                                        "abc",      "1e9999", "3/4",    "-.5\t2"};
inline constexpr std::array<std::string_view, 7> kFileMenus{"mnuSaveTape", "mnuTape", "mnuSaveMem", "mnuRetMem",
                                                            "mnuSave",     "mnuCopy", "mnuPaste"};

/// A control of the main form that a hand can click.
[[nodiscard]] inline std::string someControl(ByteChoice& choice) {
    static const MainForm form;
    const Control& control = *form.controls()[choice.below(form.controls().size())];
    const std::string index = control.index >= 0 ? "(" + std::to_string(control.index) + ")" : std::string{};
    return control.rows != nullptr || control.kind == ControlKind::MenuEntry ? "cmdEnter" : control.name + index;
}

/// Saves, retrieves or loads, with the answers that it asks for.
[[nodiscard]] inline std::string fileAction(ByteChoice& choice) {
    std::string lines = "answer " + choice.pick(kAnswers) + "\nanswer text " + choice.pick(kNames) + "\n";
    if (choice.below(4) == 0) {
        return lines + "answer yes\nmenu mnuProgram\n";
    }
    return lines + "answer yes\nmenu " + choice.pick(kFileMenus) + "\n";
}

[[nodiscard]] inline std::string line(ByteChoice& choice) {
    switch (choice.below(16)) {
        case 0:
        case 1:
        case 2:
            return "type " + choice.pick(kTexts) + "\nkey Enter\n";
        case 3:
            return "type " + choice.pick(kTexts) + "\n";
        case 4:
        case 5:
            return "key " + choice.pick(kModifiers) + choice.pick(kKeys) + "\n";
        case 6:
            return "click " + someControl(choice) + "\n";
        case 7: {
            static const MainForm form;
            const Control& entry = *form.controls()[choice.below(form.controls().size())];
            return entry.kind == ControlKind::MenuEntry && entry.name != "mnuFileExit" ? "menu " + entry.name + "\n"
                                                                                       : "";
        }
        case 8:
            return fileAction(choice);
        case 9:
            return "clipboard " + choice.pick(kClips) + "\nmenu mnuPaste\n";
        case 10:
            return choice.below(4) == 0 ? "restart\n" : "key Shift+Ctrl+v\n";
        case 11:
            return "rightclick " + someControl(choice) + "\n";
        default:
            return "click " + choice.pick(kModifiers) + "cmdFunctions(" + std::to_string(choice.below(24)) + ")\n";
    }
}

}  // namespace grammar

/// The script that the bytes choose.
[[nodiscard]] inline std::string scriptOf(std::span<const std::uint8_t> bytes) {
    ByteChoice choice(bytes);
    std::string script;
    while (!choice.done()) {
        script += grammar::line(choice);
    }
    return script;
}

}  // namespace tallyforge
