// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/codata.h"

#include "reference/csv.h"

namespace tallyforge {

std::vector<CodataRow> codataRows() {
    constexpr std::size_t kColumns = 5;
    const std::span<const std::uint8_t> bytes = codataFile();
    const auto table = readCsv(std::string(bytes.begin(), bytes.end()));
    std::vector<CodataRow> rows;
    if (!table || table->heads.size() != kColumns) {
        return rows;
    }
    for (const auto& cells : table->rows) {
        rows.push_back(
            {.constant = cells[0], .value = cells[1], .uncertainty = cells[2], .unit = cells[3], .basis = cells[4]});
    }
    return rows;
}

}  // namespace tallyforge
