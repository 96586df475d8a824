// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main form's controls, as data. Captions and tips stand in the tables of
// main_form.cpp, places in main_form_layout.cpp; handlers are hung on by the classes that own the behaviour.
#pragma once

#include "engine/engine_state.h"
#include "platform/form.h"

#include <array>
#include <string_view>

namespace tallyforge {

/// A menu entry that lays a keypad over the bank.
struct KeypadEntry {
    Control& control;
    Keypad keypad;
};

class MainForm : public Form {
public:
    MainForm();

    // Entry line, small registers, lists.
    Control txtXreg;
    Control txty_Reg, txtLastx;
    Control Label7, Label8, Label9;  ///< "y" and "Last x" beside their fields; 8 heads the entry line
    Control lblName;                 ///< the mode's name (program, memory array), empty otherwise
    Control lblBank;                 ///< the keypad's name
    Control lblLists;                ///< "Bank   Stack" over the lists
    Control lblCnvrt;
    Control lstDisplayReg;             ///< the tape
    Control lstStack;                  ///< the top of the stack
    std::array<Control, 8> lblStkReg;  ///< row marks X and Y; 7 is the top row, 0 the bottom row

    // Keys.
    std::array<Control, kBankKeys> cmdFunctions;
    std::array<Control, 4> cmdMath;     ///< 0 divide, 1 multiply, 2 subtract, 3 add
    std::array<Control, 11> cmdNumPad;  ///< digits; 10 is the decimal key
    Control cmdEnter, cmdBackSpace, cmdEex, cmdEsc;
    Control cmdDown, cmdXchgY, cmdChs, cmdLastx;
    Control cmdSTO, cmdReset, cmdView, cmdDigits, cmdF11, cmdF12;

    // Options and lamps.
    std::array<Control, 3> optFix;
    Control optDeg, optRad, optGrad;
    Control fraKeyboard;
    std::array<Control, 8> optKey;  ///< index + 1 is the mask; 7 means none and is not shown
    Control shaShift, shaCtrl, shaAlt;

    // Register fields: register n in field n - 1.
    std::array<Control, kRegisters> txtReg_m, lblErg_m;

    // Menus.
    Control mnuFile, mnuKeypad, mnuHelp, mnuExport;
    Control mnuTip, mnuAOT, mnuLoad, mnuPosition, mnuSkins, space6, mnuCopy, mnuPaste, mnuPrint, space4, mnuWeb,
        mnuVersion, space0, mnuAbout, Space3, mnuSave, mnuSaveTape, mnuSaveMem, space2, mnuTape, mnuRetMem, mnuProgram,
        space5, mnuFileExit;
    Control mnuHelpIntro, mnuHlepStd, mnuEngKp, mnuBKP, mnuMagKp, mnuTrigKp, mnuCvrtKp, mnuHelpSupport;
    Control mnuStd, mnuEngNormal, mnuEngBinary, mnuMag, mnuTrig, mnuConvert;
    Control mnuExportText, mnuExportCsv, mnuExportHtml;

    /// Form widths in twips, plain and extended.
    static constexpr int kPlainWidth = 5310;
    static constexpr int kExtendedWidth = 7200;
    static constexpr int kExtendedGrowth = 2000;  ///< height that the extended view adds
    static constexpr int kTallGrowth = 300;

    /// Height of the strip with the modifier options below the bank.
    static constexpr int kOptionStrip = 640;

    /// Places every control for `extraHeight` twips that the view adds to the lists, with the
    /// register column or without, and with the small registers that are visible.
    void arrange(bool extended = false, int extraHeight = 0);

    /// The six entries of the keypad menu.
    [[nodiscard]] std::array<KeypadEntry, 6> keypadMenu();
    void enableKeypadMenu(bool enabled);
    [[nodiscard]] int contentHeight() const override { return contentHeight_; }
    int fill(int spareHeight, int spareWidth) override;
    [[nodiscard]] std::string lineFor(const Control* pointed) const override;
    /// What the name line says besides the keypad's name; "" for nothing.
    std::function<std::string()> status;
    /// Why the last key was not taken; it is told before all but a mode's own text, and behind that.
    std::function<std::string()> notice;

private:
    /// What a control is before its first use.
    struct Look {
        ControlKind kind = ControlKind::Key;
        std::string_view text{};
        std::string_view tip{};
        std::string_view spoken{};
        Font font{};
        bool visible = true;
        bool enabled = true;
    };
    void put(Control& control, std::string_view controlName, const Look& look, int index = kNoIndex);
    void dressLists();
    void dressKeys();
    void dressStackKeys();
    void dressModeKeys();
    void dressOptions();
    void dressRegisters();
    void dressMenus();
    void giveStops();
    void giveStrokes();
    void placeLists(bool extended, int extra);
    void placeEntry(bool extended, int extra);
    void placeBank(int top);
    void placePad(int top);
    void placeOptions(int top);
    void placeRegisters();
    [[nodiscard]] int right() const;
    [[nodiscard]] int padShift() const { return stackGrowth_ / 2; }

    int contentHeight_ = 0;
    bool extended_ = false;
    int extraHeight_ = 0;
    int spareHeight_ = 0;
    int stackGrowth_ = 0;     ///< what a wider window adds to the stack list
    int registerGrowth_ = 0;  ///< and to the register fields
};

}  // namespace tallyforge
