// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program that waits, on the real clock.
#include "script_fixture.h"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace tallyforge {
namespace {

using ProgramPause = ScriptTest;

TEST_F(ProgramPause, WaitsWithoutBurningACore) {
    std::filesystem::create_directories(folder.path / "programs");
    std::ofstream(folder.path / "programs/wait.rec") << "#\nlbl init\nend\nlbl a\n1\npause 0.4\n2\nend\n";
    std::chrono::steady_clock::time_point begun;
    std::clock_t used = 0;
    std::chrono::duration<double> took{};
    double busy = 0.0;
    const auto begin = [&] {
        begun = std::chrono::steady_clock::now();
        used = std::clock();
    };
    const auto end = [&] {
        took = std::chrono::steady_clock::now() - begun;
        busy = static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC;
    };
    EXPECT_EQ(runHooked({{.text = "answer text wait", .before = {}},
                         {.text = "menu mnuProgram", .before = {}},
                         {.text = "click cmdFunctions(15)", .before = begin},
                         {.text = "show x", .before = end}}),
              ScriptEnd::Done);
    EXPECT_EQ(out.back(), "x 2");
    EXPECT_GE(took.count(), 0.4);
    EXPECT_LT(busy, 0.1);
}

}  // namespace
}  // namespace tallyforge
