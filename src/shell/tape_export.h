// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tape for other programs: as a text, as a table of comma-separated values, as a page of HTML.
// Files are UTF-8 and written whole or not at all.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

enum class ExportFormat { Text, Csv, Html };

/// The tape of `calc`, filler lines left out.
///   Text: each line as it is shown.
///   Csv:  a head, then label, value with up to 15 digits and a decimal point in every locale (a
///         number of a base as it stands), and value as shown; quoted where RFC 4180 wants it.
///   Html: a page with a table of labels and values.
[[nodiscard]] std::string exportedTape(const Engine& calc, ExportFormat format);
/// The same in pieces, for a tape that is longer than a text in memory should be.
void exportTape(const Engine& calc, ExportFormat format, const std::function<void(std::string_view)>& write);

class TapeExport {
public:
    explicit TapeExport(Engine& calculator) : calc(calculator) {}

    /// Asks for a file and writes the tape into it. A name without a folder, or in one that is not
    /// given from the root, lies in the data folder.
    void mnuExportText_Click() { write(ExportFormat::Text); }
    void mnuExportCsv_Click() { write(ExportFormat::Csv); }
    void mnuExportHtml_Click() { write(ExportFormat::Html); }

private:
    void write(ExportFormat format);
    [[nodiscard]] std::optional<std::filesystem::path> askForFile(const std::string& extension);
    [[nodiscard]] std::string complaintAbout(const std::filesystem::path& path) const;

    Engine& calc;
};

}  // namespace tallyforge
