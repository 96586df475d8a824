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

bool sameStack(const TapeFileContent& written, const TapeFileContent& read, char decimal) {
    return sameValue(written.LastX, read.LastX, decimal) && sameValue(written.Yreg, read.Yreg, decimal) &&
           sameValue(written.Xreg, read.Xreg, decimal) && written.StackPtr == read.StackPtr &&
           std::equal(written.stack.begin(), written.stack.end(), read.stack.begin(), read.stack.end(),
                      [decimal](const ValueCell& a, const ValueCell& b) { return sameValue(a, b, decimal); });
}

/// Line by line, so that a long tape is not in memory twice.
bool sameTape(const Tape& written, TapeFileReader& reader, char decimal) {
    if (reader.lines() != written.count() || reader.fillers() != static_cast<std::size_t>(written.fillers())) {
        return false;
    }
    for (std::size_t row = 0; reader.next(); ++row) {
        if (!sameValue(heldByFile(written.value(row), decimal), reader.value(), decimal)) {
            return false;
        }
    }
    return true;
}

void require(bool holds) {
    if (!holds) {
        throw Failure{FailureNumber::DamagedFile};
    }
}

}  // namespace

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
        if (content.stack[i].asDouble() == nullptr) {
            check(content.stack[i], "stack element " + std::to_string(i + 1));
        }
    }
    const auto fillers = static_cast<std::size_t>(content.tape.fillers());
    for (std::size_t row = fillers; row < content.tape.count(); ++row) {
        if (!fileHolds(content.tape.value(row), decimal)) {
            places.push_back("the value of tape line " + std::to_string(row - fillers + 1));
        }
    }
    return places;
}

void checkReadsBack(const TapeFileContent& content, const Bytes& file, char decimal) {
    TapeFileReader reader(file, decimal);
    const TapeFileContent read = reader.readHead();
    require(read.kind == content.kind);
    require(!content.hasRegisters() || sameRegisters(content.registers, read.registers, decimal));
    require(!content.hasStack() || (sameStack(content, read, decimal) && sameTape(content.tape, reader, decimal)));
}

void checkReadsBack(std::span<const RegisterLine> registers, std::string_view text, char decimal) {
    const auto rows = splitLines(text);
    require(rows.size() == registers.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        require(sameRegister(registers[i], parseRegisterLine(rows[i], decimal), decimal));
    }
}

}  // namespace tallyforge
