// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/caption_words.h"

#include "keypads/mask_words.h"

#include <algorithm>
#include <array>
#include <span>

namespace tallyforge {

namespace {

struct Words {
    std::string_view caption;
    std::string_view words;
};

/// Captions that mean the same wherever they stand.
constexpr std::array<Words, 85> kCommon{{
    {"1/x", "Reciprocal of x"},
    {"x²", "Square of x"},
    {"√x", "Square root of x"},
    {"sqrd", "Square of pi"},
    {"1/ sqrd", "Reciprocal of the square of pi"},
    {"1/sq", "Reciprocal of the square of pi"},
    {"cube root", "Cube root of pi"},
    {"1/ C.R.", "Reciprocal of the cube root of pi"},
    {"π", "Pi"},
    {"1/π", "Reciprocal of pi"},
    {"2π", "Two pi"},
    {" 1/ 2π", "Reciprocal of two pi"},
    {"%", "Percent of y"},
    {"%d", "Percent difference from y to x"},
    {"±%", "Add or subtract x percent of y"},
    {"y^x", "y to the power of x"},
    {"y^n", "Exponent that makes x of y"},
    {"2^x", "Two to the power of x"},
    {"2^n", "Exponent that makes x of two"},
    {"dD8", "Days between two dates"},
    {"chg d8 2", "Change the second date"},
    {"day + ", "Add days to a date"},
    {"date 1 ", "First date"},
    {"Now", "Date of today"},
    {"Day", "Day of the week"},
    {" wks + ", "Weeks and days"},
    {"Rnd", "Round y to x places"},
    {"int", "Integer portion of x"},
    {"frac", "Fractional portion of x"},
    {"flr", "Floor of x"},
    {"Ceil", "Ceiling of x"},
    {"P:R", "Polar to rectangular"},
    {"R:P", "Rectangular to polar"},
    {"ln+", "Natural logarithm of x plus one"},
    {"e^-1", "e to the power of x, less one"},
    {"ln", "Natural logarithm"},
    {"e^x", "e to the power of x"},
    {"Log", "Logarithm to the base of ten"},
    {"10^x", "Ten to the power of x"},
    {"tax", "Sales tax"},
    {"rate", "Rate of the sales tax"},
    {"chg", "Change the rate"},
    {"Σ", "Add x to the statistics"},
    {"sum", "Sum of the values"},
    {"sm-", "Take x out of the statistics"},
    {"sum²", "Sum of the squares"},
    {"sum xy", "Sum of the products"},
    {"std dev", "Standard deviation"},
    {"re- set", "Reset the statistics"},
    {"Intr", "Compound interest"},
    {"Amt", "Compound interest, loan amount"},
    {"f:d", "Fraction to decimal"},
    {"WC", "Wind chill"},
    {"H I", "Heat index"},
    {"p±", "Practise adding"},
    {"p-", "Practise subtracting"},
    {"px÷", "Practise multiplying"},
    {"p÷", "Practise dividing"},
    {"(m)", "Mean of the values"},
    {"e", "Base of the natural logarithm"},
    {"1/e", "Reciprocal of e"},
    {"e²", "e squared"},
    {"1/e²", "Reciprocal of e squared"},
    {"√e", "Square root of e"},
    {"1/ √e", "Reciprocal of the square root of e"},
    {"√", "Square root of two"},
    {"1/√2", "Reciprocal of the square root of two"},
    {"√3", "Square root of three"},
    {"1/√3", "Reciprocal of the square root of three"},
    {"√10", "Square root of ten"},
    {"1/ √10", "Reciprocal of the square root of ten"},
    {"√π", "Square root of pi"},
    {"1/√π", "Reciprocal of the square root of pi"},
    {"√2π", "Square root of two pi"},
    {"1/√2π", "Reciprocal of the square root of two pi"},
    {"√π/2", "Square root of half pi"},
    {"1/ √π/2", "Reciprocal of the square root of half pi"},
    {"N!", "Factorial of x"},
    {"N! Intx", "Factorial of the integer of x"},
    {"Γ", "Gamma function of x"},
    {"thk\"", "Board feet, thickness in inches"},
    {"w\"", "Board feet, width in inches"},
    {"len'", "Board feet, length in feet"},
    {"len\"", "Board feet, length in inches"},
    {"T°", "Convert temperature"},
}};

constexpr std::array<Words, 45> kTrigonometry{{
    {"h:m", "Hours to hours, minutes and seconds"},
    {"d:m", "Decimal hours to hours, minutes and seconds"},
    {"m+", "Add hours, minutes and seconds"},
    {"snh", "Hyperbolic sine"},
    {"coh", "Hyperbolic cosecant"},
    {"csh", "Hyperbolic cosine"},
    {"tnh", "Hyperbolic tangent"},
    {"sch", "Hyperbolic secant"},
    {"cth", "Hyperbolic cotangent"},
    {"arc snh", "Hyperbolic arc sine"},
    {"arc coh", "Hyperbolic arc cosine"},
    {"arc tnh", "Hyperbolic arc tangent"},
    {" arc sch", "Hyperbolic arc secant"},
    {" arc cth", "Hyperbolic arc cotangent"},
    {" arc coh", "Hyperbolic arc cosecant"},
    {"sec", "Secant"},
    {"csc", "Cosecant"},
    {"cot", "Cotangent"},
    {"sin", "Sine"},
    {"cos", "Cosine"},
    {"tan", "Tangent"},
    {"arc sec", "Arc secant"},
    {"arc csc", "Arc cosecant"},
    {"arc cot", "Arc cotangent"},
    {"arc sin", "Arc sine"},
    {"arc cos", "Arc cosine"},
    {"arc tan", "Arc tangent"},
    {"arc", "Arc length, chord and angle"},
    {"S1", "Triangle, side 1"},
    {"S2", "Triangle, side 2"},
    {"S3", "Triangle, side 3"},
    {"A1", "Triangle, angle 1"},
    {"A2", "Triangle, angle 2"},
    {"A3", "Triangle, angle 3"},
    {"Ø", "Right triangle, angle opposite X"},
    {"Φ", "Right triangle, angle opposite Y"},
    {"X", "Right triangle, abscissa"},
    {"Y", "Right triangle, ordinate"},
    {"H", "Right triangle, hypotenuse"},
    {"R:D", "Radians to degrees"},
    {"D:R", "Degrees to radians"},
    {"D:G", "Degrees to grads"},
    {"G:D", "Grads to degrees"},
    {"R:G", "Radians to grads"},
    {"G:R", "Grads to radians"},
}};

constexpr std::array<Words, 32> kBinary{{
    {"rRB", "Rotate right by a byte"},
    {"rLB", "Rotate left by a byte"},
    {"rR", "Rotate right"},
    {"rL", "Rotate left"},
    {"sR", "Shift right"},
    {"sL", "Shift left"},
    {"sRB", "Shift right by a byte"},
    {"sLB", "Shift left by a byte"},
    {"ASR", "Arithmetic shift right"},
    {"NOT", "Complement of x"},
    {"AND", "And of y and x"},
    {"OR", "Or of y and x"},
    {"XOR", "Exclusive or of y and x"},
    {"R:B", "Real number to binary"},
    {"R:h", "Real number to hexadecimal"},
    {"R:o", "Real number to octal"},
    {"R:d", "Real number to decimal"},
    {"bin", "Show binary numbers"},
    {"oct", "Show octal numbers"},
    {"hex", "Show hexadecimal numbers"},
    {"dec", "Show decimal numbers"},
    {"C-o", "Digit C"},
    {"B-h", "Digit B"},
    {"A-d", "Digit A"},
    {"E-#", "Digit E"},
    {"F", "Digit F"},
    {"D-b", "Digit D"},
    {"o", "Octal number"},
    {"h", "Hexadecimal number"},
    {"d", "Decimal number"},
    {"b", "Binary number"},
    {"#", "Begin a number of a base"},
}};

constexpr std::array<Words, 26> kConvert{{
    {"V", "Convert viscosity"},
    {"ρ", "Convert density"},
    {"W", "Convert power"},
    {"tm", "Convert time"},
    {"Γ", "Convert torque"},
    {"f.c.", "Convert light"},
    {"Lt", "Convert light"},
    {"s|g", "Convert speed and acceleration"},
    {"P", "Convert pressure"},
    {"wt", "Convert mass"},
    {"V³", "Convert volume"},
    {"A²", "Convert area"},
    {"L¹", "Convert length"},
    {"K", "Physical constants"},
    {"Mg", "Convert magnetics"},
    {"E", "Convert energy"},
    {"val", "Value of a resistor's code"},
    {"R code", "Code of a resistor"},
    {" C ", "Value of a capacitor's code"},
    {"C code", "Code of a capacitor"},
    {" L ", "Value of an inductor's code"},
    {"L code", "Code of an inductor"},
    {"SG", "Specific gravities"},
    {"dB", "Convert decibels"},
    {"WF", "Convert waveforms"},
    {"F", "Convert force"},
}};

std::span<const Words> wordsOf(Keypad keypad) {
    switch (keypad) {
        case Keypad::Trigonometry:
            return kTrigonometry;
        case Keypad::Binary:
            return kBinary;
        case Keypad::Convert:
            return kConvert;
        default:
            return {};
    }
}

std::string_view find(std::span<const Words> table, std::string_view caption) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Words& row) { return row.caption == caption; });
    return found == table.end() ? std::string_view{} : found->words;
}

}  // namespace

std::string keyWords(Keypad keypad, int key, std::uint8_t mask, std::string_view caption) {
    if (std::string words = maskWords(keypad, key, mask); !words.empty()) {
        return words;
    }
    const std::string_view own = find(wordsOf(keypad), caption);
    const bool byCaption = keypad != Keypad::Tables;
    return std::string(own.empty() && byCaption ? find(kCommon, caption) : own);
}

}  // namespace tallyforge
