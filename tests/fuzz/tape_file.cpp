// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/tape_file.h"
#include "numbers/failure.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const tallyforge::TapeFileContent content = tallyforge::parseTapeFile(text, '.');
        // What was taken can be written and taken again.
        const std::string again = tallyforge::formatTapeFile(content, '.');
        if (tallyforge::formatTapeFile(tallyforge::parseTapeFile(again, '.'), '.') != again) {
            std::abort();
        }
    } catch (const tallyforge::Failure& failure) {
        if (failure.number() != tallyforge::FailureNumber::DamagedFile) {
            std::abort();
        }
    }
    return 0;
}
