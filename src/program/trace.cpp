// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/trace.h"

#include "numbers/failure.h"
#include "program/program_folders.h"

#include <cstdio>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

std::string dateAndTime(const LocalTime& now) {
    char text[64];
    std::snprintf(text, sizeof text, "%d/%d/%04d %02d:%02d", now.month, now.day, now.year, now.hour, now.minute);
    return text;
}

/// As a plain print writes it: a number with a blank or minus in front and a blank behind.
std::string printed(const ValueCell& cell, char decimal) {
    if (cell.isText() || cell.isEmpty()) {
        return cell.text(decimal);
    }
    const std::string text = cell.text(decimal);
    return (text.starts_with('-') ? "" : " ") + text + " ";
}

}  // namespace

void Trace::open() {
    const std::filesystem::path folder = tracesFolder(calc);
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    if (!state.TraceRenamed) {
        state.TraceFileName = kDefaultTrace;
    }
    file_.open(folder / pathOf(state.TraceFileName), std::ios::app | std::ios::binary);
}

void Trace::write(int line, std::string_view word) {
    if (!file_.is_open()) {
        open();
    }
    if (!std::exchange(state.TraceHeaderDone, true)) {
        file_ << '\n' << dateAndTime(calc.platform.now()) << '\n';
    }
    // Written out at once: a trace is read while its program waits, or after it was cut off.
    file_ << ' ' << line << ' ' << word << printed(calc.s.stack.Xreg, calc.s.format.DecimalChar) << std::endl;
    if (!file_) {
        throw Failure{FailureNumber::PathAccess};
    }
}

}  // namespace tallyforge
