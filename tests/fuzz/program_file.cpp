// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes are a program file: it loads or is refused with a message, its sections run to an end
// or are ended, and what holds after every commit holds behind them.
#include "platform/form_input.h"
#include "program/program_text.h"
#include "shell/calculator.h"
#include "support/test_platform.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace {

using namespace tallyforge;

/// The user ends whatever runs for long.
class Impatient : public TestPlatform {
public:
    Interruption breathe() override { return Interruption::Break; }
};

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void checkText(std::string_view bytes) {
    const Variables variables;
    ProgramText text(bytes);
    for (int number = 1; number <= text.count(); ++number) {
        const ProgramLine& line = text.prepared(number, variables);
        require(text.line(number).skipped() || !line.words.empty());
        const int endif = text.endifOf(number);
        require(endif == 0 || (endif > number && endif <= text.count()));
    }
    const ProgramCounts counts = text.counts();
    require(counts.ends >= counts.endifs && counts.labels <= text.count());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    if (size < 4000) {
        checkText(bytes);
    }
    Impatient desktop;
    Calculator calculator(desktop);
    calculator.start();
    std::filesystem::create_directories(desktop.folder / "programs");
    std::ofstream(desktop.folder / "programs/fuzz.rec", std::ios::binary) << bytes;
    desktop.texts.push_back("fuzz");
    Engine& calc = calculator.engine();
    click(calc.form, calc.form.mnuProgram);
    for (Control& key : calc.form.cmdFunctions) {
        if (calc.s.modes.ProgramMode) {
            click(calc.form, key);
        }
    }
    require(calc.s.stack.StackPtr >= 1);
    require(calc.s.stack.Stack.size() >= static_cast<std::size_t>(calc.s.stack.StackPtr) + 1);
    require(!calculator.programs().running() && !calc.unwatched);
    return 0;
}
