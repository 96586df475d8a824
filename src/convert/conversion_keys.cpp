// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_keys.h"

#include "convert/conversion_file.h"
#include "desk/memory_registers.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "platform/file_store.h"
#include "records/data_files.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kFirstTopic = 1400;  ///< help topic of key 0

constexpr const char* kFile = ".conversions";
constexpr const char* kSetAside = ".conversions.damaged";
constexpr std::size_t kLargest = std::size_t{64} * 1024;

std::size_t slot(int key) {
    return static_cast<std::size_t>(key);
}

/// A caption of so many letters in the width of a key.
float fittingPoints(std::size_t letters) {
    constexpr float kUsual = 10.0F;
    constexpr float kLeast = 4.5F;
    constexpr float kWidth = 40.0F;
    return letters == 0 ? kUsual : std::clamp(kWidth / static_cast<float>(letters), kLeast, kUsual);
}

void write(std::string& held, std::string_view wanted) {
    if (held != wanted) {
        held = wanted;
    }
}

void addToTip(Control& control, std::string_view text) {
    if (!control.tip.ends_with(text)) {
        control.tip += text;
    }
}

}  // namespace

ConversionKeys::Gate ConversionKeys::ConversionKeyGate(int key) {
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    const bool alt = mask == kAlt && key != key::Temperature;
    if (mask != 0 && mask != kShift && !alt) {
        calc.s.stack.KeepX = calc.s.stack.Xreg;
        refuseModifiers(calc);
        return Gate::Done;
    }
    if (calc.s.stack.Xreg.isTagged()) {
        leaveX(calc);
        return Gate::Done;
    }
    const bool stored =
        key == key::Temperature ? memory.TemperatureHeld : memory.ConversionFactors.at(slot(key)) != 0.0;
    if (mask == 0 && stored) {
        convertStored(key);
        return Gate::Done;
    }
    return alt ? Gate::DialogForAlt : Gate::Dialog;
}

void ConversionKeys::convertStored(int key) {
    double value = 0.0;
    if (key == key::Temperature) {
        const UnitPair& pair = memory.former.at(slot(key)).value();
        value = convert(kTemperatureTable.group(pair.group), pair.from, pair.to, calc.xNumber()).value;
    } else {
        value = applyFactor(calc.xNumber(), memory.ConversionFactors.at(slot(key)), memory.divides.at(slot(key)));
    }
    memory.MarkConversionKey(key);
    replaceX(calc, {value, memory.ConversionLabels.at(slot(key))});
    showFactor(key, Gate::Done);
}

ConversionDialog& ConversionKeys::dialogOf(const ConversionTable& table) {
    auto& dialog = dialogs_.at(slot(table.key));
    if (!dialog) {
        dialog = std::make_unique<ConversionDialog>(table, calc, kFirstTopic + table.key);
    }
    return *dialog;
}

void ConversionKeys::press(int key) {
    const ConversionTable& table = *conversionTableOf(key);
    if (const Gate gate = ConversionKeyGate(key); gate != Gate::Done) {
        open(table, memory.former.at(slot(key)), gate);
    }
}

void ConversionKeys::open(const ConversionTable& table, const std::optional<UnitPair>& former, Gate gate) {
    calc.s.modifiers.ModifierMask = 0;
    calc.LightModifiers(0);
    const auto choice =
        dialogOf(table).ask({.x = calc.xNumber(), .former = former, .sizes = memory.sizes.at(slot(table.key))});
    // The dispatch leaves the Convert keypad as the modifier has painted it.
    calc.keypads().RepaintKeypad();
    if (choice) {
        convertWith(table, *choice, gate);
    } else {
        leaveX(calc);
    }
}

void ConversionKeys::findUnit() {
    if (calc.s.stack.Xreg.isTagged()) {
        return leaveX(calc);
    }
    calc.s.modifiers.ModifierMask = 0;
    calc.LightModifiers(0);
    if (!finder_) {
        finder_ = std::make_unique<FindUnitDialog>(calc);
    }
    const auto found = finder_->ask();
    if (!found) {
        return leaveX(calc);
    }
    const UnitPlace& from = found->from;
    UnitPair pair{.group = from.group, .from = from.unit, .to = found->to.value_or(-1)};
    const auto& former = memory.former.at(slot(from.table->key));
    if (!found->to && former && former->group == pair.group && former->to != pair.from) {
        pair.to = former->to;
    }
    open(*from.table, pair, Gate::Dialog);
}

void ConversionKeys::load() {
    const std::filesystem::path path = calc.AppDataDir / kFile;
    std::optional<ConversionMemory> read;
    try {
        read = readConversionFile(readWhole(path, kLargest), calc.s.format.DecimalChar);
    } catch (const FileError& error) {
        if (error.problem() == FileProblem::NotFound) {
            return;
        }
    }
    if (read) {
        memory = std::move(*read);
        calc.keypads().RepaintKeypad();
        return;
    }
    std::error_code ignored;
    std::filesystem::rename(path, calc.AppDataDir / kSetAside, ignored);
    calc.message(BoxKind::Notice, "Conversions",
                 "The file \"" + std::string(kFile) + "\" is damaged and was set aside as \"" + kSetAside +
                     "\".\nThe keys of the Convert keypad remember nothing.");
}

void ConversionKeys::save() const {
    std::error_code ignored;
    const bool empty = std::none_of(memory.former.begin(), memory.former.end(), [](const auto& pair) { return pair; });
    if (empty && !std::filesystem::exists(calc.AppDataDir / kFile, ignored)) {
        return;
    }
    saveOrReport(calc, "mnuSave", calc.AppDataDir / kFile,
                 [this](WholeFile& file) { file.write(conversionFileText(memory)); });
}

void ConversionKeys::convertWith(const ConversionTable& table, const ConversionChoice& choice, Gate gate) {
    const UnitGroup& group = table.group(choice.pair.group);
    const Conversion result = convert(group, choice.pair.from, choice.pair.to, calc.xNumber(), choice.sizes);
    memory.keep(table, choice.pair, choice.sizes, result, calc.s.format.DecimalChar);
    const Result delivered{result.value, memory.ConversionLabels.at(slot(table.key))};
    if (choice.keepsX) {
        pushOnX(calc, delivered);
    } else {
        replaceX(calc, delivered);
    }
    showFactor(table.key, gate);
    calc.keypads().RepaintKeypad();
}

void ConversionKeys::showFactor(int key, Gate gate) {
    if (key == key::Temperature) {
        return;
    }
    const double factor = memory.ConversionFactors.at(slot(key));
    write(calc.form.lblCnvrt.text, calc.text(ValueCell{factor}));
    write(calc.form.lblCnvrt.tip, "Use Alt Click to save Cnv. Fctr.");
    if (gate == Gate::DialogForAlt) {
        storeInRegister2(factor);
    }
}

void ConversionKeys::storeInRegister2(double factor) {
    constexpr int kConstant = 2;
    storeInRegister(calc, kConstant, ValueCell{factor});
    calc.form.cmdSTO.enabled = true;
}

void ConversionKeys::dress() {
    for (int key = 0; key < kBankKeys; ++key) {
        Control& control = calc.form.cmdFunctions.at(slot(key));
        if (control.visible && memory.holds(key)) {
            dressHeld(control, key);
        }
        if (control.visible && memory.sizes.at(slot(key)) == Sizes::Exact) {
            addToTip(control, "(exact) ");
        }
    }
}

void ConversionKeys::dressHeld(Control& control, int key) const {
    const std::string& caption = memory.ConversionCaptions.at(slot(key));
    write(control.text, caption);
    // Its caption is a symbol from the list of constants.
    const Face face = key == key::ConvertConstants ? Face::Terminal : Face::Arial;
    const Font font{.face = face, .points = fittingPoints(caption.size())};
    if (control.font != font) {
        control.font = font;
    }
    if (const std::string& warning = memory.warnings.at(slot(key)); !warning.empty()) {
        addToTip(control, "// " + warning + " ");
    }
}

}  // namespace tallyforge
