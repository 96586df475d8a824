// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes in the place of the option file: an option that is written then is there, and what the
// file held of others is still read as it was.
#include "desktops/headless/headless_platform.h"
#include "platform/file_store.h"
#include "support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    static const TemporaryFolder folder;
    constexpr const char* kWritten = "Show Tips at Startup";
    constexpr const char* kOther = "Other";
    writeWhole(folder.path / ".options.txt", {reinterpret_cast<const char*>(data), size});
    const HeadlessOptions options{.data = folder.path, .home = folder.path, .tips = true};
    HeadlessPlatform platform(options, [](std::string_view) {});
    const bool hadOther = platform.hasOption(kOther);
    const bool other = platform.readOption(kOther, true);
    platform.writeOption(kWritten, false);
    if (!platform.hasOption(kWritten) || platform.readOption(kWritten, true) ||
        platform.hasOption(kOther) != hadOther || platform.readOption(kOther, true) != other) {
        std::abort();
    }
    return 0;
}
