// SPDX-License-Identifier: GPL-3.0-or-later
//
// What all calculator dialogs share: number fields with their keys, the three keys below them and
// their captions in each state, the "Use" options, option rows for units, layout and place. A
// dialog derives from it and says what a committed value, "Use" and "Add" mean.
//
// Empty and entering: cmdCalc "Enter <---", cmdXreg "&Exit". Solved: cmdCalc "&Exit", cmdXreg "&Add to
// Xreg", the "Use" options are to be seen. Held, after "Use": as entering.
#pragma once

#include "dialogs/dialog_support.h"
#include "dialogs/unit_tables.h"
#include "numbers/failure.h"
#include "platform/drawing.h"
#include "platform/form.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

/// What a number field takes.
struct FieldRules {
    bool signedValue = false;    ///< "\" turns the sign
    bool plainDecimals = false;  ///< digits and a decimal character alone
};

struct CalculatorLook {
    std::string_view form;
    std::string_view title;
    std::string_view name;       ///< in the tips of the keys
    std::string_view procedure;  ///< titles the messages
    int helpTopic = 0;
    std::string_view useHeading = "Use";
    bool hasUnits = true;  ///< cmdDefault beside Exit; else cmdClear
    bool hasUse = true;    ///< a solved field can be kept
    bool hasPicture = false;
    std::string_view clearCaption = "&Clear";
    std::string_view clearTip = " Reset Calculator ";
    int symbolWidth = 900;       ///< of the fields' names, twips
    int unitWidth = 800;         ///< of what stands behind the fields
    std::string_view exitTip{};  ///< where it differs from " Quit the " + name + " Calculator "
};

class CalculatorForm : public Form {
public:
    CalculatorForm(Engine& calculator, const CalculatorLook& formLook);

protected:
    /// A field with its symbol and unit, both shown in `face`, and its "Use" option.
    void addField(std::string_view symbol, std::string_view fieldName, FieldRules rules, Face face = Face::Arial);
    /// A heading with its option keys; `choose` runs when a row is clicked.
    void addOptions(std::string_view options, std::string_view heading, const std::vector<std::string_view>& captions,
                    int chosen, const std::function<void(int row)>& choose);
    /// A control of the dialog's own below the fields, `lines` lines high.
    Control& addControl(ControlKind kind, std::string_view controlName, std::string_view caption, int index = kNoIndex,
                        int lines = 1);
    /// Columns of the fields' rows.
    enum class Column { Field, Unit };
    /// The same in a column of the row that the last addControl() has begun.
    Control& addBeside(Column column, ControlKind kind, std::string_view controlName, int index);
    /// Call once all is added: keys, places, size.
    void finish();

    // What the dialog answers.
    /// Enter or Tab on a field that holds something. Returns whether the focus is to move on.
    virtual bool commit(int index) = 0;
    /// Enter or Tab on an empty field. Returns whether the focus is to move on.
    virtual bool passEmpty(int /*index*/) { return true; }
    virtual void use(int /*index*/) {}
    virtual void addToTape() = 0;
    virtual void saveDefaults() {}
    /// Starts anew: what the dialog holds, and reset().
    virtual void clearAll() { reset(); }
    /// A key goes into the field.
    virtual void beginTyping(int /*index*/) {}
    /// The keyboard came to the field.
    virtual void enterFocus(int /*index*/) {}
    /// And left it.
    virtual void leaveFocus(int /*index*/) {}

    /// All fields empty and enabled, captions of the empty state, the focus on the first field.
    void reset();
    void showEntering();
    void showSolved();
    /// There is something to add to the tape; the fields stay as they are.
    void offerAdd();
    /// cmdCalc closes the dialog, or enters again.
    void offerExit() { exitCaption(cmdCalc); }
    void takeEntry();
    /// After a failure: what was given stays until it is cleared.
    void showFailed();
    /// The key of the field was typed or a value stands: the default key clears.
    void offerClear();
    /// The first empty field behind `index`, around the end, takes the focus.
    void nextField(int index);
    void keepOption(int index);
    /// What is drawn beside the fields from now on.
    void showPicture(Drawing drawing);

    /// The number in a field. Raises 13 for a text that is none, 6.
    [[nodiscard]] double numberIn(const Control& field) const;
    /// A number as the fields show it: the user's mode, four digits or more.
    [[nodiscard]] std::string shown(double number) const;
    /// A failure of a formula or a text, in a box titled by the procedure.
    void report(const Failure& failure);
    [[nodiscard]] bool solved() const { return solved_; }
    [[nodiscard]] int fieldCount() const { return static_cast<int>(txtVal_.size()); }
    [[nodiscard]] Control& txtVal(int index) { return txtVal_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] Control& lblUnits(int index) { return lblUnits_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] Control& optCalc(int index) { return optCalc_.at(static_cast<std::size_t>(index)); }

    Engine& calc;
    Control cmdCalc;
    Control cmdXreg;
    Control cmdDefault;  ///< or cmdClear

private:
    struct OptionFrame {
        Control frame;
        std::deque<Control> options;
    };

    void hangField(int index);
    void hangKeys();
    void pressInField(int index, int& key);
    void enterField(int index);
    void typeInField(int index, int& key);
    [[nodiscard]] bool leavesFields(KeyEvent event);
    /// Ctrl+P: what the fields show, and the picture beside them.
    [[nodiscard]] bool printsPage(KeyEvent event);
    void arrange();
    [[nodiscard]] int arrangeOwn(int top);
    [[nodiscard]] int frameWidth() const;
    [[nodiscard]] int arrangeFrames(int left);
    void exitCaption(Control& key);

    CalculatorLook look;
    std::deque<Control> lblVal_;
    std::deque<Control> txtVal_;
    std::deque<Control> lblUnits_;
    std::deque<Control> optCalc_;
    std::deque<FieldRules> rules_;
    std::deque<OptionFrame> frames_;
    struct OwnControl {
        Control control;
        std::optional<Column> beside;  ///< the row is that of the control before
    };
    std::deque<OwnControl> own_;
    Control lblUse_;
    Control picture_;
    DialogKeyFilter filter_;
    int activeField_ = kNoIndex;
    bool solved_ = false;
};

}  // namespace tallyforge
