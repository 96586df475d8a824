// SPDX-License-Identifier: GPL-3.0-or-later
//
// The dialog of the ladder network: a frequency, then elements from the load to the input, each
// typed in the field that names its kind.
#pragma once

#include "calculators/ladder.h"
#include "dialogs/calculator_dialog.h"
#include "dialogs/calculator_form.h"
#include "numbers/value_cell.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tallyforge {

class LadderDialog : public CalculatorForm {
public:
    LadderDialog(Engine& calculator, DialogHandOver& handOver, CalculatorServices services);

protected:
    bool commit(int index) override;
    void addToTape() override;
    void saveDefaults() override;
    void clearAll() override;
    void beginTyping(int index) override;
    void leaveFocus(int index) override;

private:
    /// One line of the list, and what the network was with it.
    struct Step {
        ValueCell value;
        std::string prefix{};
        std::string listed{};
        bool measured = false;
        double size = 0.0;
        double angle = 0.0;
    };
    class StepRows : public ListRows {
    public:
        [[nodiscard]] std::size_t count() const override { return steps.size(); }
        [[nodiscard]] std::string row(std::size_t index) const override { return steps.at(index).listed; }
        [[nodiscard]] std::size_t selected() const override { return selected_; }
        void select(std::size_t index) override {
            selected_ = index;
            ++revision_;
        }
        [[nodiscard]] std::uint64_t revision() const override { return revision_; }
        void add(Step step) {
            steps.push_back(std::move(step));
            select(steps.size() - 1);
        }
        void clear() {
            steps.clear();
            select(0);
        }
        std::vector<Step> steps;

    private:
        std::size_t selected_ = 0;
        std::uint64_t revision_ = 0;
    };

    void takeX();
    bool add(int index, const ValueCell& value, double number);
    void labelFields();
    void drawNetwork();

    CalculatorServices services_;
    std::uint8_t asked_;
    ValueCell brought_;
    Ladder ladder_;
    StepRows rows_;
    int committed_ = kNoIndex;  ///< field that is emptied when the keyboard leaves it
};

}  // namespace tallyforge
