// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/file_check.h"

#include "engine/engine_state.h"
#include "numbers/failure.h"

#include <algorithm>

namespace tallyforge {

namespace {

bool sameValue(const ValueCell& written, const ValueCell& read, char decimal) {
    return written.text(decimal) == read.text(decimal);
}

bool sameRegister(const RegisterLine& written, const RegisterLine& read, char decimal) {
    const auto number = written.value.tryNumber(decimal);
    const bool zero = !written.value.isTagged() && number && *number == 0.0;
    const bool value = zero ? read.value.isEmpty() : sameValue(written.value, read.value, decimal);
    std::string name = written.name;
    name.resize(read.name.size(), ' ');
    return value && name == read.name && written.tip == read.tip;
}

bool sameRegisters(std::span<const RegisterLine> written, std::span<const RegisterLine> read, char decimal) {
    return std::equal(written.begin(), written.end(), read.begin(), read.end(),
                      [decimal](const RegisterLine& a, const RegisterLine& b) { return sameRegister(a, b, decimal); });
}

bool sameValues(std::span<const ValueCell> written, std::span<const ValueCell> read, char decimal) {
    return std::equal(written.begin(), written.end(), read.begin(), read.end(),
                      [decimal](const ValueCell& a, const ValueCell& b) { return sameValue(a, b, decimal); });
}

void require(bool holds) {
    if (!holds) {
        throw Failure{FailureNumber::DamagedFile};
    }
}

}  // namespace

bool fileHolds(const ValueCell& value, char decimal) {
    const std::string line = printedValue(value, decimal);
    return line.find_first_of("\r\n") == line.npos && sameValue(value, readValue(line, decimal), decimal);
}

bool fileHolds(const RegisterLine& line, char decimal) {
    const std::string text = registerLine(line, decimal);
    if (text.find_first_of("\r\n") != text.npos) {
        return false;
    }
    try {
        return sameRegister(line, parseRegisterLine(text, decimal), decimal);
    } catch (const Failure&) {
        return false;
    }
}

std::vector<std::string> leaveOutUnheld(std::span<RegisterLine> registers, char decimal) {
    std::vector<std::string> places;
    for (std::size_t key = 0; key < registers.size(); ++key) {
        if (!fileHolds(registers[key], decimal)) {
            registers[key].value = ValueCell::zero();
            places.push_back("Register " + std::to_string(registerOfKey(static_cast<int>(key))));
        }
    }
    return places;
}

std::vector<std::string> leaveOutUnheld(TapeFileContent& content, char decimal) {
    std::vector<std::string> places;
    if (content.hasRegisters()) {
        places = leaveOutUnheld(content.registers, decimal);
    }
    if (!content.hasStack()) {
        return places;
    }
    const auto check = [&](ValueCell& value, const std::string& place) {
        if (!fileHolds(value, decimal)) {
            value = ValueCell::zero();
            places.push_back(place);
        }
    };
    check(content.Xreg, "X");
    check(content.Yreg, "Y");
    check(content.LastX, "last x");
    for (std::size_t i = 0; i < content.stack.size(); ++i) {
        check(content.stack[i], "stack element " + std::to_string(i + 1));
    }
    for (std::size_t i = 0; i < content.values.size(); ++i) {
        check(content.values[i], "the value of tape line " + std::to_string(i + 1));
    }
    return places;
}

void checkReadsBack(const TapeFileContent& content, std::string_view text, char decimal) {
    const TapeFileContent read = parseTapeFile(text, decimal);
    require(read.kind == content.kind);
    require(!content.hasRegisters() || sameRegisters(content.registers, read.registers, decimal));
    if (content.hasStack()) {
        require(sameValue(content.LastX, read.LastX, decimal) && sameValue(content.Yreg, read.Yreg, decimal) &&
                sameValue(content.Xreg, read.Xreg, decimal) && content.StackPtr == read.StackPtr);
        require(sameValues(content.stack, read.stack, decimal) && sameValues(content.values, read.values, decimal));
        require(content.fillers == read.fillers && content.lines.size() == read.lines.size());
    }
}

void checkReadsBack(std::span<const RegisterLine> registers, std::string_view text, char decimal) {
    const auto rows = splitLines(text);
    require(rows.size() == registers.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        require(sameRegister(registers[i], parseRegisterLine(rows[i], decimal), decimal));
    }
}

}  // namespace tallyforge
