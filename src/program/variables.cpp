// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/variables.h"

#include "program/program_text.h"

#include <algorithm>

namespace tallyforge {

void Variables::forgetNames() {
    ProgramVarNames.assign(1, "");
    index_.clear();
    ProgramVarCount = 0;
    ProgramVarScan = kNoScan;
}

void Variables::declare(std::string_view names, const std::function<void(const std::string&)>& onName) {
    auto words = splitAtBlanks(names);
    if (words.size() > static_cast<std::size_t>(kMostVariables)) {
        words.resize(kMostVariables);
    }
    if (words.empty()) {
        words.emplace_back();
    }
    ProgramVarNames.assign(1, "xreg");
    for (const std::string_view word : words) {
        ProgramVarNames.emplace_back(word);
        // A declaration's only name is not looked at.
        if (words.size() > 1) {
            onName(ProgramVarNames.back());
        }
    }
    ProgramVarCount = static_cast<int>(words.size());
    ProgramVarScan = ProgramVarCount;
    ProgramVarValues.assign(ProgramVarNames.size(), 0.0);
    index_.clear();
    for (std::size_t i = 0; i < ProgramVarNames.size(); ++i) {
        index_.emplace(ProgramVarNames[i], static_cast<int>(i));
    }
}

int Variables::find(const std::string& name) const {
    const auto found = index_.find(name);
    return found == index_.end() ? -1 : found->second;
}

double Variables::GetProgramVariable(const std::string& name) const {
    const int index = find(name);
    return index < 0 ? 0.0 : ProgramVarValues[static_cast<std::size_t>(index)];
}

void Variables::clearValues() {
    if (ProgramVarCount != 0) {
        std::fill(ProgramVarValues.begin(), ProgramVarValues.end(), 0.0);
    }
}

}  // namespace tallyforge
