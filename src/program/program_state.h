// SPDX-License-Identifier: GPL-3.0-or-later
//
// What of a program outlives its runs: variables, flags, names of keys, where it lies, the trace.
// It stays when Program mode is left.
#pragma once

#include "engine/engine_state.h"
#include "platform/file_name.h"
#include "program/variables.h"

#include <array>
#include <filesystem>
#include <string>

namespace tallyforge {

inline constexpr int kProgramFlags = 20;
/// Flags from here on are cleared by a test that finds them set.
inline constexpr int kFirstOneShotFlag = 11;
/// Set at the start of a run where digits were keyed.
inline constexpr int kDigitFlag = 19;

/// Keys of the program keypad that run no section of their own.
inline constexpr int kTraceKey = 0;
inline constexpr int kTraceExplorerKey = 1;
inline constexpr int kProgramExplorerKey = 2;
inline constexpr int kInitKey = 19;

inline constexpr const char* kDefaultTrace = "Traced.txt";

struct ProgramState {
    Variables variables;
    std::array<bool, kProgramFlags> ProgramFlags{};
    std::array<std::string, kBankKeys> ProgramKeyNames;
    std::array<bool, kBankKeys> ProgramKeyBold{};
    std::filesystem::path ProgramFolder;
    std::string ProgramFile;       ///< bare name; empty before a load
    bool ProgramLoaded = false;    ///< a load has opened a file
    bool variableMissing = false;  ///< a run has met a variable that is not declared
    bool resetLatch = false;       ///< a reset by a word: Program mode comes back behind it
    bool resetting = false;        ///< the Reset key runs "init"

    bool TraceOn = false;
    bool TraceHeaderDone = false;
    std::string TraceFileName = kDefaultTrace;
    bool TraceRenamed = false;

    [[nodiscard]] std::filesystem::path programPath() const { return ProgramFolder / pathOf(ProgramFile); }
};

}  // namespace tallyforge
