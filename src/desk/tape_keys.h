// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user does to the tape and the stack list: bring a value back, save the machine's state
// to a file, retrieve it.
#pragma once

#include "records/tape_file.h"

#include <cstddef>
#include <filesystem>
#include <optional>

namespace tallyforge {

class Engine;
class MachineReset;
class MemoryRegisters;
class SettingsFile;

class TapeKeys {
public:
    TapeKeys(Engine& calculator, SettingsFile& settingsFile, MemoryRegisters& memory, MachineReset& machine);

    /// Pushes the value behind the selected tape line, under the label at the line's end.
    void lstDisplayReg_DblClick();
    /// Pushes the selected element of the stack list.
    void lstStack_Click();

    /// Saves to a file that the user names; with UndoKind set, to "undo.rec" without a question.
    void mnuSaveTape_Click();
    /// Retrieves a file that the user names; with UndoKind 4, "undo.rec". The file is taken whole
    /// or not at all.
    void mnuTape_Click();

    /// Retrieves the file at `path`, after the question of the menu entry.
    void openFile(const std::filesystem::path& path);

    /// Takes the "undo.rec" that there is at the start for one of an earlier run; a later one that
    /// this calculator has not written is another's. Called once the data folder is known.
    void noteUndoFile();

private:
    void saveTo(const std::filesystem::path& path);
    void retrieve(const std::filesystem::path& path);
    [[nodiscard]] bool mayReplaceAll();
    void retrieveOrReport(const std::filesystem::path& path);
    [[nodiscard]] TapeFileContent read(const Bytes& file);
    void restore(const TapeFileContent& content);
    void makeRoom(std::size_t bytes);
    void undo();
    [[nodiscard]] TapeFileContent present(TapeFileKind kind) const;
    void take(const TapeFileContent& content);
    [[nodiscard]] std::optional<std::filesystem::path> askForTape();

    Engine& calc;
    SettingsFile& settings;
    MemoryRegisters& registers;
    MachineReset& reset;
    std::optional<TapeFileContent> cleared_;  ///< by the last Reset of this run
    std::optional<FileBytes> undoFile_;       ///< that the last Reset of this run has written
    bool hasReset_ = false;
    std::optional<std::filesystem::file_time_type> undoFileAtStart_;
};

}  // namespace tallyforge
