// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes are a key script: it ends with one of its three statuses, and what holds after every
// commit holds at its end.
#include "desktops/headless/key_script.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>

namespace {

/// The folder that all runs of this process use, empty at the start of each.
std::filesystem::path freshFolder() {
    static const std::string made = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "tallyforge-fuzz-XXXXXX").string();
        return std::string(mkdtemp(pattern.data()));
    }();
    std::filesystem::remove_all(made);
    std::filesystem::create_directory(made);
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
    const HeadlessOptions options{
        .data = freshFolder(), .now = LocalTime{.year = 2026, .month = 11, .day = 20, .hour = 14}, .seed = 1};
    std::istringstream lines(std::string(data, data + size));
    KeyScript script(
        options, [](std::string_view) {}, [](std::string_view) {});
    script.run(lines);
    const EngineState& state = script.calculator().engine().s;
    require(state.stack.StackPtr >= 1);
    require(state.stack.Stack.size() >= static_cast<std::size_t>(state.stack.StackPtr) + 1);
    return 0;
}
