// SPDX-License-Identifier: GPL-3.0-or-later
//
// The variables of a program: names in declared order with their values. Element 0 is "xreg" after
// a good load.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyforge {

/// Value of ProgramVarScan when lines are no longer looked at for a name at their head.
inline constexpr int kNoScan = 32767;
/// Most names that can be declared.
inline constexpr int kMostVariables = 32766;

class Variables {
public:
    /// Before a load's declaration: the one name "", no count, no scan. Values stay.
    void forgetNames();
    /// Takes the names of a declaration; all values become 0. `onName` is handed each name that is
    /// to be checked, as it is stored.
    void declare(std::string_view names, const std::function<void(const std::string&)>& onName);

    /// Index of the first variable of that name, "xreg" included; -1 for none.
    [[nodiscard]] int find(const std::string& name) const;
    /// The value under that name, 0 for a name that was not declared.
    [[nodiscard]] double GetProgramVariable(const std::string& name) const;
    /// Sets all values to 0 where any name was declared.
    void clearValues();
    /// A load has found its declaration.
    [[nodiscard]] bool initialized() const { return ProgramVarNames.front() == "xreg"; }

    std::vector<std::string> ProgramVarNames{""};
    std::vector<double> ProgramVarValues{0.0};
    int ProgramVarCount = 0;
    int ProgramVarScan = kNoScan;

private:
    std::unordered_map<std::string, int> index_;
};

}  // namespace tallyforge
