// SPDX-License-Identifier: GPL-3.0-or-later
//
// Save means load: what a tape or register file cannot hold is found before it is written, and
// every text that is to become a file is read back in memory first. The lines of such a file end
// a value at a comma or a line break, so a pasted text may have no place in one.
#pragma once

#include "records/tape_file.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// Whether the line of a register comes back as the same plain text. A register that is 0 comes back empty.
[[nodiscard]] bool fileHolds(const RegisterLine& line, char decimal);

/// Puts nothing (0 on the stack, an empty register) in the place of what a file cannot hold, and
/// tells where: "Register 5", "X", "stack element 3".
[[nodiscard]] std::vector<std::string> leaveOutUnheld(std::span<RegisterLine> registers, char decimal);
[[nodiscard]] std::vector<std::string> leaveOutUnheld(TapeFileContent& content, char decimal);

/// Reads what has been written of a file back; raises 54 where it is not `content` again.
void checkReadsBack(const TapeFileContent& content, const Bytes& file, char decimal);
/// The same for the lines of a register file.
void checkReadsBack(std::span<const RegisterLine> registers, std::string_view text, char decimal);

}  // namespace tallyforge
