// SPDX-License-Identifier: GPL-3.0-or-later
//
// One session with one dialog, a line an action and what the dialog's handlers must hear of it. It
// is played on every platform: by direct calls, by a key script, and by real events in a window.
#pragma once

#include "platform/form.h"
#include "platform/key_codes.h"
#include "platform/row_texts.h"

#include <array>
#include <string>
#include <string_view>

namespace tallyforge {

/// A dialog with a control of each kind, which writes down what its handlers hear.
class SessionDialog : public Form {
public:
    SessionDialog() : Form("frmSession", "Session") {
        place = {.width = 4800, .height = 4400};
        caption.text = "&Number";
        put(caption, "lblNumber", ControlKind::Label);
        put(number, "txtNumber", ControlKind::Field);
        put(locked, "txtLocked", ControlKind::Field);
        put(taker, "txtTaker", ControlKind::Field);
        for (int i = 0; i < 4; ++i) {
            put(size.at(static_cast<std::size_t>(i)), "optSize", ControlKind::Option, i);
        }
        put(box, "chkBox", ControlKind::Check);
        put(list, "lstRows", ControlKind::List);
        put(choice, "cboRows", ControlKind::Choice);
        put(apply, "cmdApply", ControlKind::Key);
        put(leave, "cmdLeave", ControlKind::Key);
        dress();
        hang();
    }

    /// What was heard since the last call, with blanks between.
    std::string heard() {
        std::string all;
        all.swap(log_);
        return all;
    }

    Control caption, number, locked, taker, box, list, choice, apply, leave;
    std::array<Control, 4> size;
    RowTexts listRows{{"Copper", "Gold", "Gallium"}};
    RowTexts choiceRows{{"one", "two"}};

private:
    void put(Control& control, const char* controlName, ControlKind kind, int index = kNoIndex) {
        control.name = controlName;
        control.kind = kind;
        control.index = index;
        control.spoken = controlName;
        constexpr int kPitch = 340;
        control.place = {.left = 100, .top = 60 + kPitch * row_, .width = 2400, .height = 300};
        ++row_;
        enrol(control);
        control.gotFocus = [this, &control] { say("+" + control.fullName()); };
        control.lostFocus = [this, &control] { say("-" + control.fullName()); };
    }
    void dress() {
        // One array, two banks.
        size[0].group = size[1].group = "from";
        size[2].group = size[3].group = "to";
        size[0].checked = true;
        locked.enabled = false;
        taker.takesTab = taker.takesEnter = taker.takesEscape = true;
        apply.text = "&Apply";
        leave.text = "Leave";
        list.rows = &listRows;
        choice.rows = &choiceRows;
        defaultKey = &apply;
        cancelKey = &leave;
    }
    void hang() {
        load = [this] { say("load"); };
        placing = [this] { say("place"); };
        activate = [this] { say("activate"); };
        unload = [this] { say("unload"); };
        number.keyPress = [](int& character) {
            // Digits only, and Backspace.
            character = (character >= '0' && character <= '9') || character == kKeyBackspace ? character : 0;
        };
        number.changed = [this] { say("number=" + number.text); };
        taker.keyPress = [this](int& character) { say("key" + std::to_string(character)); };
        for (Control& option : size) {
            option.click = [this, &option] { say("click:" + option.fullName()); };
            option.mouseUp = [this, &option](MouseButton, std::uint8_t) { say("up:" + option.fullName()); };
        }
        box.click = [this] { say(box.checked ? "ticked" : "cleared"); };
        list.click = [this] { say("row:" + listRows.row(listRows.selected())); };
        list.doubleClick = [this] { say("twice:" + listRows.row(listRows.selected())); };
        choice.changed = [this] { say("choice:" + choiceRows.row(choiceRows.selected())); };
        apply.click = [this] { say("apply"); };
        leave.click = [this] {
            say("leave");
            open = false;
        };
    }
    void say(const std::string& word) { log_ += (log_.empty() ? "" : " ") + word; }

    std::string log_;
    int row_ = 0;
};

struct SessionStep {
    std::string_view action;  ///< a line of a key script
    std::string_view heard;
};

/// The first entry is what opening alone is heard as.
inline constexpr std::array kSession{
    SessionStep{"", "load place activate +txtNumber"},
    SessionStep{"type 1x2", "number=1 number=12"},
    SessionStep{"key Backspace", "number=1"},
    SessionStep{"key Enter", "apply"},
    // Tab goes past the field that is disabled, and a field may keep the keys that lead away.
    SessionStep{"key Tab", "-txtNumber +txtTaker"},
    SessionStep{"key Tab", "key9"},
    SessionStep{"key Enter", "key13"},
    SessionStep{"key Esc", "key27"},
    SessionStep{"key Alt+n", "-txtTaker +txtNumber"},
    SessionStep{"click txtLocked", ""},
    SessionStep{"click txtTaker", "-txtNumber +txtTaker"},
    SessionStep{"click optSize(1)", "-txtTaker +optSize(1) click:optSize(1) up:optSize(1)"},
    SessionStep{"key Down", "click:optSize(0) -optSize(1) +optSize(0)"},
    // From one group of options to the next, and out of it.
    SessionStep{"key Tab", "-optSize(0) +optSize(2)"},
    SessionStep{"key Space", "click:optSize(2)"},
    SessionStep{"key Tab", "-optSize(2) +chkBox"},
    SessionStep{"key Space", "ticked"},
    SessionStep{"click chkBox", "cleared"},
    SessionStep{"key Tab", "-chkBox +lstRows"},
    SessionStep{"key Down", "row:Copper"},
    SessionStep{"type g", "row:Gold"},
    SessionStep{"type g", "row:Gallium"},
    SessionStep{"click lstRows(1)", "row:Copper"},
    SessionStep{"click lstRows(2)", "row:Gold"},
    SessionStep{"dblclick lstRows(2)", "twice:Gold"},
    SessionStep{"key Tab", "-lstRows +cboRows"},
    SessionStep{"key Down", "choice:one"},
    SessionStep{"key Down", "choice:two"},
    SessionStep{"key Shift+Tab", "-cboRows +lstRows"},
    SessionStep{"key Enter", "apply"},
    SessionStep{"click cmdApply", "-lstRows +cmdApply apply"},
    SessionStep{"key Tab", "-cmdApply +cmdLeave"},
    SessionStep{"key Alt+a", "apply -cmdLeave +cmdApply"},
    SessionStep{"key Enter", "apply"},
    SessionStep{"key Tab", "-cmdApply +cmdLeave"},
    SessionStep{"key Tab", "-cmdLeave +txtNumber"},
    SessionStep{"close", "leave unload"},
};

}  // namespace tallyforge
