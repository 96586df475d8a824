// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/tape_file.h"

#include "numbers/failure.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kMarker = "ZAK";
constexpr std::size_t kNameWidth = 4;
/// Most characters of a register's value: 66 are a word in binary digits, and a number from the clipboard may have
/// more.
constexpr std::size_t kLongestValue = 255;

[[noreturn]] void damaged() {
    throw Failure{FailureNumber::DamagedFile};
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

int readCount(std::string_view text) {
    text = trimmed(text);
    int count = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), count);
    if (result.ec != std::errc{} || result.ptr != text.data() + text.size() || count < 0) {
        damaged();
    }
    return count;
}

/// Takes lines one after the other; running out of them is damage.
class Reader {
public:
    explicit Reader(const std::vector<std::string_view>& lines) : lines_(lines) {}
    [[nodiscard]] std::string_view next() {
        if (at_ >= lines_.size()) {
            damaged();
        }
        return lines_[at_++];
    }
    [[nodiscard]] std::size_t left() const { return lines_.size() - at_; }
    void back() { --at_; }

private:
    const std::vector<std::string_view>& lines_;
    std::size_t at_ = 0;
};

TapeFileKind readHeader(Reader& reader) {
    const std::string_view header = reader.next();
    if (header == "1") {
        return TapeFileKind::Registers;
    }
    if (header == "2") {
        return TapeFileKind::StackAndTape;
    }
    if (header == "3") {
        return TapeFileKind::Everything;
    }
    if (header != "255") {
        // A file without a header starts with its first register.
        reader.back();
    }
    return TapeFileKind::SavedByUser;
}

void readStack(Reader& reader, TapeFileContent& content, char decimal) {
    content.LastX = readValue(reader.next(), decimal);
    content.Yreg = readValue(reader.next(), decimal);
    content.StackPtr = readCount(reader.next());
    content.Xreg = readValue(reader.next(), decimal);
    if (content.StackPtr < 1 || static_cast<std::size_t>(content.StackPtr) > reader.left()) {
        damaged();
    }
    for (int element = 1; element < content.StackPtr; ++element) {
        content.stack.push_back(readValue(reader.next(), decimal));
    }
    if (!reader.next().empty()) {
        damaged();
    }
}

void readTape(Reader& reader, TapeFileContent& content, char decimal) {
    for (std::string_view line = reader.next(); line != kMarker; line = reader.next()) {
        content.lines.emplace_back(line);
    }
    content.fillers = readCount(reader.next());
    if (static_cast<std::size_t>(content.fillers) > content.lines.size()) {
        damaged();
    }
    const std::size_t shown = content.lines.size() - static_cast<std::size_t>(content.fillers);
    if (reader.left() < content.lines.size()) {
        damaged();
    }
    // The first value belongs to no line.
    for (std::size_t i = 0; reader.left() > 0; ++i) {
        ValueCell value = readValue(reader.next(), decimal);
        if (i > 0 && i <= shown) {
            content.values.push_back(std::move(value));
        }
    }
    content.values.resize(shown);
}

/// In the registers section a comma ends the value, so its decimal character is a point there.
std::string withDecimal(std::string text, char from, char to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

void putLine(std::string& out, std::string_view line) {
    out += line;
    out += '\n';
}

}  // namespace

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        // A file that was turned into "\r\n" more than once has several of them.
        while (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
    }
    return lines;
}

std::string printedValue(const ValueCell& value, char decimal) {
    if (value.isText() || value.isEmpty()) {
        return value.text(decimal);
    }
    const std::string text = value.text(decimal);
    return (text.starts_with('-') ? "" : " ") + text + " ";
}

ValueCell readValue(std::string_view text, char decimal) {
    const std::string_view inner = trimmed(text);
    const auto number = tryReadNumber(inner, decimal);
    if (!number) {
        return text;
    }
    // A number was printed with a blank behind it; what stands without one was typed.
    return text.ends_with(' ') ? ValueCell{*number} : ValueCell{inner};
}

std::string registerLine(const RegisterLine& line, char decimal) {
    std::string name = line.name;
    name.resize(kNameWidth, ' ');
    const auto number = line.value.tryNumber(decimal);
    const bool zero = !line.value.isTagged() && number && *number == 0.0;
    const std::string value = zero ? std::string{} : withDecimal(printedValue(line.value, decimal), decimal, '.');
    return name + value + "," + line.tip;
}

RegisterLine parseRegisterLine(std::string_view line, char decimal) {
    if (line.size() <= kNameWidth) {
        damaged();
    }
    const auto comma = line.find(',', kNameWidth);
    if (comma == line.npos || comma > kNameWidth + kLongestValue) {
        damaged();
    }
    const std::string_view value = line.substr(kNameWidth, comma - kNameWidth);
    RegisterLine parsed{
        .name = std::string(line.substr(0, kNameWidth)), .value = {}, .tip = std::string(line.substr(comma + 1))};
    // A register that holds nothing is empty, as one that was never written.
    if (value != " 0" && !trimmed(value).empty()) {
        parsed.value = readValue(withDecimal(std::string(value), '.', decimal), decimal);
    }
    return parsed;
}

std::string formatTapeFile(const TapeFileContent& content, char decimal) {
    std::string out;
    putLine(out, std::to_string(static_cast<int>(content.kind)));
    if (content.hasRegisters()) {
        for (const RegisterLine& line : content.registers) {
            putLine(out, registerLine(line, decimal));
        }
    }
    if (!content.hasStack()) {
        return out;
    }
    putLine(out, printedValue(content.LastX, decimal));
    putLine(out, printedValue(content.Yreg, decimal));
    putLine(out, " " + std::to_string(content.StackPtr) + " ");
    putLine(out, printedValue(content.Xreg, decimal));
    for (const ValueCell& element : content.stack) {
        putLine(out, printedValue(element, decimal));
    }
    putLine(out, "");
    for (const std::string& line : content.lines) {
        // A line that reads as the marker would end the section; with a blank it looks the same.
        putLine(out, line == kMarker ? std::string(kMarker) + " " : line);
    }
    putLine(out, kMarker);
    putLine(out, " " + std::to_string(content.fillers) + " ");
    // One value for each line of the list, the first of them behind no line; where no filler line
    // is left that would leave the last line without its own.
    const std::size_t count = std::max(content.lines.size(), content.values.size() + 1);
    for (std::size_t i = 0; i < count; ++i) {
        const bool behindLine = i > 0 && i <= content.values.size();
        putLine(out, behindLine ? printedValue(content.values[i - 1], decimal) : "");
    }
    return out;
}

TapeFileContent parseTapeFile(std::string_view text, char decimal) {
    if (!text.ends_with('\n')) {
        // Every line is written with its end, so this file was cut.
        damaged();
    }
    const std::vector<std::string_view> lines = splitLines(text);
    Reader reader{lines};
    TapeFileContent content;
    content.kind = readHeader(reader);
    if (content.hasRegisters()) {
        for (RegisterLine& line : content.registers) {
            line = parseRegisterLine(reader.next(), decimal);
        }
    }
    if (content.hasStack()) {
        readStack(reader, content, decimal);
        readTape(reader, content, decimal);
    }
    return content;
}

}  // namespace tallyforge
