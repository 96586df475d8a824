// SPDX-License-Identifier: GPL-3.0-or-later
//
// The trace of a run: a line for each word, appended to a text file in the folder "Traces".
#pragma once

#include "engine/engine.h"
#include "platform/file_store.h"
#include "program/program_state.h"

#include <optional>
#include <string_view>

namespace tallyforge {

class Trace {
public:
    Trace(Engine& calculator, ProgramState& programState) : calc(calculator), state(programState) {}

    /// Appends line number, word and X; date and time first, once a load. The file stays open until
    /// the end of the run. Raises 75 where it cannot be written.
    void write(int line, std::string_view word);

private:
    void open();

    Engine& calc;
    ProgramState& state;
    std::optional<GrowingFile> file_;
};

}  // namespace tallyforge
