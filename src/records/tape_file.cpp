// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/tape_file.h"

#include "numbers/failure.h"
#include "numbers/number_format.h"
#include "records/number_lines.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kMarker = "ZAK";
constexpr std::size_t kNameWidth = 4;
/// Filler lines that a tape has at most: a list has fewer rows.
constexpr std::size_t kMostFillers = 100;
/// Bytes that the texts of a stack may take together; a file that has more was not written here.
constexpr std::size_t kMostStackText = StackState::kMostTextBytes / 4 * 5;
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

/// In the registers section a comma ends the value, so its decimal character is a point there.
std::string withDecimal(std::string text, char from, char to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

/// A line of the tape as it stands in a file: one that reads as the marker would end the section, and with a blank it
/// looks the same; a line break would be two lines.
std::string fileRow(std::string row) {
    std::replace_if(
        row.begin(), row.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return row == kMarker ? row + " " : row.substr(0, kLongestLine);
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

bool fileHolds(const ValueCell& value, char decimal) {
    if (value.asDouble() != nullptr) {
        return true;
    }
    const std::string line = printedValue(value, decimal);
    return line.size() <= kLongestLine && line.find_first_of("\r\n") == line.npos &&
           value.text(decimal) == readValue(line, decimal).text(decimal);
}

ValueCell heldByFile(const ValueCell& value, char decimal) {
    return fileHolds(value, decimal) ? value : ValueCell::zero();
}

void writeTapeFile(const TapeFileContent& content, char decimal, const Write& write) {
    const auto put = [&](std::string line) { write(line += '\n'); };
    put(std::to_string(static_cast<int>(content.kind)));
    if (content.hasRegisters()) {
        for (const RegisterLine& line : content.registers) {
            put(registerLine(line, decimal));
        }
    }
    if (!content.hasStack()) {
        return;
    }
    put(printedValue(content.LastX, decimal));
    put(printedValue(content.Yreg, decimal));
    put(" " + std::to_string(content.StackPtr) + " ");
    put(printedValue(content.Xreg, decimal));
    for (const ValueCell& element : content.stack) {
        put(printedValue(element, decimal));
    }
    put("");
    const Tape& tape = content.tape;
    for (std::size_t row = 0; row < tape.count(); ++row) {
        put(fileRow(tape.row(row)));
    }
    put(std::string(kMarker));
    put(" " + std::to_string(tape.fillers()) + " ");
    // One value for each line of the list, the first of them behind no line; where no filler line
    // is left that would leave the last line without its own.
    const auto fillers = static_cast<std::size_t>(tape.fillers());
    put("");
    for (std::size_t row = fillers; row < tape.count(); ++row) {
        put(printedValue(heldByFile(tape.value(row), decimal), decimal));
    }
    for (std::size_t row = 1; row < fillers; ++row) {
        put("");
    }
}

TapeFileReader::TapeFileReader(const Bytes& bytes, char decimal)
    : bytes_(bytes), decimal_(decimal), rows_(bytes), values_(bytes) {}

TapeFileContent TapeFileReader::readHead() {
    TapeFileContent content;
    content.kind = readKind();
    if (content.hasRegisters()) {
        for (RegisterLine& line : content.registers) {
            line = parseRegisterLine(rows_.need(), decimal_);
        }
    }
    if (content.hasStack()) {
        readStack(content);
        findValues();
    } else {
        values_ = rows_;
    }
    if (lines_ == 0) {
        readToTheEnd();
    }
    return content;
}

TapeFileKind TapeFileReader::readKind() {
    const std::string_view header = rows_.need();
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
        rows_ = FileLines{bytes_};
    }
    return TapeFileKind::SavedByUser;
}

void TapeFileReader::readStack(TapeFileContent& content) {
    content.LastX = readValue(rows_.need(), decimal_);
    content.Yreg = readValue(rows_.need(), decimal_);
    content.StackPtr = readCount(rows_.need());
    content.Xreg = readValue(rows_.need(), decimal_);
    if (content.StackPtr < 1 || content.StackPtr > kMostElements + 1) {
        damaged();
    }
    std::size_t texts = 0;
    for (int element = 1; element < content.StackPtr; ++element) {
        content.stack.push_back(readValue(rows_.need(), decimal_));
        texts += content.stack.back().textShare();
        if (texts > kMostStackText) {
            damaged();
        }
    }
    if (!rows_.need().empty()) {
        damaged();
    }
}

// The values lie behind all texts, so the file is read at two places at once.
void TapeFileReader::findValues() {
    values_ = FileLines{bytes_, rows_.place()};
    while (values_.need() != kMarker) {
        ++lines_;
    }
    fillers_ = static_cast<std::size_t>(readCount(values_.need()));
    if (fillers_ > lines_ || fillers_ > kMostFillers) {
        damaged();
    }
    if (lines_ > 0) {
        // The first value belongs to no line.
        static_cast<void>(values_.need());
    }
}

bool TapeFileReader::next() {
    if (at_ == lines_) {
        return false;
    }
    text_ = rows_.need();
    value_ = ValueCell{};
    if (at_ >= fillers_) {
        const auto row = values_.next();
        // Where there is no filler line, a file may end without the value behind its last line.
        if (!row && (fillers_ > 0 || at_ + 1 < lines_)) {
            damaged();
        }
        value_ = row ? readValue(*row, decimal_) : ValueCell{};
    }
    if (++at_ == lines_) {
        readToTheEnd();
    }
    return true;
}

// One value for each line, filler lines too; more of them are read for the end of the last.
void TapeFileReader::readToTheEnd() {
    std::size_t left = 0;
    while (values_.next()) {
        ++left;
    }
    if (fillers_ > 0 && left + 1 < fillers_) {
        damaged();
    }
}

TapeFileContent readTapeFile(const Bytes& bytes, char decimal, std::function<void(std::size_t)> beforeGrowing) {
    TapeFileReader reader(bytes, decimal);
    TapeFileContent content = reader.readHead();
    NumberLines numbers(decimal);
    content.tape.beforeGrowing(std::move(beforeGrowing));
    content.tape.clear(0);
    while (reader.next()) {
        const double* const number = reader.value().asDouble();
        const NumberLine* const line = number != nullptr ? numbers.find(reader.text(), *number) : nullptr;
        if (line != nullptr) {
            content.tape.addNumber(line->look, line->label, *number);
        } else {
            content.tape.add(reader.text(), reader.value());
        }
    }
    content.tape.setFillers(static_cast<int>(reader.fillers()));
    return content;
}

std::string formatTapeFile(const TapeFileContent& content, char decimal) {
    std::string out;
    writeTapeFile(content, decimal, [&](std::string_view piece) { out += piece; });
    return out;
}

TapeFileContent parseTapeFile(std::string_view text, char decimal) {
    return readTapeFile(TextBytes{text}, decimal);
}

}  // namespace tallyforge
