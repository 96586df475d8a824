// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/number_display.h"

#include "engine/engine.h"
#include "engine/tape_width.h"
#include "numbers/number_format.h"
#include "numbers/word_size.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace tallyforge {

namespace {

constexpr double kFixedLimit = 1e14;  ///< above it fixed numbers show in scientific form
constexpr double kScaleUpBelow = 0.999999999999999;

/// How the digits of a base are grouped, and where a line that is too long is broken.
struct BaseLayout {
    char letter;
    int groupSize;
    int mostBlanks;
    std::size_t wrapBehind;
};
constexpr std::array<BaseLayout, 4> kBaseLayouts{{
    {.letter = 'b', .groupSize = 8, .mostBlanks = 7, .wrapBehind = 12},
    {.letter = 'd', .groupSize = 5, .mostBlanks = 4, .wrapBehind = 17},
    {.letter = 'h', .groupSize = 4, .mostBlanks = 3, .wrapBehind = 13},
    {.letter = 'o', .groupSize = 3, .mostBlanks = 7, .wrapBehind = 20},
}};

const BaseLayout* baseLayout(std::string_view tagged) {
    const char letter = tagged.empty() ? ' ' : tagged.back();
    const auto* found = std::find_if(kBaseLayouts.begin(), kBaseLayouts.end(),
                                     [letter](const BaseLayout& layout) { return layout.letter == letter; });
    return found == kBaseLayouts.end() ? nullptr : found;
}

/// Blanks between the groups, counted from the right.
std::string groupFromRight(std::string digits, const BaseLayout& layout) {
    auto at = static_cast<int>(digits.size()) - layout.groupSize;
    for (int blanks = 0; at > 0 && blanks < layout.mostBlanks; ++blanks, at -= layout.groupSize) {
        digits.insert(static_cast<std::size_t>(at), 1, ' ');
    }
    return digits;
}

/// A blank after every third digit behind the point, none at the end.
std::string groupFraction(std::string_view digits) {
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && i % 3 == 0) {
            grouped += ' ';
        }
        grouped += digits[i];
    }
    return grouped;
}

/// Group marks of a whole part: "," with a decimal point, blanks with a decimal comma, where the
/// leftmost of four groups takes all that is left.
std::string groupWhole(std::string_view digits, char decimal) {
    constexpr std::size_t kMostBlanks = 3;
    std::string grouped{digits};
    std::size_t marks = 0;
    for (auto at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3, ++marks) {
        if (decimal == ',' && marks == kMostBlanks) {
            break;
        }
        grouped.insert(static_cast<std::size_t>(at), 1, decimal == ',' ? ' ' : ',');
    }
    return grouped;
}

void padRight(std::string& text, std::size_t width) {
    if (text.size() < width) {
        text.append(width - text.size(), ' ');
    }
}

/// A label of two characters or more and a value of this many stand on lines of their own.
constexpr int kLongValue = 20;

/// A number of this size is shown in scientific form although the format is fixed.
bool leavesFixed(double number, int digits) {
    const double size = std::abs(number);
    return size > kFixedLimit || (number != 0.0 && size < 1.0 / std::pow(10.0, digits));
}

/// Below this size a number in a packed look has fewer characters than a long value.
constexpr double limitOf(const NumberLook& look) {
    constexpr int kScientificFrame = 9;  // sign, digit, point, "e+308", the digit of a carry
    constexpr int kLeastWhole = 7;
    constexpr int kMostWhole = 16;  // a larger number leaves the fixed form
    const int exponentForm = look.digits + kScientificFrame + 2;
    if (exponentForm >= kLongValue) {
        return 0.0;
    }
    if (look.mode != DisplayMode::Fixed) {
        return std::numeric_limits<double>::infinity();
    }
    double below = 0.0;
    for (int whole = kLeastWhole; whole <= kMostWhole; ++whole) {
        const int fixedForm = 1 + whole + (whole - 1) / 3 + 1 + look.digits + look.digits / 3;
        if (fixedForm >= kLongValue) {
            return below;
        }
        below = whole == kLeastWhole ? 1e6 : below * 10.0;
    }
    return std::numeric_limits<double>::infinity();
}

constexpr auto kOneLineBelow = [] {
    std::array<double, kPackedLooks> limits{};
    for (std::size_t look = 0; look < limits.size(); ++look) {
        limits[look] = limitOf(unpacked(static_cast<std::uint8_t>(look)));
    }
    return limits;
}();

/// An h.mmss number as "h:mm ss.s". Rounded to tenths of a second, sixty seconds are a minute more,
/// and sixty minutes an hour.
std::string hoursText(double value, char decimal) {
    constexpr int kDigits = 5;
    constexpr int kTenthsOfMinute = 600;
    constexpr int kMinutesOfHour = 60;
    const std::string plain = fixedText(std::abs(value), kDigits);
    const auto point = plain.find('.');
    double whole = readNumber(plain.substr(0, point), '.');
    const int places = std::stoi(plain.substr(point + 1));
    int minutes = places / 1000;
    int tenths = places % 1000;
    if (tenths >= kTenthsOfMinute) {
        tenths -= kTenthsOfMinute;
        ++minutes;
    }
    if (minutes >= kMinutesOfHour) {
        minutes -= kMinutesOfHour;
        whole += 1.0;
    }
    const std::string sign{value < 0.0 ? "-" : ""};
    return sign + groupWhole(fixedText(whole, 0), decimal) + ":" + formatPattern(minutes, "00", decimal) + " " +
           formatPattern(tenths / 10.0, "00.0", decimal);
}

std::string fixedNumber(double value, int digits, char decimal) {
    const std::string plain = fixedText(value, digits);
    const std::string_view all{plain};
    const std::string sign{all.starts_with('-') ? "-" : ""};
    const auto point = all.find('.');
    const std::string_view whole = all.substr(sign.size(), point == all.npos ? all.npos : point - sign.size());
    const std::string_view fraction = point == all.npos ? std::string_view{} : all.substr(point + 1);
    const std::string head = sign + groupWhole(whole, decimal);
    return fraction.empty() ? head : head + decimal + groupFraction(fraction);
}

/// A number of a base has no decimal character.
bool isWhole(std::string_view tagged) {
    return tagged.find_first_of(".,") == std::string_view::npos;
}

}  // namespace

bool NumberDisplay::DspFmat(const ValueCell& shown) {
    EngineState& s = calc.s;
    if (writeUnformatted(shown)) {
        return true;
    }
    // A copy: the value may be X, which changes here.
    ValueCell value = shown;
    s.CurrentProc = "DspFmat";
    if (value.isTagged()) {
        if (baseLayout(value.textView()) != nullptr && isWhole(value.textView())) {
            SetUpDisplay(std::string(value.textView()));
            return true;
        }
        return tagWithHex(value);
    }
    if (value.isEmptyText()) {
        s.stack.Xreg = s.stack.StackPtr <= 1 ? ValueCell::zero() : s.stack.LastX;
        value = ValueCell{};
    }
    SetUpDisplay(numDisplay(value));
    return true;
}

// A plain number that needs one line is formatted when its line is looked at.
bool NumberDisplay::writeUnformatted(const ValueCell& value) {
    EngineState& s = calc.s;
    const double* const number = value.asDouble();
    if (number == nullptr || s.delivery.writtenAs != WrittenAs::Number) {
        return false;
    }
    const std::uint8_t look = packed(s.format.look());
    const auto label = calc.tape.known(s.delivery.FnLabel);
    if (!label || (label->wide && !(std::abs(*number) < oneLineBelow(look)))) {
        return false;
    }
    if (!calc.dialogOpen) {
        calc.focusEntry();
    }
    calc.tape.addNumber(Tape::style(look, label->id), *number);
    lineWritten();
    return true;
}

double NumberDisplay::oneLineBelow(std::uint8_t look) {
    return kOneLineBelow[look];
}

bool NumberDisplay::tagWithHex(const ValueCell& value) {
    EngineState& s = calc.s;
    const std::string_view digits = value.textView().substr(1);
    const bool hexDigit =
        std::any_of(digits.begin(), digits.end(), [](char digit) { return digit >= 'A' && digit <= 'F'; });
    if (!hexDigit || !isWhole(digits)) {
        calc.message(BoxKind::Stop, "Error!", "Binary indicator (b, d, h, o) required");
        return false;
    }
    const ValueCell tagged{std::string(value.textView()) + "h"};
    s.stack.Xreg = tagged;
    s.stack.Stack[static_cast<std::size_t>(s.stack.StackPtr) - 1] = tagged;
    return DspFmat(tagged);
}

std::string NumberDisplay::numDisplay(const ValueCell& value) {
    EngineState& s = calc.s;
    s.CurrentProc = "numDisplay";
    const double number = calc.number(value);
    const bool fixed = s.format.Mode == DisplayMode::Fixed && !leavesFixed(number, s.format.DisplayDigits);
    const WrittenAs as = std::exchange(s.delivery.writtenAs, WrittenAs::Number);
    if (fixed && as == WrittenAs::Text) {
        return calc.text(value);
    }
    if (fixed && as == WrittenAs::MinutesAndSeconds) {
        return hoursText(number, s.format.DecimalChar);
    }
    return shownNumber(number, s.format.look(), s.delivery.FnLabel.size());
}

std::string NumberDisplay::shownNumber(double number, const NumberLook& look, std::size_t labelSize) {
    const auto label = static_cast<int>(labelSize);
    const int trim = std::max(label - 6, 0);
    if (look.mode == DisplayMode::Fixed && !leavesFixed(number, look.digits)) {
        return fixedNumber(number, look.digits, look.decimal);
    }
    int digits = look.digits;
    if (look.mode != DisplayMode::Engineering) {
        if (label > 0 && look.digits > 10) {
            digits = look.digits - 2 - trim;
        }
        return formatScientific(number, std::max(digits, 0), look.decimal);
    }
    if (label > 0 && look.digits > 8) {
        digits = look.digits - 4 - trim;
    }
    return EngFormat(number, std::max(digits, 0), look.decimal);
}

std::string NumberDisplay::labelled(std::string_view label, std::string_view text) {
    std::string line{label};
    if (!label.empty()) {
        padRight(line, kTapeWidth - std::min(text.size(), kTapeWidth));
    }
    return line.append(text);
}

std::string NumberDisplay::EngFormat(double value, int digits, char decimal) {
    int thousands = 0;
    if (value != 0.0) {
        for (; std::abs(value) >= 1000.0; ++thousands) {
            value /= 1000.0;
        }
        for (; std::abs(value) < kScaleUpBelow; --thousands) {
            value *= 1000.0;
        }
    }
    std::string text = formatPattern(value, "0." + std::string(static_cast<std::size_t>(digits), '0'), decimal);
    const int exponent = 3 * thousands;
    text += exponent < 0 ? "e-" : "e+";
    if (std::abs(exponent) < 10) {
        text += '0';
    }
    return text + std::to_string(std::abs(exponent));
}

void NumberDisplay::SetUpDisplay(const std::string& text) {
    EngineState& s = calc.s;
    s.CurrentProc = "SetUpDisplay";
    if (!calc.dialogOpen) {
        calc.focusEntry();
    }
    if (text.starts_with('#') && baseLayout(text) != nullptr) {
        setUpBaseNumber(text);
        return;
    }
    if (s.delivery.FnLabel.empty()) {
        Add2Display(text);
        return;
    }
    std::string label{s.delivery.FnLabel.view()};
    if (label.size() < 2 || text.size() < static_cast<std::size_t>(kLongValue)) {
        Add2Display(labelled(label, text));
        return;
    }
    Add2Display(text);
    DisplayChg();
    padRight(label, kTapeWidth);
    Add2Display(label);
}

void NumberDisplay::setUpBaseNumber(std::string_view text) {
    EngineState& s = calc.s;
    const BaseLayout& layout = *baseLayout(text);
    std::string digits{text.substr(1, text.size() - 2)};
    if (calc.cutToWord) {
        digits = calc.cutToWord(digits, layout.letter, s.format.WordSize);
    }
    if (digits.empty()) {
        digits = "0";
    }
    s.stack.Xreg = "#" + digits + layout.letter;
    s.stack.Stack[static_cast<std::size_t>(s.stack.StackPtr) - 1] = s.stack.Xreg;

    std::string shown = "#" + groupFromRight(digits, layout) + layout.letter;
    std::string label{s.delivery.FnLabel.view()};
    std::size_t length = shown.size() + (label.empty() ? 0 : label.size() + 1);
    while (length > kTapeWidth) {
        const auto blank = shown.find(' ', layout.wrapBehind);
        if (blank == std::string::npos) {
            break;
        }
        Add2Display(shown.substr(0, blank + 1));
        DisplayChg();
        shown.erase(0, blank + 1);
        length = shown.size();
    }
    if (!label.empty()) {
        padRight(label, kTapeWidth - std::min(shown.size(), kTapeWidth));
    }
    Add2Display(label + shown);
}

void NumberDisplay::Add2Display(std::string_view text) {
    calc.s.CurrentProc = "Add2Display";
    calc.tape.add(text, calc.s.stack.Xreg);
    lineWritten();
}

void NumberDisplay::lineWritten() {
    calc.stackList.refresh();
    calc.s.delivery.FnLabel.clear();
}

}  // namespace tallyforge
