// SPDX-License-Identifier: GPL-3.0-or-later
//
// Bytes as the file of the conversion keys: they are refused, or written back as the same memory.
#include "convert/conversion_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyforge;
    const auto memory = readConversionFile({reinterpret_cast<const char*>(data), size}, '.');
    if (!memory) {
        return 0;
    }
    const std::string text = conversionFileText(*memory);
    const auto again = readConversionFile(text, '.');
    if (!again || conversionFileText(*again) != text || again->ConversionMask != memory->ConversionMask ||
        again->ConversionFactors != memory->ConversionFactors || again->marked != memory->marked) {
        std::abort();
    }
    return 0;
}
