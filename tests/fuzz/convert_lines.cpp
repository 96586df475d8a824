// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any line gets an answer: a number that reads back, or a message.
#include "convert/convert_lines.h"

#include "numbers/number_format.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    static LineConverter converter(Sizes::Table, '.');
    const auto answer = converter.convert({reinterpret_cast<const char*>(data), size});
    if (answer.text.empty() || (answer.converted && !tryReadNumber(answer.text, '.'))) {
        std::abort();
    }
    return 0;
}
