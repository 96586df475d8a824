// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/calculator.h"

#include "dialogs/unit_choice.h"
#include "platform/file_name.h"
#include "shell/about_dialog.h"
#include "shell/form_words.h"
#include "shell/help_topics.h"
#include "shell/tip_dialog.h"

#include <new>
#include <utility>

namespace tallyforge {

Calculator::Calculator(Platform& platform)
    : engine_(platform),
      keypads_(engine_),
      stackKeys_(engine_),
      entryLine_(engine_, stackKeys_),
      registers_(engine_, settings_),
      machineReset_(engine_),
      tapeKeys_(engine_, settings_, registers_, machineReset_),
      resetKey_(engine_, machineReset_, tapeKeys_),
      viewKeys_(engine_, settings_),
      lifeCycle_(engine_, settings_, viewKeys_),
      clipboard_(engine_),
      printing_(engine_),
      tapeExport_(engine_),
      programs_({.calc = engine_,
                 .keypads = keypads_,
                 .stackKeys = stackKeys_,
                 .registers = registers_,
                 .resetKey = resetKey_,
                 .settings = settings_}) {
    engine_.form.failed = [this](const std::exception& failure) { tellFailure(failure); };
    platform.handlerFailed = engine_.form.failed;
    hangEntry();
    hangHelpTopics(engine_);
    hangKeys();
    hangOptions();
    hangMenus();
    hangHelpMenu();
    hangLifeCycle();
    hangPrograms();
    hangWords(engine_, clipboard_);
}

void Calculator::hangEntry() {
    Control& entry = engine_.form.txtXreg;
    entry.keyDown = [this](KeyEvent event) { entryLine_.txtXreg_KeyDown(event); };
    entry.keyPress = [this](int& keyAscii) { entryLine_.txtXreg_KeyPress(keyAscii); };
    entry.keyUp = [this](KeyEvent event) { entryLine_.txtXreg_KeyUp(event); };
    engine_.form.lstDisplayReg.doubleClick = [this] { tapeKeys_.lstDisplayReg_DblClick(); };
    engine_.form.lstStack.click = [this] { tapeKeys_.lstStack_Click(); };
}

void Calculator::hangKeys() {
    MainForm& form = engine_.form;
    form.cmdEnter.click = [this] { keypads_.cmdEnter_Click(); };
    for (int i = 0; i < static_cast<int>(form.cmdNumPad.size()); ++i) {
        form.cmdNumPad.at(static_cast<std::size_t>(i)).click = [this, i] { entryLine_.cmdNumPad_Click(i); };
    }
    form.cmdBackSpace.click = [this] { entryLine_.cmdBackSpace_Click(); };
    form.cmdEex.click = [this] { entryLine_.cmdEex_Click(); };
    form.cmdEsc.click = [this] { entryLine_.cmdEsc_Click(); };
    form.cmdF11.click = [this] { entryLine_.cmdF11_Click(); };
    form.cmdF12.click = [this] { entryLine_.cmdF12_Click(); };
    form.cmdDown.click = [this] { stackKeys_.cmdDown_Click(); };
    form.cmdXchgY.click = [this] { stackKeys_.cmdXchgY_Click(); };
    form.cmdChs.click = [this] { stackKeys_.cmdChs_Click(); };
    form.cmdLastx.click = [this] { stackKeys_.cmdLastx_Click(); };
    form.cmdSTO.click = [this] { registers_.cmdSTO_Click(); };
    form.cmdReset.click = [this] { resetKey_.cmdReset_Click(); };
    form.cmdView.click = [this] { viewKeys_.cmdView_Click(); };
    form.cmdDigits.click = [this] {
        if (engine_.s.modifiers.ModifierMask == kCtrl) {
            viewKeys_.toggleTall();
            engine_.ClearOptKeys();
        } else {
            engine_.display.cmdDigits_Click();
        }
    };
    keypads_.dispatch.typeCharacter = [this](char character) { entryLine_.typeBaseCharacter(character); };
    keypads_.dispatch.registerKey = [this](int index) { registers_.RegisterKey(index); };
    keypads_.model.hintDue = [this](Keypad keypad) { return lifeCycle_.countNotice(keypad); };
    keypads_.keys.saveUnits = [this](std::span<const UnitRange* const> ranges) {
        return askToSaveUnits(engine_, settings_, ranges);
    };
    keypads_.above.copy = [this] { clipboard_.mnuCopy_Click(); };
    keypads_.above.paste = [this] { clipboard_.mnuPaste_Click(); };
}

void Calculator::hangOptions() {
    MainForm& form = engine_.form;
    for (int i = 0; i < static_cast<int>(form.optFix.size()); ++i) {
        form.optFix.at(static_cast<std::size_t>(i)).click = [this, i] {
            engine_.display.optFix_Click(static_cast<DisplayMode>(i));
        };
    }
    const std::pair<Control*, AngleMode> angles[] = {
        {&form.optDeg, AngleMode::Degrees}, {&form.optRad, AngleMode::Radians}, {&form.optGrad, AngleMode::Grads}};
    for (const auto& [option, mode] : angles) {
        option->click = [this, chosen = mode] {
            engine_.s.format.Angle = chosen;
            engine_.focusEntry();
        };
    }
}

void Calculator::hangMenus() {
    MainForm& form = engine_.form;
    form.mnuAOT.click = [this] { lifeCycle_.mnuAOT_Click(); };
    form.mnuLoad.click = [this] { lifeCycle_.mnuLoad_Click(); };
    form.mnuPosition.click = [this] { lifeCycle_.mnuPosition_Click(); };
    form.mnuSkins.click = [this] { lifeCycle_.mnuSkins_Click(); };
    form.mnuCopy.click = [this] { clipboard_.mnuCopy_Click(); };
    form.mnuPaste.click = [this] { clipboard_.mnuPaste_Click(); };
    form.mnuPrint.click = [this] { printing_.mnuPrint_Click(); };
    form.mnuExportText.click = [this] { tapeExport_.mnuExportText_Click(); };
    form.mnuExportCsv.click = [this] { tapeExport_.mnuExportCsv_Click(); };
    form.mnuExportHtml.click = [this] { tapeExport_.mnuExportHtml_Click(); };
    form.mnuTip.click = [this] { engine_.form.mnuTip.checked = showTips(engine_); };
    keypads_.above.showTips = [this] { return showTips(engine_); };
    form.mnuAbout.click = [this] {
        AboutDialog dialog(engine_);
        engine_.platform.showDialog(dialog);
        engine_.focusEntry();
    };
    form.mnuWeb.click = [this] { openAfterQuestion("Open the manual?", "manual.html"); };
    form.mnuVersion.click = [this] { openAfterQuestion("Open the list of changes?", "changes.html"); };
    form.mnuSave.click = [this] { lifeCycle_.mnuSave_Click(); };
    form.mnuSaveTape.click = [this] { tapeKeys_.mnuSaveTape_Click(); };
    form.mnuTape.click = [this] { tapeKeys_.mnuTape_Click(); };
    form.mnuSaveMem.click = [this] { registers_.mnuSaveMem_Click(); };
    form.mnuRetMem.click = [this] { registers_.mnuRetMem_Click(); };
    form.mnuFileExit.click = [this] { lifeCycle_.Form_Unload(); };
}

void Calculator::openFile(const std::filesystem::path& file) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(file, error);
    if (path.extension() == ".rec") {
        programs_.openFile(path);
    } else if (path.extension() == ".tape") {
        tapeKeys_.openFile(path);
    } else {
        engine_.message(BoxKind::Stop, "Open File",
                        nameOf(path) + " is no program (.rec) and no running tape (.tape).");
    }
    engine_.focusEntry();
}

void Calculator::hangHelpMenu() {
    MainForm& form = engine_.form;
    const std::pair<Control*, int> topics[] = {
        {&form.mnuHelpIntro, 500}, {&form.mnuHlepStd, 1000}, {&form.mnuEngKp, 2101},  {&form.mnuBKP, 2102},
        {&form.mnuMagKp, 2103},    {&form.mnuTrigKp, 2104},  {&form.mnuCvrtKp, 2105}, {&form.mnuHelpSupport, 2100},
    };
    for (const auto& [entry, number] : topics) {
        entry->click = [this, topic = number] { engine_.platform.helpTopic(topic); };
    }
}

// The pages come with the calculator; nothing is fetched or sent.
void Calculator::openAfterQuestion(std::string_view question, std::string_view page) {
    if (engine_.question("Oakhollow", question)) {
        engine_.platform.openUrl(page);
    }
    engine_.focusEntry();
}

void Calculator::hangLifeCycle() {
    MainForm& form = engine_.form;
    form.load = [this] {
        lifeCycle_.Form_Load();
        if (engine_.form.open) {
            keypads_.keys.conversions.load();
        }
    };
    lifeCycle_.saveMore = [this] { keypads_.keys.conversions.save(); };
    form.activate = [this] { lifeCycle_.Form_Activate(); };
    form.deactivate = [this] { lifeCycle_.Form_Deactivate(); };
    form.close = [this] { lifeCycle_.Form_Unload(); };
}

void Calculator::hangPrograms() {
    keypads_.dispatch.programKey = [this](int index) {
        programs_.RunProgramKey(index);
        return true;
    };
    keypads_.dispatch.programRuns = [this] { return programs_.running(); };
    keypads_.keys.runProgram = [this](std::string_view name) { programs_.loadBuiltIn(std::string(name)); };
    Keypads::Above& above = keypads_.above;
    above.toggleProgramMode = [this] { programs_.ToggleProgramMode(); };
    above.programLetter = [this](int letter) { programs_.pressLetter(letter); };
    above.loadProgram = [this] { programs_.mnuProgram_Click(); };
    above.resetProgram = [this] { programs_.resetProgram(); };
    above.toggleMemoryArray = [this] {
        if (engine_.s.modes.ProgramMode) {
            programs_.ToggleProgramMode();
        }
        registers_.MemoryArray();
    };
    engine_.form.mnuProgram.click = [this] { programs_.mnuProgram_Click(); };
}

void Calculator::load() {
    engine_.form.load();
    tapeKeys_.noteUndoFile();
}

void Calculator::activate() {
    if (engine_.form.open) {
        try {
            engine_.form.activate();
        } catch (const std::exception& failure) {
            tellFailure(failure);
        }
    }
}

void Calculator::start() {
    load();
    activate();
}

// What a handler let through: the key ends, and what it has not touched stands.
void Calculator::tellFailure(const std::exception& failure) {
    EngineState& s = engine_.s;
    s.delivery = {};
    engine_.closeEmptyEntry();
    const bool memory = dynamic_cast<const std::bad_alloc*>(&failure) != nullptr;
    engine_.errorBox(BoxKind::Stop, memory ? "Error: there is not enough memory for that!" : "Error");
}

std::optional<std::size_t> Calculator::rowOf(const Control& list, int number) const {
    int row = number - 1;
    if (list.rows == &engine_.tape) {
        row += engine_.tape.fillers();
    } else if (list.rows == &engine_.stackList) {
        row = number - engine_.stackList.element(0);
    }
    const bool there =
        number >= 1 && row >= 0 && list.rows != nullptr && static_cast<std::size_t>(row) < list.rows->count();
    return there ? std::optional{static_cast<std::size_t>(row)} : std::nullopt;
}

}  // namespace tallyforge
