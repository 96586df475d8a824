// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the keyboard and mouse actions of a script do to the form, event by event.
#include "script_fixture.h"

namespace tallyforge {
namespace {

class ScriptInput : public ScriptTest {
protected:
    /// The events that `actions` give to the entry line and to the key cmdEsc.
    Lines events(const Lines& actions) {
        log.clear();
        std::vector<HookedLines::Line> given;
        for (const std::string& action : actions) {
            given.push_back({action, {}});
        }
        given.front().before = [this] { listen(); };
        EXPECT_EQ(runHooked(std::move(given)), ScriptEnd::Done);
        EXPECT_EQ(complaints, Lines{});
        return log;
    }

private:
    void listen() {
        // What the form keeps for itself does not reach the entry line.
        form().preview = nullptr;
        form().help = nullptr;
        form().txtXreg.walkStop = 0;
        Control& entry = form().txtXreg;
        entry.keyDown = [this](KeyEvent event) { note("down", event.keyCode, event.shift); };
        entry.keyPress = [this](int& character) { log.push_back("press " + std::to_string(character)); };
        entry.keyUp = [this](KeyEvent event) { note("up", event.keyCode, event.shift); };
        form().cmdEnter.click = [this] { log.emplace_back("Enter"); };
        form().cmdEsc.click = [this] { log.emplace_back("click"); };
        form().cmdEsc.mouseDown = [this](MouseButton button, std::uint8_t shift) {
            note(button == MouseButton::Right ? "right" : "left", shift, 0);
        };
    }
    void note(const std::string& what, int first, int second) {
        log.push_back(what + " " + std::to_string(first) + " " + std::to_string(second));
    }

    Lines log;
};

TEST_F(ScriptInput, ATypedCharacterIsAKeyWithoutModifiers) {
    EXPECT_EQ(events({"type 5*A"}), (Lines{"down 53 0", "press 53", "up 53 0", "down 190 0", "press 42", "up 190 0",
                                           "down 65 0", "press 65", "up 65 0"}));
}

TEST_F(ScriptInput, ATypedCharacterAboveAsciiIsOneByte) {
    EXPECT_EQ(events({"type ö"}), (Lines{"down 190 0", "press 246", "up 190 0"}));
}

struct Named {
    const char* name;
    int keyCode;
    int character;  ///< 0 where the key types none
};

class NamedKeys : public ScriptInput, public testing::WithParamInterface<Named> {};

TEST_P(NamedKeys, HaveTheirCodeAndCharacter) {
    const std::string code = std::to_string(GetParam().keyCode);
    Lines expected{"down " + code + " 0"};
    if (GetParam().character != 0) {
        expected.push_back("press " + std::to_string(GetParam().character));
    }
    expected.push_back("up " + code + " 0");
    EXPECT_EQ(events({"key " + std::string(GetParam().name)}), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, NamedKeys,
    testing::Values(Named{"Esc", 27, 27}, Named{"Backspace", 8, 8}, Named{"Delete", 46, 0}, Named{"Insert", 45, 0},
                    Named{"Home", 36, 0}, Named{"End", 35, 0}, Named{"Left", 37, 0}, Named{"Right", 39, 0},
                    Named{"Up", 38, 0}, Named{"Down", 40, 0}, Named{"Tab", 9, 9}, Named{"Space", 32, 32},
                    Named{"F1", 112, 0}, Named{"F2", 113, 0}, Named{"F3", 114, 0}, Named{"F4", 115, 0},
                    Named{"F5", 116, 0}, Named{"F6", 117, 0}, Named{"F7", 118, 0}, Named{"F8", 119, 0},
                    Named{"F9", 120, 0}, Named{"F10", 121, 0}, Named{"F11", 122, 0}, Named{"F12", 123, 0},
                    Named{"a", 65, 97}, Named{"7", 55, 55}, Named{"+", 190, 43}),
    [](const auto& row) { return std::string(row.param.name) == "+" ? std::string("Plus") : row.param.name; });

TEST_F(ScriptInput, EnterIsAClickOfTheDefaultKey) {
    EXPECT_EQ(events({"key Enter"}), (Lines{"down 13 0", "Enter", "up 13 0"}));
}

TEST_F(ScriptInput, CtrlWithALetterTypesItsControlCharacter) {
    EXPECT_EQ(events({"key Ctrl+p"}), (Lines{"down 17 2", "down 80 2", "press 16", "up 80 0"}));
    EXPECT_EQ(events({"key Shift+Ctrl+x"}), (Lines{"down 17 3", "down 88 3", "press 24", "up 88 0"}));
    EXPECT_EQ(events({"key Ctrl+Shift+X"}), (Lines{"down 17 3", "down 88 3", "press 24", "up 88 0"}));
}

TEST_F(ScriptInput, CtrlWithADigitTypesNothing) {
    EXPECT_EQ(events({"key Ctrl+5"}), (Lines{"down 17 2", "down 53 2", "up 53 0"}));
}

TEST_F(ScriptInput, AltTypesNothing) {
    EXPECT_EQ(events({"key Alt+q"}), (Lines{"down 18 4", "down 81 4", "up 81 0"}));
}

TEST_F(ScriptInput, TheShiftOfACharacterIsNoModifier) {
    EXPECT_EQ(events({"key Shift+x"}), (Lines{"down 88 0", "press 88", "up 88 0"}));
}

TEST_F(ScriptInput, AFunctionKeyKeepsItsShift) {
    EXPECT_EQ(events({"key Shift+F12"}), (Lines{"down 16 1", "down 123 1", "up 123 0"}));
}

TEST_F(ScriptInput, HeldModifiersStayForTheActionsThatFollow) {
    EXPECT_EQ(events({"hold Ctrl", "key F9", "type p", "release"}),
              (Lines{"down 17 2", "down 120 2", "up 120 2", "down 80 2", "press 16", "up 80 2", "up 16 0"}));
}

TEST_F(ScriptInput, FurtherModifiersAddToTheHeldOnes) {
    EXPECT_EQ(events({"hold Shift", "hold Alt+Ctrl"}), (Lines{"down 16 1", "down 18 7"}));
}

TEST_F(ScriptInput, AHeldModifierRepeatsBeforeAClickAndBehindIt) {
    EXPECT_EQ(events({"hold Shift", "click cmdEsc", "release", "click cmdEsc"}),
              (Lines{"down 16 1", "down 16 1", "click", "down 16 1", "up 16 0", "click"}));
}

TEST_F(ScriptInput, ModifiersInFrontOfAClickAreHeldForTheClick) {
    EXPECT_EQ(events({"click Shift+Ctrl+cmdEsc", "click cmdEsc"}), (Lines{"down 17 3", "click", "up 16 0", "click"}));
}

TEST_F(ScriptInput, ModifiersInFrontAddToTheHeldOnesForTheClickAlone) {
    EXPECT_EQ(events({"hold Ctrl", "click Shift+cmdEsc"}),
              (Lines{"down 17 2", "down 17 3", "click", "up 16 0", "down 17 2"}));
}

TEST_F(ScriptInput, ARightClickHasTheModifiersInForce) {
    EXPECT_EQ(events({"rightclick cmdEsc", "rightclick Ctrl+cmdEsc", "hold Alt", "rightclick Shift+cmdEsc"}),
              (Lines{"right 0 0", "down 17 2", "right 2 0", "up 16 0", "down 18 4", "down 18 5", "right 5 0", "up 16 0",
                     "down 18 4"}));
}

}  // namespace
}  // namespace tallyforge
