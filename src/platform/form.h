// SPDX-License-Identifier: GPL-3.0-or-later
//
// A form is plain data: controls with caption, tool tip, place and state, and the handlers that
// run when a hand touches them. Handlers change controls and never know a widget; a platform
// renders the form after each handler. Everything that a user can do to a form goes through
// form_input.h, so that a window and a key script behave alike.
#pragma once

#include "platform/drawing.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// Modifier keys as bits, added together.
enum Modifier : std::uint8_t { kNoModifier = 0, kShift = 1, kCtrl = 2, kAlt = 4 };

enum class ControlKind {
    Key,
    Field,
    Label,
    List,
    Option,
    Frame,
    Lamp,
    Menu,
    MenuEntry,
    Separator,
    Check,    ///< a box that a click ticks and clears
    Choice,   ///< a list of which one row shows; `rows` holds them
    Picture,  ///< shows `drawing`
    Progress  ///< shows `progress`
};

/// Back colour of a key: what kind of key it is.
enum class KeyColour { Plain, Yellow, Blue, PaleYellow };

/// The group of keys that a key belongs to; it decides the tone of its face.
enum class KeyTone : std::uint8_t { Function, Number, Operator, Enter, Mode };

/// Place on the form in twips, 1/1440 inch.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

struct Font {
    Face face = Face::Arial;
    float points = 10.0F;
    bool bold = false;
    friend bool operator==(const Font&, const Font&) = default;
};

/// The rows of a list control. Rows are read when they are shown, so a list of a million rows
/// costs what is visible of it.
class ListRows {
public:
    virtual ~ListRows() = default;
    [[nodiscard]] virtual std::size_t count() const = 0;
    /// Text of row `index` (0 is the topmost), eight-bit.
    [[nodiscard]] virtual std::string row(std::size_t index) const = 0;
    /// Selected row, or count() where none is.
    [[nodiscard]] virtual std::size_t selected() const = 0;
    virtual void select(std::size_t index) = 0;
    /// Changes whenever any row, the count or the selection changes.
    [[nodiscard]] virtual std::uint64_t revision() const = 0;
};

/// A key as it goes down or up. `keyCode` is the key's number (see key_codes.h), `shift` the
/// modifiers held with it; the Shift that a printable character needs is not among them.
struct KeyEvent {
    int keyCode = 0;
    std::uint8_t shift = 0;
};

enum class MouseButton { Left, Right };

/// Number of a control that stands alone, not in an array.
inline constexpr int kNoIndex = -1;

struct Control {
    std::string name;      ///< as on the form, "cmdMath"
    int index = kNoIndex;  ///< place in its control array, or kNoIndex
    ControlKind kind = ControlKind::Key;
    std::string text;    ///< caption (with "&" before the access letter) or text, eight-bit
    std::string tip;     ///< tool tip, eight-bit
    std::string spoken;  ///< accessible name, where caption and tip say too little
    Place place{};
    Font font{};
    KeyColour colour = KeyColour::Plain;
    KeyTone tone = KeyTone::Function;
    bool enabled = true;
    bool visible = true;
    bool checked = false;       ///< option selected, box or menu entry ticked
    bool opaque = false;        ///< drawn without its text being looked at (a lamp)
    std::size_t caret = 0;      ///< fields: position of the caret
    std::size_t maxLength = 0;  ///< fields: most characters, 0 without a limit
    bool fromBottom = false;    ///< lists: few rows stand at the bottom
    bool rightAligned = false;  ///< fields and labels
    std::string menu;           ///< menu entries: name of the menu that holds them
    ListRows* rows = nullptr;   ///< lists and choices
    int rowHeight = 200;        ///< lists: height of a row of nine points, twips
    std::vector<int> columns;   ///< lists: where the text behind each tab character begins, twips
    std::string group;          ///< options: those of one group exclude each other; "" is the name's
    bool tabStop = true;        ///< Tab stops here
    bool takesEnter = false;    ///< fields: Enter, Tab or Esc come to its key handlers and
    bool takesTab = false;      ///< do nothing else
    bool takesEscape = false;
    std::string typedBy;        ///< keys: characters of the keyboard that press it
    int struckBy = 0;           ///< keys: code of the key that presses it and types nothing
    bool live = false;          ///< what becomes of its text, or its last row, is told to a listener
    int walkStop = 0;           ///< where typing has a field of its own: the stop of Tab that it belongs to, from 1
    int progress = 0;           ///< 0 to 100
    int refusals = 0;           ///< fields: counts what was typed and dropped; each flashes the edge
    std::string shortCut{};     ///< menu entries: the keys that do the same, shown beside the caption
    bool placesWindow = false;  ///< menu entries: of no use where windows cannot be placed
    Drawing drawing{};          ///< pictures

    /// Keys: it would do nothing at present (under the modifiers that are held), and is painted dim.
    std::function<bool()> idle;
    /// What it does at present, in words; eight-bit.
    std::function<std::string()> words;
    /// Fields: shown faintly while nothing is typed. Lists: lines shown faintly while there are no rows.
    std::function<std::string()> resting;

    // Handlers; an empty one means that nothing happens.
    std::function<void()> click;
    std::function<void()> doubleClick;
    std::function<void(MouseButton, std::uint8_t shift)> mouseDown;
    std::function<void(MouseButton, std::uint8_t shift)> mouseUp;  ///< behind the click
    std::function<void()> gotFocus;
    std::function<void()> lostFocus;
    /// The hand changed the text of a field, or chose a row of a choice.
    std::function<void()> changed;
    std::function<void(KeyEvent)> keyDown;
    /// May set the character to 0 to drop it.
    std::function<void(int& keyAscii)> keyPress;
    std::function<void(KeyEvent)> keyUp;

    /// Name with the index in parentheses where there is one: "cmdMath(3)".
    [[nodiscard]] std::string fullName() const;
};

/// A window full of controls. Controls are members of the classes derived from it, so their
/// addresses stay; enrol() makes them known to platforms in drawing and tab order.
class Form {
public:
    Form(std::string name, std::string title);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    std::string name;   ///< "frm_Tallyforge"
    std::string title;  ///< title bar, eight-bit
    Place place{};      ///< twips; left and top on the screen
    bool minimised = false;
    bool alwaysOnTop = false;
    bool open = true;   ///< a handler clears it to close the form
    int helpTopic = 0;  ///< of F1; 0 for none

    Control* focus = nullptr;       ///< has the keyboard
    Control* focusTold = nullptr;   ///< knows that it has the focus
    Control* typing = nullptr;      ///< hears all typing, whatever key took the focus; none in a dialog
    Control* tabbedTo = nullptr;    ///< where Tab has led on a form with such a field
    Control* defaultKey = nullptr;  ///< clicked by Enter
    Control* cancelKey = nullptr;   ///< clicked by Esc
    /// Stands under the pointer, where a platform has one.
    const Control* underPointer = nullptr;

    std::function<void()> load;  ///< before the form is shown
    /// Gives a dialog its left and top, after `load`; without one `place` stands. A dialog is then
    /// moved as far as it must be to lie wholly on the screen.
    std::function<void()> placing;
    /// A handler raised what it should have caught, or memory ran out in it; without one it goes on
    /// to whoever called form_input. A dialog gets the platform's when it opens.
    std::function<void(const std::exception&)> failed;
    /// F1; a dialog gets one when it opens.
    std::function<void()> help;
    /// A mouse button went down where no control stands.
    std::function<void(MouseButton, std::uint8_t shift)> mouseDown;
    /// Takes a text over to the clipboard.
    std::function<void(std::string_view)> copyText;
    /// Sees each key before the control that has the keyboard; returns whether it keeps it.
    std::function<bool(KeyEvent)> preview;
    std::function<void()> activate;  ///< once shown
    std::function<void()> deactivate;
    std::function<void()> close;   ///< the close button; clears `open` if it agrees
    std::function<void()> unload;  ///< a dialog is closed, by whatever way

    /// Height of what stands inside the window's frame, below a menu bar; twips.
    [[nodiscard]] virtual int contentHeight() const { return place.height; }
    /// The window has this much height and width to spare, in twips; a form may give them to its lists.
    /// Returns the width that it takes.
    virtual int fill(int /*spareHeight*/, int /*spareWidth*/) { return 0; }
    /// The label that says what the control under the pointer does; nullptr where there is none.
    Control* nameLine = nullptr;
    /// What that label says for `pointed`, or for none; "" leaves it as it is.
    [[nodiscard]] virtual std::string lineFor(const Control* /*pointed*/) const { return {}; }

    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// The control of that name and index, or nullptr.
    [[nodiscard]] Control* find(std::string_view controlName, int index = kNoIndex) const;
    void setFocus(Control& control) { focus = &control; }

protected:
    void enrol(Control& control) { controls_.push_back(&control); }

private:
    std::vector<Control*> controls_;
};

}  // namespace tallyforge
