// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/trace.h"

#include "numbers/failure.h"
#include "platform/file_name.h"
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
    file_.emplace(folder / pathOf(bareName(state.TraceFileName)));
}

void Trace::write(int line, std::string_view word) {
    try {
        if (!file_) {
            open();
        }
        std::string text;
        if (!std::exchange(state.TraceHeaderDone, true)) {
            text = "\n" + dateAndTime(calc.platform.now()) + "\n";
        }
        text += " " + std::to_string(line) + " ";
        text += word;
        text += printed(calc.s.stack.Xreg, calc.s.format.DecimalChar) + "\n";
        // Written out at once: a trace is read while its program waits, or after it was cut off.
        file_->write(text);
    } catch (const FileError&) {
        throw Failure{FailureNumber::PathAccess};
    }
}

}  // namespace tallyforge
