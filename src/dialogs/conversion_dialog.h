// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one dialog of all conversions: two banks of options, From and To, with the same units in
// mirrored order, made from a table of units. It chooses a pair and shows what X becomes; who
// opened it converts.
#pragma once

#include "dialogs/conversion.h"
#include "dialogs/conversion_table.h"
#include "platform/form.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge {

class Engine;

/// What the dialog starts from.
struct ConversionRequest {
    double x = 0.0;
    std::optional<UnitPair> former;  ///< stands set, and counts as chosen
    Sizes sizes = Sizes::Table;
};

/// What the user chose.
struct ConversionChoice {
    UnitPair pair;
    Sizes sizes = Sizes::Table;
    bool keepsX = false;  ///< the result goes above X, which stays
};

class ConversionDialog final : public Form {
public:
    /// `topic` is the help topic of the key that opens the dialog.
    ConversionDialog(const ConversionTable& table, Engine& engine, int topic);

    /// Shows the dialog; empty where the user leaves it without a pair of units.
    [[nodiscard]] std::optional<ConversionChoice> ask(const ConversionRequest& request);

    Control lblFind, txtFind;
    std::array<Control, 2> OptExact;
    Control lblResult, lblNote;
    Control cmdOK, cmdCancel, cmdDef, cmdSwap, cmdKeep;

private:
    /// One of the two banks of a group.
    struct Bank {
        int group = 0;
        bool isTo = false;
        int units = 0;
        Control heading;
        std::vector<Control> buttons;  ///< by unit, those without one behind them
        int stop = -1;                 ///< unit where Tab stops
    };

    void makeBanks();
    void makeButtons(Bank& bank);
    void makeKeys();
    void hangKeys();
    void enrolAll();
    void layOut();
    static void placeBank(Bank& placed, int left, int width);

    void present(const ConversionRequest& request);
    void option_Click(const Bank& bank, int unit);
    void choose(UnitPair pair);
    void cmdOK_Click(bool keepsX);
    void cmdSwap_Click();
    void chooseSizes(Sizes sizes);

    void txtFind_Change();
    void txtFind_KeyDown(KeyEvent event);
    void takeHit();
    [[nodiscard]] std::optional<UnitPair> bestHit(bool isTo) const;

    [[nodiscard]] bool preview_(KeyEvent event);
    bool walk(const Bank& walked, int unit, int keyCode);
    bool jump(const Bank& walked, int unit, int keyCode);
    void moveTo(const Bank& walked, int unit);
    [[nodiscard]] static int stepFrom(const Bank& walked, int unit, int step);

    void clearMarks();
    void mark(int unit, bool isTo, bool on);
    void setTwins(bool enabled);
    void showChoice();
    void updateStops();
    [[nodiscard]] std::string resultText() const;
    [[nodiscard]] std::string noteText() const;
    [[nodiscard]] Bank& bank(int group, bool isTo) {
        return banks_[2 * static_cast<std::size_t>(group) + (isTo ? 1 : 0)];
    }
    [[nodiscard]] std::size_t groupCount() const { return table_.groups.size(); }
    [[nodiscard]] bool complete() const { return FromIndex >= 0 && ToIndex >= 0; }

    const ConversionTable& table_;
    Engine& calc;
    std::vector<Bank> banks_;  ///< From and To of each group
    int group_ = 0;            ///< group that holds the choice
    int FromIndex = -1;        ///< unit numbers; -1 for none
    int ToIndex = -1;
    bool toIsNext_ = false;  ///< the search field's next hit is the To unit
    bool narrowed_ = false;
    double x_ = 0.0;
    Sizes sizes_ = Sizes::Table;
    std::optional<ConversionChoice> chosen_;
};

}  // namespace tallyforge
