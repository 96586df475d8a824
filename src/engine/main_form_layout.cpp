// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where everything stands. The plain form, top to bottom: name line, tape and stack list, entry
// line, the bank beside the number pad, the modifier strip. What the tall and the extended view
// add to the height goes to the lists; the extended view's register column stands on the right.
#include "engine/main_form.h"
#include "engine/tape_width.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr int kMargin = 120;
constexpr int kRight = 5190;  ///< right edge of the plain form's contents
constexpr int kKey = 400;     ///< side of a key
constexpr int kPitch = 480;   ///< from key to key
constexpr int kNameTop = 30;
constexpr int kNameHeight = 210;
constexpr int kListTop = 250;
constexpr int kListHeight = 1400;
constexpr int kStackLeft = 3420;
constexpr int kMarkLeft = 3276;
constexpr int kMarkHeight = 175;
constexpr int kListPadding = 40;  ///< between a list's edge and its text
constexpr int kEntryTop = 1700;
constexpr int kUnderStack = 640;  ///< of the extended view: y and last x
constexpr int kEntryHeight = 450;
constexpr int kBankTop = 2280;
constexpr int kBankHeight = 2800;
constexpr int kPadLeft = 2150;
constexpr int kPadPitch = 520;
constexpr int kPadKey = 440;  ///< as far apart as the keys of the bank

/// Columns and rows of the bank's keys, by key index.
struct Cell {
    int column;
    int row;
};
constexpr std::array<Cell, kBankKeys> kBankCells{{
    {2, 5}, {1, 5}, {0, 5}, {3, 2}, {3, 1}, {2, 1}, {0, 4}, {0, 3}, {3, 3}, {2, 3}, {1, 3}, {0, 1},
    {3, 0}, {2, 0}, {1, 0}, {0, 0}, {3, 4}, {2, 4}, {1, 4}, {3, 5}, {2, 2}, {1, 2}, {0, 2}, {1, 1},
}};

}  // namespace

void MainForm::arrange(bool extended, int extraHeight) {
    extended_ = extended;
    extraHeight_ = std::max(extraHeight, 0);
    contentHeight_ = kBankTop + kBankHeight + kOptionStrip + extraHeight_;
    const int extra = extraHeight_ + spareHeight_;
    placeLists(extended, extra);
    placeEntry(extended, extra);
    placeBank(kBankTop + extra);
    placePad(kBankTop + extra);
    placeOptions(kBankTop + kBankHeight + extra);
    placeRegisters();
}

int MainForm::fill(int spareHeight, int spareWidth) {
    // Beyond the longest number there is nothing more to show.
    constexpr int kMostForStack = 3600;
    constexpr int kMostForRegisters = 2400;
    const int stack = std::min(extended_ ? spareWidth / 2 : spareWidth, kMostForStack);
    const int registers = extended_ ? std::min(spareWidth - stack, kMostForRegisters) : 0;
    if (spareHeight_ != spareHeight || stackGrowth_ != stack || registerGrowth_ != registers) {
        spareHeight_ = spareHeight;
        stackGrowth_ = stack;
        registerGrowth_ = registers;
        arrange(extended_, extraHeight_);
    }
    return stack + registers;
}

// The right edge of the lists.
int MainForm::right() const {
    return kRight + stackGrowth_;
}

void MainForm::placeLists(bool extended, int extra) {
    // One line for both: it shows the keypad's name where there is nothing else to say.
    lblName.place = {.left = kMargin, .top = kNameTop, .width = 3080, .height = kNameHeight};
    lblBank.place = {.left = kMargin, .top = kNameTop, .width = 0, .height = kNameHeight};
    lblLists.place = {
        .left = kMarkLeft, .top = kNameTop, .width = right() - kMarkLeft - kListPadding, .height = kNameHeight};
    lblCnvrt.place = {.left = 1000, .top = kNameTop, .width = 2200, .height = kNameHeight};
    // The tape's width is its own: it grows once the filler lines are gone.
    const int tapeWidth = lstDisplayReg.place.width == 0 ? kNarrowTape : lstDisplayReg.place.width;
    lstDisplayReg.place = {.left = kMargin, .top = kListTop, .width = tapeWidth, .height = kListHeight + extra};
    const int stackHeight = kListHeight + extra - (extended ? kUnderStack : 0);
    lstStack.place = {.left = kStackLeft, .top = kListTop, .width = right() - kStackLeft, .height = stackHeight};
    const int rows = static_cast<int>(lblStkReg.size());
    for (int label = 0; label < rows; ++label) {
        lblStkReg.at(static_cast<std::size_t>(label)).place = {.left = kMarkLeft,
                                                               .top = kListTop + (rows - 1 - label) * kMarkHeight,
                                                               .width = kStackLeft - kMarkLeft,
                                                               .height = kMarkHeight};
    }
}

void MainForm::placeEntry(bool extended, int extra) {
    const int top = kEntryTop + extra;
    const bool small = !extended && (txty_Reg.visible || txtLastx.visible);
    const int left = small ? kPadLeft : kMargin;
    txtXreg.place = {.left = left, .top = top, .width = right() - left, .height = kEntryHeight};
    Label8.place = {.left = kMargin, .top = top, .width = 300, .height = kEntryHeight};
    constexpr int kLabelWidth = 560;
    constexpr int kFieldWidth = 1230;
    constexpr int kFieldHeight = 218;
    if (extended) {
        const int fieldLeft = right() - kFieldWidth;
        const int besideField = fieldLeft - kStackLeft;
        const auto row = [&](Control& label, Control& field, int above) {
            constexpr int kRowHeight = 260;
            const int rowTop = kListTop + kListHeight + extra - above;
            label.place = {.left = kStackLeft, .top = rowTop, .width = besideField, .height = kRowHeight};
            field.place = {.left = fieldLeft, .top = rowTop, .width = kFieldWidth, .height = kRowHeight};
        };
        row(Label7, txty_Reg, 580);
        row(Label9, txtLastx, 260);
        return;
    }
    Label7.place = {.left = kMargin, .top = top, .width = kLabelWidth, .height = kFieldHeight};
    txty_Reg.place = {.left = kMargin + kLabelWidth, .top = top, .width = kFieldWidth, .height = kFieldHeight};
    Label9.place = {.left = kMargin, .top = top + 232, .width = kLabelWidth, .height = kFieldHeight};
    txtLastx.place = {.left = kMargin + kLabelWidth, .top = top + 232, .width = kFieldWidth, .height = kFieldHeight};
}

void MainForm::placeBank(int top) {
    for (std::size_t i = 0; i < cmdFunctions.size(); ++i) {
        const Cell cell = kBankCells.at(i);
        cmdFunctions.at(i).place = {.left = kMargin + padShift() + cell.column * kPitch,
                                    .top = top + cell.row * kPitch,
                                    .width = kKey,
                                    .height = kKey};
    }
}

void MainForm::placePad(int top) {
    const auto at = [this, top](Control& control, int column, int row, int columns = 1, int rows = 1) {
        control.place = {.left = kPadLeft + padShift() + column * kPadPitch,
                         .top = top + row * kPitch,
                         .width = kPadKey + (columns - 1) * kPadPitch,
                         .height = kKey + (rows - 1) * kPitch};
    };
    at(cmdSTO, 0, 0);
    at(cmdView, 1, 0);
    at(cmdDigits, 2, 0, 2);
    at(cmdF11, 4, 0);
    at(cmdF12, 5, 0);
    at(cmdDown, 0, 1);
    at(cmdXchgY, 1, 1);
    at(cmdChs, 2, 1);
    at(cmdLastx, 3, 1);
    at(cmdBackSpace, 4, 1);
    at(cmdEsc, 5, 1);
    for (int digit = 1; digit <= 9; ++digit) {
        at(cmdNumPad.at(static_cast<std::size_t>(digit)), (digit - 1) % 3, 4 - (digit - 1) / 3);
    }
    at(cmdNumPad.at(0), 0, 5);
    at(cmdNumPad.at(10), 1, 5);
    at(cmdEex, 2, 5);
    for (std::size_t i = 0; i < cmdMath.size(); ++i) {
        at(cmdMath.at(i), 3, 2 + static_cast<int>(i));
    }
    at(cmdEnter, 4, 4, 2, 2);

    // Format and angle fill the two key places above Enter.
    constexpr int kOptionHeight = 280;
    constexpr int kFormatWidth = 460;
    const int left = kPadLeft + padShift() + 4 * kPadPitch;
    const int angleWidth = kRight + padShift() - left - kFormatWidth;
    const int optionTop = top + 2 * kPitch;
    const auto option = [&](Control& control, int column, int row) {
        control.place = {.left = left + column * kFormatWidth,
                         .top = optionTop + row * (kOptionHeight + 16),
                         .width = column == 0 ? kFormatWidth : angleWidth,
                         .height = kOptionHeight};
    };
    Control* const angles[] = {&optDeg, &optRad, &optGrad};
    for (int i = 0; i < 3; ++i) {
        option(optFix.at(static_cast<std::size_t>(i)), 0, i);
        option(*angles[i], 1, i);
    }
}

void MainForm::placeOptions(int top) {
    constexpr int kBelowBank = 30;
    fraKeyboard.place = {
        .left = kMargin + padShift(), .top = top + kBelowBank, .width = 4280, .height = kOptionStrip - 2 * kBelowBank};
    constexpr int kRowHeight = 190;
    struct Spot {
        int left;
        int row;
        int width;
    };
    // Three columns with Shift, Ctrl and Alt at their heads.
    constexpr std::array<Spot, 8> kSpots{{{220, 0, 520},
                                          {1240, 0, 480},
                                          {220, 1, 900},
                                          {2200, 0, 440},
                                          {1240, 1, 860},
                                          {2200, 1, 800},
                                          {3010, 1, 1360},
                                          {0, 0, 0}}};
    for (std::size_t i = 0; i < kSpots.size(); ++i) {
        const Spot& spot = kSpots.at(i);
        optKey.at(i).place = {.left = spot.left + padShift(),
                              .top = top + kBelowBank + 160 + spot.row * kRowHeight,
                              .width = spot.width,
                              .height = kRowHeight};
    }
    Control* const lamps[] = {&shaShift, &shaCtrl, &shaAlt};
    constexpr std::array<int, 3> kLampOf{0, 1, 3};
    for (std::size_t i = 0; i < kLampOf.size(); ++i) {
        const Place& option = optKey.at(static_cast<std::size_t>(kLampOf.at(i))).place;
        lamps[i]->place = {
            .left = option.left + option.width + 50, .top = option.top + 45, .width = 100, .height = 100};
    }
    constexpr int kResetLeft = 4480;
    cmdReset.place = {.left = kResetLeft + padShift(), .top = top + 130, .width = kRight - kResetLeft, .height = kKey};
}

void MainForm::placeRegisters() {
    // Two columns of the array stand in one row of fields each; the first twelve are ever shown.
    constexpr int kShown = 12;
    constexpr int kBeside = 140;  ///< between the stack and the numbers of the registers
    constexpr int kNumberWidth = 300;
    constexpr int kBesideField = 60;
    constexpr int kFieldWidth = 1450;
    constexpr int kFieldHeight = 300;
    const int left = right() + kBeside;
    const int pitch = std::min(kPitch, (contentHeight_ + spareHeight_ - kListTop) / kShown);
    for (int i = 0; i < kRegisters; ++i) {
        const int top = kListTop + (i % kShown) * pitch;
        lblErg_m.at(static_cast<std::size_t>(i)).place = {
            .left = left, .top = top, .width = kNumberWidth - kBesideField, .height = kFieldHeight};
        txtReg_m.at(static_cast<std::size_t>(i)).place = {
            .left = left + kNumberWidth, .top = top, .width = kFieldWidth + registerGrowth_, .height = kFieldHeight};
    }
}

}  // namespace tallyforge
