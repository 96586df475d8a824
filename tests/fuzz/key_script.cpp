// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes are a key script: it ends with one of its three statuses, and what holds after every
// commit holds at its end. Bytes that begin with one above ASCII choose actions that are right.
#include "desktops/headless/key_script.h"
#include "fuzz/script_grammar.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace {

/// A statement of each kind, and a loop that ends.
constexpr std::string_view kLongProgram =
    "# nn kk\nlbl init\nname a go\nnn = 0\nend\nlbl a\nnn = 0\ndrop\nglb loop\nend\nlbl loop\nnn = nn 1 +\ndrop\n"
    "if nn < 20 then\nglb loop\nendif\ngsb work\nend\nlbl work\nsf-1\ntf-1\nsci\ndsp 4\nsto 3\nrcl 3\nend\n"
    "lbl b\numsg\n\\ x is {}\nend\nlbl c\ntrac\n1\n2\n+\ntrac\nend\nlbl d\nreset\nend\nlbl e\nkill\nend\n";

/// The folder that all runs of this process use, empty at the start of each.
std::filesystem::path freshFolder() {
    static const std::string made = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "tallyforge-fuzz-XXXXXX").string();
        return std::string(mkdtemp(pattern.data()));
    }();
    std::filesystem::remove_all(made);
    std::filesystem::create_directories(made + "/programs");
    std::ofstream(made + "/programs/short.rec") << "# aa\nlbl init\nend\nlbl a\naa = x x *\naa\nend\n";
    std::ofstream(made + "/programs/long.rec") << kLongProgram;
    return made;
}

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    const std::filesystem::path folder = freshFolder();
    const HeadlessOptions options{
        .data = folder, .home = folder, .now = LocalTime{.year = 2026, .month = 11, .day = 20, .hour = 14}, .seed = 1};
    constexpr std::uint8_t kLastAscii = 127;
    const bool chooses = size > 0 && data[0] > kLastAscii;
    std::istringstream lines(chooses ? scriptOf({data + 1, size - 1}) : std::string(data, data + size));
    KeyScript script(
        options, [](std::string_view) {}, [](std::string_view) {});
    script.run(lines);
    const EngineState& state = script.calculator().engine().s;
    require(state.stack.StackPtr >= 1);
    require(state.stack.Stack.size() >= static_cast<std::size_t>(state.stack.StackPtr) + 1);
    return 0;
}
