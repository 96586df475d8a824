// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/number_format.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const char decimal : {'.', ','}) {
        const auto value = tallyforge::tryReadNumber(text, decimal);
        if (!value) {
            continue;
        }
        const std::string shown = tallyforge::plainText(*value, decimal);
        const bool finite = std::isfinite(*value);
        // The largest numbers, rounded to fifteen digits, lie beyond the range; all others read back.
        if (!finite || (std::abs(*value) < 1.7e308 && !tallyforge::tryReadNumber(shown, decimal))) {
            std::abort();
        }
    }
    return 0;
}
