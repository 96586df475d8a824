// SPDX-License-Identifier: GPL-3.0-or-later
//
// Conversions line by line, for shells and files: "12.5 inch mm" becomes "317.5".
#pragma once

#include "convert/unit_names.h"
#include "dialogs/conversion.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace tallyforge {

class LineConverter {
public:
    /// Numbers have the decimal character `decimal` on both sides.
    LineConverter(Sizes sizes, char decimal) : sizes_(sizes), decimal_(decimal) {}

    struct Answer {
        std::string text;  ///< up to 15 digits, or a message, eight-bit
        bool converted = false;
        std::string_view warning{};  ///< of a factor that is off; told once a pair
    };
    /// `line` is a number, a unit and a unit, with blanks between them, eight-bit.
    [[nodiscard]] Answer convert(std::string_view line);

private:
    struct Known {
        NamedPair pair;
        std::string warning;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    Known& lookUp(std::string_view words, bool& isNew);

    Sizes sizes_;
    char decimal_;
    UnitNames names_;
    /// Pairs that came before; a file mostly repeats a few.
    std::unordered_map<std::string, Known, Hash, std::equal_to<>> known_;
};

}  // namespace tallyforge
