// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/main_form.h"

#include "engine/key_names.h"
#include "platform/key_codes.h"
#include "platform/text.h"

#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kRegisterArithmetic =
    " Use Ctrl+Click to perform register arithmetic with the contents of Register 1, and Alt+Click to use the "
    "contents of Register 2 as a constant! ";

constexpr Font kCaption{.face = Face::Arial, .points = 8.0F};
constexpr Font kHeadline{.face = Face::Arial, .points = 9.0F};
constexpr Font kSmallCaption{.face = Face::SmallFonts, .points = 7.0F};
constexpr Font kNumbers{.face = Face::Terminal, .points = 9.0F};
constexpr Font kEntry{.face = Face::Terminal, .points = 12.0F, .bold = true};
constexpr Font kDigits{.face = Face::Arial, .points = 11.0F, .bold = true};

}  // namespace

MainForm::MainForm() : Form("frm_Tallyforge", "Tallyforge") {
    dressLists();
    dressKeys();
    dressOptions();
    dressRegisters();
    dressMenus();
    defaultKey = &cmdEnter;
    focus = &txtXreg;
    typing = &txtXreg;
    place = {.left = 0, .top = 0, .width = kPlainWidth, .height = 6200};
    giveStops();
    giveStrokes();
    arrange();
}

// Tab goes entry line, tape, stack, bank, pad, modes.
void MainForm::giveStops() {
    constexpr int kStopAtEntry = 1;
    constexpr int kStopAtTape = 2;
    constexpr int kStopAtStack = 3;
    constexpr int kStopAtBank = 4;
    constexpr int kStopAtPad = 5;
    constexpr int kStopAtFormat = 6;
    constexpr int kStopAtAngle = 7;
    constexpr int kStopAtHeld = 8;
    for (Control* control : controls()) {
        if (control->kind == ControlKind::Key) {
            control->walkStop = kStopAtPad;
        }
    }
    for (Control& key : cmdNumPad) {
        key.tone = KeyTone::Number;
    }
    for (Control& key : cmdMath) {
        key.tone = KeyTone::Operator;
    }
    for (Control* key : {&cmdSTO, &cmdView, &cmdDigits, &cmdF11, &cmdF12, &cmdReset}) {
        key->tone = KeyTone::Mode;
    }
    cmdEnter.tone = KeyTone::Enter;
    txtXreg.walkStop = kStopAtEntry;
    lstDisplayReg.walkStop = kStopAtTape;
    lstStack.walkStop = kStopAtStack;
    for (Control& key : cmdFunctions) {
        key.walkStop = kStopAtBank;
    }
    for (Control& option : optFix) {
        option.walkStop = kStopAtFormat;
        option.group = "Number format";
    }
    for (Control* option : {&optDeg, &optRad, &optGrad}) {
        option->walkStop = kStopAtAngle;
        option->group = "Angle";
    }
    for (Control& option : optKey) {
        option.walkStop = kStopAtHeld;
        option.group = "Keys held for the next click";
    }
    for (Control* told : {&lstDisplayReg, &lblName, &lblBank}) {
        told->live = true;
    }
    nameLine = &lblName;
}

// The ways of the keyboard to the keys, for showing which one is pressed.
void MainForm::giveStrokes() {
    constexpr std::array<std::string_view, 4> kMath{"/", "*", "-", "+"};
    for (std::size_t i = 0; i < kMath.size(); ++i) {
        cmdMath.at(i).typedBy = kMath.at(i);
    }
    for (int digit = 0; digit < key::kPadDecimal; ++digit) {
        cmdNumPad.at(static_cast<std::size_t>(digit)).typedBy = std::to_string(digit);
    }
    cmdNumPad.at(key::kPadDecimal).typedBy = ".,";
    cmdEex.typedBy = "eE";
    cmdChs.typedBy = "\\";
    const std::pair<Control*, int> struck[] = {
        {&cmdEnter, kKeyEnter}, {&cmdBackSpace, kKeyBackspace}, {&cmdEsc, kKeyEscape}, {&cmdDown, kKeyDelete},
        {&cmdXchgY, kKeyEnd},   {&cmdLastx, kKeyInsert},        {&cmdF11, kKeyF11},    {&cmdF12, kKeyF12},
        {&cmdView, kKeyF8}};
    for (const auto& [key, code] : struck) {
        key->struckBy = code;
    }
}

void MainForm::put(Control& control, std::string_view controlName, const Look& look, int index) {
    control.name = controlName;
    control.index = index;
    control.kind = look.kind;
    control.text = look.text;
    control.tip = look.tip;
    control.spoken = look.spoken;
    control.font = look.font;
    control.visible = look.visible;
    control.enabled = look.enabled;
    enrol(control);
}

void MainForm::dressLists() {
    put(txtXreg, "txtXreg",
        {.kind = ControlKind::Field, .tip = " Entry Register ", .spoken = "Entry line", .font = kEntry});
    txtXreg.maxLength = 22;
    txtXreg.rightAligned = true;
    put(lblName, "lblName", {.kind = ControlKind::Label, .spoken = "Mode", .font = kHeadline});
    put(lblBank, "lblBank",
        {.kind = ControlKind::Label, .text = "Bank             Stack", .spoken = "Keypad", .font = kCaption});
    put(lblLists, "lblLists",
        {.kind = ControlKind::Label, .text = "Bank             Stack", .spoken = "Stack heading", .font = kCaption});
    put(lblCnvrt, "lblCnvrt", {.kind = ControlKind::Label, .spoken = "Conversion hint", .visible = false});
    put(lstDisplayReg, "lstDisplayReg",
        {.kind = ControlKind::List, .tip = " Running Tape Display ", .spoken = "Running tape", .font = kNumbers});
    lstDisplayReg.fromBottom = true;
    put(lstStack, "lstStack", {.kind = ControlKind::List, .tip = " Stack ", .spoken = "Stack", .font = kNumbers});
    // One row more than the tape in the same height.
    lstStack.rowHeight = 175;
    for (int i = 0; i < static_cast<int>(lblStkReg.size()); ++i) {
        put(lblStkReg.at(static_cast<std::size_t>(i)), "lblStkReg",
            {.kind = ControlKind::Label, .spoken = "Row mark", .font = kNumbers, .visible = false}, i);
    }
    put(Label7, "Label7", {.kind = ControlKind::Label, .text = "y", .font = kCaption, .visible = false});
    put(txty_Reg, "txty_Reg",
        {.kind = ControlKind::Field,
         .text = "0",
         .tip = " Y Register ",
         .spoken = "Y register",
         .font = kNumbers,
         .visible = false});
    put(Label9, "Label9", {.kind = ControlKind::Label, .text = "Last x", .font = kCaption, .visible = false});
    put(txtLastx, "txtLastx",
        {.kind = ControlKind::Field,
         .text = "0",
         .tip = " Last x ",
         .spoken = "Last x",
         .font = kNumbers,
         .visible = false});
    put(Label8, "Label8", {.kind = ControlKind::Label, .text = "X", .spoken = "X", .font = kCaption, .visible = false});
    for (Control* field : {&txty_Reg, &txtLastx}) {
        field->rightAligned = true;
    }
}

void MainForm::dressKeys() {
    for (int i = 0; i < kBankKeys; ++i) {
        put(cmdFunctions.at(static_cast<std::size_t>(i)), "cmdFunctions", {.font = kCaption}, i);
    }
    struct MathKey {
        std::string_view caption;
        std::string_view spoken;
    };
    constexpr std::array<MathKey, 4> kMath{{{"÷"_t, "Divide"}, {"×"_t, "Multiply"}, {"-", "Subtract"}, {"+", "Add"}}};
    for (std::size_t i = 0; i < kMath.size(); ++i) {
        put(cmdMath.at(i), "cmdMath",
            {.text = kMath.at(i).caption, .tip = kRegisterArithmetic, .spoken = kMath.at(i).spoken, .font = kDigits},
            static_cast<int>(i));
    }
    for (int i = 0; i <= key::kPadDecimal; ++i) {
        const std::string digit = i == key::kPadDecimal ? "." : std::to_string(i);
        put(cmdNumPad.at(static_cast<std::size_t>(i)), "cmdNumPad",
            {.text = digit, .spoken = i == key::kPadDecimal ? "Decimal" : std::string_view{}, .font = kDigits}, i);
    }
    dressStackKeys();
    dressModeKeys();
}

void MainForm::dressStackKeys() {
    put(cmdEnter, "cmdEnter", {.text = "Enter <----", .tip = " Enter ", .spoken = "Enter", .font = kDigits});
    put(cmdBackSpace, "cmdBackSpace", {.text = "<-", .tip = " Backspace ", .spoken = "Backspace", .font = kCaption});
    put(cmdEex, "cmdEex",
        {.text = "EEX", .tip = " Exponent - use E key ", .spoken = "Exponent", .font = kSmallCaption});
    put(cmdEsc, "cmdEsc", {.text = "Esc", .tip = " Clear the entry line ", .spoken = "Escape", .font = kSmallCaption});
    put(cmdDown, "cmdDown",
        {.text = "&Drop", .tip = " Drop x - use Del key ", .font = kSmallCaption, .enabled = false});
    put(cmdXchgY, "cmdXchgY",
        {.text = "&x<>y",
         .tip = " Exchange x & y - use End key ",
         .spoken = "Exchange x and y",
         .font = kSmallCaption,
         .enabled = false});
    put(cmdChs, "cmdChs",
        {.text = "C&HS", .tip = R"( Chg Sign - use \ key )", .spoken = "Change sign", .font = kSmallCaption});
    put(cmdLastx, "cmdLastx",
        {.text = "&Last x", .tip = "Retrieve Last x value - use Ins key ", .font = kSmallCaption, .enabled = false});
}

void MainForm::dressModeKeys() {
    put(cmdSTO, "cmdSTO",
        {.text = "REG",
         .tip = " Input a (Register) number: Click - retrieves; Shift+Click - saves; Ctrl+Click - names ",
         .spoken = "Registers",
         .font = kSmallCaption});
    put(cmdReset, "cmdReset",
        {.text = "Reset",
         .tip = " Click: Initialize calculator | Ctrl+: Clear memory regs | Alt+: Both | Shift+Ctrl+Alt+: Undo last "
                "Reset",
         .font = kSmallCaption});
    put(cmdView, "cmdView",
        {.text = "&View",
         .tip = " Click: Toggle the Extended View | Alt+Click: Toggle Y-Reg | Ctrl+ Toggle Lastx ",
         .font = kSmallCaption});
    put(cmdDigits, "cmdDigits",
        {.text = "Display(2)",
         .tip = " Click: Change Display Digits | Rt. Click: Toggle Ht ",
         .spoken = "Display digits",
         .font = kSmallCaption});
    put(cmdF11, "cmdF11",
        {.text = "F11", .tip = "Enter Program Mode", .spoken = "Program mode", .font = kSmallCaption});
    put(cmdF12, "cmdF12",
        {.text = "F12",
         .tip = "Enter Memory Array | Shift + perform Convert Fn (F10)",
         .spoken = "Memory array",
         .font = kSmallCaption});
}

void MainForm::dressOptions() {
    constexpr std::array<std::string_view, 3> kFormats{"F&IX", "S&CI", "EN&G"};
    constexpr std::array<std::string_view, 3> kFormatNames{"Fixed", "Scientific", "Engineering"};
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
        put(optFix.at(i), "optFix",
            {.kind = ControlKind::Option,
             .text = kFormats.at(i),
             .tip = " Display format ",
             .spoken = kFormatNames.at(i),
             .font = kSmallCaption},
            static_cast<int>(i));
    }
    optFix.front().checked = true;
    put(optDeg, "optDeg",
        {.kind = ControlKind::Option,
         .text = "Deg",
         .tip = " Angles in degrees ",
         .spoken = "Degrees",
         .font = kSmallCaption});
    put(optRad, "optRad",
        {.kind = ControlKind::Option,
         .text = "Rad",
         .tip = " Angles in radians ",
         .spoken = "Radians",
         .font = kSmallCaption});
    put(optGrad, "optGrad",
        {.kind = ControlKind::Option,
         .text = "Grad",
         .tip = " Angles in grads ",
         .spoken = "Grads",
         .font = kSmallCaption});
    optDeg.checked = true;
    put(fraKeyboard, "fraKeyboard", {.kind = ControlKind::Frame, .text = "Keyboard Key(s)", .font = kSmallCaption});
    constexpr std::array<std::string_view, 8> kModifiers{"Shift",     "Ctrl",     "Shift+Ctrl",     "Alt",
                                                         "Shift+Alt", "Ctrl+Alt", "Shift+Ctrl+Alt", ""};
    for (std::size_t i = 0; i < kModifiers.size(); ++i) {
        put(optKey.at(i), "optKey",
            {.kind = ControlKind::Option,
             .text = kModifiers.at(i),
             .tip = " Holds the key(s) for the next click ",
             .spoken = i == 7 ? "No modifier" : std::string_view{},
             .font = kSmallCaption,
             .visible = i != 7},
            static_cast<int>(i));
    }
    optKey.back().checked = true;
    put(shaShift, "shaShift", {.kind = ControlKind::Lamp, .spoken = "Shift lamp", .visible = false});
    put(shaCtrl, "shaCtrl", {.kind = ControlKind::Lamp, .spoken = "Ctrl lamp", .visible = false});
    put(shaAlt, "shaAlt", {.kind = ControlKind::Lamp, .spoken = "Alt lamp", .visible = false});
}

void MainForm::dressRegisters() {
    for (int i = 0; i < kRegisters; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const std::string number = std::to_string(i + 1);
        const std::string_view use = i == 0 ? " - Register arithmetic" : i == 1 ? " - math constant" : "";
        const std::string tip = "Register " + number + std::string(use);
        const Look label{.kind = ControlKind::Label, .text = number, .font = kSmallCaption, .visible = false};
        const Look field{.kind = ControlKind::Field, .tip = tip, .spoken = tip, .font = kNumbers, .visible = false};
        put(lblErg_m.at(at), "lblErg_m", label, i);
        put(txtReg_m.at(at), "txtReg_m", field, i);
        lblErg_m.at(at).rightAligned = txtReg_m.at(at).rightAligned = true;
    }
}

std::string MainForm::lineFor(const Control* pointed) const {
    // What a mode says of itself goes before all else, but for the contents of the register keys; what
    // the last key was refused for stands behind it.
    const std::string told = notice ? notice() : std::string{};
    if (!told.empty()) {
        return lblName.text.empty() ? told : lblName.text + ": " + told;
    }
    std::string words = pointed != nullptr && pointed->words && pointed->visible ? pointed->words() : std::string{};
    if (!lblName.text.empty()) {
        return words.find(':') == std::string::npos ? lblName.text : words;
    }
    if (!words.empty()) {
        return words;
    }
    std::string present = status ? status() : std::string{};
    return present.empty() && lblBank.visible ? lblBank.text : present;
}

std::array<KeypadEntry, 6> MainForm::keypadMenu() {
    return {{{mnuStd, Keypad::Standard},
             {mnuEngNormal, Keypad::Engineering},
             {mnuEngBinary, Keypad::Binary},
             {mnuMag, Keypad::Magnetics},
             {mnuTrig, Keypad::Trigonometry},
             {mnuConvert, Keypad::Convert}}};
}

void MainForm::enableKeypadMenu(bool enabled) {
    // A bank that is lent shows no captions that could be painted or not.
    mnuSkins.enabled = enabled;
    for (const KeypadEntry& entry : keypadMenu()) {
        entry.control.enabled = enabled;
    }
}

}  // namespace tallyforge
