// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tape_export.h"

#include "engine/engine.h"
#include "numbers/number_format.h"
#include "platform/file_name.h"
#include "platform/text.h"
#include "records/data_files.h"
#include "shell/tape_columns.h"

#include <array>
#include <string_view>

namespace tallyforge {

namespace {

constexpr std::string_view kTitle = "Export Running Tape";

struct FormatNames {
    std::string_view extension;
    std::string_view procedure;
};

const FormatNames& namesOf(ExportFormat format) {
    static constexpr std::array<FormatNames, 3> kNames{
        {{".txt", "mnuExportText_Click"}, {".csv", "mnuExportCsv_Click"}, {".html", "mnuExportHtml_Click"}}};
    return kNames.at(static_cast<std::size_t>(format));
}

std::string unicode(std::string_view text) {
    return toUnicode(text, Face::Terminal);
}

/// A field of a table; a quote in it is doubled.
std::string csvField(const std::string& text) {
    if (text.find_first_of("\",\r\n") == text.npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char character : text) {
        quoted.append(character == '"' ? 2 : 1, character);
    }
    return quoted + '"';
}

std::string htmlText(const std::string& text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

/// What stands behind a line, to 15 digits; empty where there is nothing.
std::string exactValue(const ValueCell& value, char decimal) {
    if (value.isEmpty()) {
        return {};
    }
    const auto number = value.tryNumber(decimal);
    return number ? plainText(*number, '.') : unicode(value.text(decimal));
}

std::string htmlHead(const std::string& title) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + title +
           "</title>\n<style>\n"
           "body { font-family: sans-serif; margin: 2em; }\n"
           "td { padding: 0 1em; font-family: monospace; white-space: pre; }\n"
           "td + td { text-align: right; }\n"
           "</style>\n</head>\n<body>\n<h1>" +
           title + "</h1>\n<table>\n<tr><th>Label</th><th>Value</th></tr>\n";
}

}  // namespace

std::string exportedTape(const Engine& calc, ExportFormat format) {
    std::string text;
    exportTape(calc, format, [&](std::string_view piece) { text += piece; });
    return text;
}

void exportTape(const Engine& calc, ExportFormat format, const std::function<void(std::string_view)>& write) {
    const std::string title = htmlText(
        toUnicode("Tallyforge Running Tape Display  --  " + calc.platform.shortDate(calc.platform.now()), Face::Arial));
    const char decimal = calc.s.format.DecimalChar;
    write(format == ExportFormat::Csv    ? "label,value,shown\r\n"
          : format == ExportFormat::Html ? htmlHead(title)
                                         : std::string{});
    for (auto row = static_cast<std::size_t>(calc.tape.fillers()); row < calc.tape.count(); ++row) {
        const std::string line = calc.tape.row(row);
        if (format == ExportFormat::Text) {
            write(unicode(line) + "\n");
            continue;
        }
        const TapeColumns columns = columnsOf(line);
        const std::size_t blanks = columns.label.find_first_not_of(' ');
        const std::string label = blanks == columns.label.npos ? "" : unicode(columns.label.substr(blanks));
        const std::string shown = unicode(columns.value);
        const std::string exact = exactValue(calc.tape.value(row), decimal);
        if (format == ExportFormat::Csv) {
            write(csvField(label) + "," + csvField(exact) + "," + csvField(shown) + "\r\n");
        } else {
            write("<tr><td>" + htmlText(label) + "</td><td><data value=\"" + htmlText(exact) + "\">" + htmlText(shown) +
                  "</data></td></tr>\n");
        }
    }
    if (format == ExportFormat::Html) {
        write("</table>\n</body>\n</html>\n");
    }
}

std::string TapeExport::complaintAbout(const std::filesystem::path& path) const {
    if (const std::string_view complaint = complaintAboutName(path); !complaint.empty()) {
        return std::string(complaint);
    }
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        return std::string(kNoFileName);
    }
    const std::filesystem::path folder = path.parent_path();
    return std::filesystem::is_directory(folder, ignored)
               ? ""
               : "There is no folder " + fromUnicode(folder.string()) + ", please enter another name.";
}

std::optional<std::filesystem::path> TapeExport::askForFile(const std::string& extension) {
    const InputBox box{.title = std::string(kTitle),
                       .prompt =
                           "Please enter a file name. Without a folder the file goes to the Oakhollow Application "
                           "Data Folder.",
                       .preset = "Tape" + extension,
                       .fileName = true,
                       .writes = extension};
    for (;;) {
        const std::string entered = calc.platform.inputBox(box);
        if (entered.empty()) {
            return std::nullopt;
        }
        // A path that begins at the root stays as it is.
        std::filesystem::path path = calc.AppDataDir / entered;
        if (complaintAboutName(path).empty() && !path.has_extension()) {
            path += extension;
        }
        std::error_code ignored;
        if (const std::string complaint = complaintAbout(path); !complaint.empty()) {
            calc.message(BoxKind::Stop, kTitle, complaint);
        } else if (!std::filesystem::exists(path, ignored) || mayOverwrite(calc, path)) {
            return path;
        }
    }
}

void TapeExport::write(ExportFormat format) {
    const FormatNames& names = namesOf(format);
    calc.s.CurrentProc = names.procedure;
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    if (const auto path = askForFile(std::string(names.extension))) {
        saveOrReport(calc, names.procedure, *path, [&](WholeFile& file) {
            exportTape(calc, format, [&](std::string_view piece) { file.write(piece); });
        });
    }
    calc.focusEntry();
}

}  // namespace tallyforge
