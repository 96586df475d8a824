// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menus of the main form, an entry a row.
#include "engine/main_form.h"

#include <string_view>

namespace tallyforge {

namespace {

/// The entries of the menus, in their order.
struct MenuRow {
    Control MainForm::*control;
    std::string_view name;
    std::string_view menu;
    std::string_view caption;
};

constexpr MenuRow kMenus[] = {
    {&MainForm::mnuFile, "mnuFile", "", "&File"},
    {&MainForm::mnuTip, "mnuTip", "mnuFile", "&Show Tip of the Day"},
    {&MainForm::mnuAOT, "mnuAOT", "mnuFile", "Always on &Top"},
    {&MainForm::mnuLoad, "mnuLoad", "mnuFile", "Always Load &Default Program"},
    {&MainForm::mnuPosition, "mnuPosition", "mnuFile", "Save &Window Position"},
    {&MainForm::mnuSkins, "mnuSkins", "mnuFile", "View Skins"},
    {&MainForm::space6, "space6", "mnuFile", "-"},
    {&MainForm::mnuCopy, "mnuCopy", "mnuFile", "&Copy x-reg to Clipboard"},
    {&MainForm::mnuPaste, "mnuPaste", "mnuFile", "&Paste to x-reg from Clipboard"},
    {&MainForm::mnuPrint, "mnuPrint", "mnuFile", "&Print the RTD and Stack"},
    {&MainForm::space4, "space4", "mnuFile", "-"},
    {&MainForm::mnuWeb, "mnuWeb", "mnuFile", "Oakhollow on the &web"},
    {&MainForm::mnuVersion, "mnuVersion", "mnuFile", "Check for &latest version"},
    {&MainForm::space0, "space0", "mnuFile", "-"},
    {&MainForm::mnuHelp, "mnuHelp", "mnuFile", "&Help"},
    {&MainForm::mnuHelpIntro, "mnuHelpIntro", "mnuHelp", "The &Tallyforge"},
    {&MainForm::mnuHlepStd, "mnuHlepStd", "mnuHelp", "&Standard Kepad"},
    {&MainForm::mnuEngKp, "mnuEngKp", "mnuHelp", "&Engineering Keypad"},
    {&MainForm::mnuBKP, "mnuBKP", "mnuHelp", "&Binary Keypad"},
    {&MainForm::mnuMagKp, "mnuMagKp", "mnuHelp", "&Magnetics Keypad"},
    {&MainForm::mnuTrigKp, "mnuTrigKp", "mnuHelp", "&Trig Keypad"},
    {&MainForm::mnuCvrtKp, "mnuCvrtKp", "mnuHelp", "&Convert Keypad"},
    {&MainForm::mnuHelpSupport, "mnuHelpSupport", "mnuHelp", "Su&pport"},
    {&MainForm::mnuAbout, "mnuAbout", "mnuFile", "&About"},
    {&MainForm::Space3, "Space3", "mnuFile", "-"},
    {&MainForm::mnuSave, "mnuSave", "mnuFile", "&Save Settings"},
    {&MainForm::mnuSaveTape, "mnuSaveTape", "mnuFile", "Save &Running Tape"},
    {&MainForm::mnuSaveMem, "mnuSaveMem", "mnuFile", "Save &Memory Registers"},
    {&MainForm::space2, "space2", "mnuFile", "-"},
    {&MainForm::mnuTape, "mnuTape", "mnuFile", "Retrieve Running &Tape"},
    {&MainForm::mnuRetMem, "mnuRetMem", "mnuFile", "Retrieve Memory Re&gisters"},
    {&MainForm::mnuProgram, "mnuProgram", "mnuFile", "R&etrieve Program"},
    {&MainForm::space5, "space5", "mnuFile", "-"},
    {&MainForm::mnuFileExit, "mnuFileExit", "mnuFile", "E&xit"},
    {&MainForm::mnuKeypad, "mnuKeypad", "", "&Keypad"},
    {&MainForm::mnuStd, "mnuStd", "mnuKeypad", "&Std"},
    {&MainForm::mnuEngNormal, "mnuEngNormal", "mnuKeypad", "&Engr'g"},
    {&MainForm::mnuEngBinary, "mnuEngBinary", "mnuKeypad", "&Binary"},
    {&MainForm::mnuMag, "mnuMag", "mnuKeypad", "&Magnetics"},
    {&MainForm::mnuTrig, "mnuTrig", "mnuKeypad", "&Trig"},
    {&MainForm::mnuConvert, "mnuConvert", "mnuKeypad", "Co&nvert"},
    {&MainForm::mnuExport, "mnuExport", "", "&Export"},
    {&MainForm::mnuExportText, "mnuExportText", "mnuExport", "Tape as &Text"},
    {&MainForm::mnuExportCsv, "mnuExportCsv", "mnuExport", "Tape as &CSV"},
    {&MainForm::mnuExportHtml, "mnuExportHtml", "mnuExport", "Tape as &HTML"},
};

}  // namespace

void MainForm::dressMenus() {
    for (const MenuRow& row : kMenus) {
        Control& entry = this->*row.control;
        const bool holds = row.menu.empty() || &entry == &mnuHelp;
        const ControlKind kind = holds                ? ControlKind::Menu
                                 : row.caption == "-" ? ControlKind::Separator
                                                      : ControlKind::MenuEntry;
        put(entry, row.name, {.kind = kind, .text = row.caption});
        entry.menu = row.menu;
    }
    mnuSkins.checked = true;
    mnuAOT.placesWindow = true;
    mnuPosition.placesWindow = true;
}

}  // namespace tallyforge
