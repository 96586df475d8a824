// SPDX-License-Identifier: GPL-3.0-or-later
//
// The whole calculator, put together: the main form with every handler hung on it. A desktop makes
// one of these, calls start(), renders engine().form and passes input to form_input.h.
#pragma once

#include "desk/entry_line.h"
#include "desk/life_cycle.h"
#include "desk/machine_reset.h"
#include "desk/memory_registers.h"
#include "desk/reset_key.h"
#include "desk/stack_keys.h"
#include "desk/tape_keys.h"
#include "desk/view_keys.h"
#include "engine/engine.h"
#include "keypads/keypads.h"
#include "program/programs.h"
#include "records/settings_file.h"
#include "shell/clipboard.h"
#include "shell/printing.h"
#include "shell/tape_export.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <optional>

namespace tallyforge {

class Calculator {
public:
    explicit Calculator(Platform& platform);
    Calculator(const Calculator&) = delete;
    Calculator& operator=(const Calculator&) = delete;

    /// Loads the form and activates it. The form is closed again where the start fails.
    void start();
    /// The two halves of start(), for a desktop that shows its window in between: the default
    /// program runs when the form is activated, and its user must see it and be able to end it.
    void load();
    void activate();

    [[nodiscard]] Engine& engine() { return engine_; }
    [[nodiscard]] const Engine& engine() const { return engine_; }
    /// Takes a file of the user's that the desktop was asked to open: loads a program (".rec"),
    /// retrieves a tape (".tape"), both with the questions of their menu entries. A message tells
    /// what is neither, not there or damaged.
    void openFile(const std::filesystem::path& file);

    [[nodiscard]] Programs& programs() { return programs_; }

    /// Row of a list by the number that a user gives it: tape line from 1 without the filler
    /// lines, or stack element. Empty where there is no such row.
    [[nodiscard]] std::optional<std::size_t> rowOf(const Control& list, int number) const;

private:
    void tellFailure(const std::exception& failure);
    void hangEntry();
    void hangKeys();
    void hangOptions();
    void hangMenus();
    void hangHelpMenu();
    void openAfterQuestion(std::string_view question, std::string_view page);
    void hangLifeCycle();
    void hangPrograms();

    Engine engine_;
    Keypads keypads_;
    StackKeys stackKeys_;
    EntryLine entryLine_;
    SettingsFile settings_;
    MemoryRegisters registers_;
    MachineReset machineReset_;
    TapeKeys tapeKeys_;
    ResetKey resetKey_;
    ViewKeys viewKeys_;
    LifeCycle lifeCycle_;
    Clipboard clipboard_;
    Printing printing_;
    TapeExport tapeExport_;
    Programs programs_;
};

}  // namespace tallyforge
