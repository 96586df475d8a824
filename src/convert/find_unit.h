// SPDX-License-Identifier: GPL-3.0-or-later
//
// The dialog that finds one of all units, or a pair of them ("psi to bar"), by a few letters.
#pragma once

#include "convert/unit_names.h"
#include "dialogs/unit_search.h"
#include "platform/form.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

/// What was found: a unit to convert from, and where two were typed the one to convert to.
struct FoundUnits {
    UnitPlace from;
    std::optional<int> to;
};

/// The units that answer to what is typed, best first.
class FoundRows final : public ListRows {
public:
    /// One name, or two with " to " between them.
    void search(std::string_view typed);
    [[nodiscard]] const FoundUnits* chosen() const;

    [[nodiscard]] std::size_t count() const override { return found_.size(); }
    [[nodiscard]] std::string row(std::size_t index) const override;
    [[nodiscard]] std::size_t selected() const override { return selected_; }
    void select(std::size_t index) override;
    [[nodiscard]] std::uint64_t revision() const override { return revision_; }

private:
    struct Row {
        FoundUnits units;
        int rank = 0;
    };
    void searchIn(const ConversionTable& table, int group, const UnitQuery& from, const UnitQuery* to);

    std::vector<Row> found_;
    std::size_t selected_ = 0;
    std::uint64_t revision_ = 0;
};

class FindUnitDialog final : public Form {
public:
    explicit FindUnitDialog(Engine& engine);
    /// Shows the dialog; empty where the user leaves it without a unit.
    [[nodiscard]] std::optional<FoundUnits> ask();

    Control txtFind, lstUnits, cmdOK, cmdCancel;

private:
    void layOut();
    void hang();
    void walkList(int keyCode);

    Engine& calc;
    FoundRows rows_;
    bool agreed_ = false;
};

}  // namespace tallyforge
