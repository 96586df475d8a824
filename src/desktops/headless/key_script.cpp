// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/key_script.h"

#include "desktops/headless/form_reader.h"
#include "desktops/headless/key_names.h"
#include "desktops/headless/script_words.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <utility>

namespace tallyforge {

struct KeyScript::Word {
    std::string_view name;
    Action action;
};

const std::vector<KeyScript::Word>& KeyScript::words() {
    static const std::vector<Word> kWords{
        {"type", &KeyScript::type},
        {"key", &KeyScript::key},
        {"hold", &KeyScript::hold},
        {"release", &KeyScript::release},
        {"click", &KeyScript::clickControl},
        {"rightclick", &KeyScript::rightClickControl},
        {"dblclick", &KeyScript::doubleClickRow},
        {"menu", &KeyScript::menu},
        {"close", &KeyScript::close},
        {"answer", &KeyScript::answer},
        {"clipboard", &KeyScript::clipboard},
        {"restart", &KeyScript::restart},
        {"show", &KeyScript::show},
        {"expect", &KeyScript::expect},
    };
    return kWords;
}

KeyScript::KeyScript(HeadlessOptions options, Print printLine, Print complain)
    : options_(std::move(options)), printLine_(std::move(printLine)), complain_(std::move(complain)) {}

KeyScript::KeyScript(Calculator& calculator, HeadlessPlatform& desk, Print printLine, Print complain)
    : printLine_(std::move(printLine)),
      complain_(std::move(complain)),
      platform_(&desk),
      calculator_(&calculator),
      isGuest_(true) {
    desk.driveDialog = [this](Form& dialog) { driveDialog(dialog); };
}

void KeyScript::start() {
    ownCalculator_.reset();
    auto answering = std::move(ownPlatform_);
    ownPlatform_ = std::make_unique<HeadlessPlatform>(options_, printLine_);
    platform_ = ownPlatform_.get();
    if (answering) {
        // Answers, clipboard and random numbers outlive a restart of the program.
        platform_->inherit(*answering);
    }
    platform_->driveDialog = [this](Form& dialog) { driveDialog(dialog); };
    ownCalculator_ = std::make_unique<Calculator>(*platform_);
    calculator_ = ownCalculator_.get();
    ended_ = false;
    held_ = 0;
    dialog_ = nullptr;
    calculator_->start();
    noteEnd();
}

Form& KeyScript::form() const {
    return dialog_ != nullptr ? *dialog_ : static_cast<Form&>(calculator_->engine().form);
}

ScriptEnd KeyScript::run(std::istream& script) {
    script_ = &script;
    lineNumber_ = 0;
    expectFailed_ = false;
    restartDue_ = false;
    try {
        if (!isGuest_) {
            start();
        }
        while (step(script)) {
            if (std::exchange(restartDue_, false)) {
                restartProgram();
            }
        }
    } catch (const Wrong& wrong) {
        complain_("line " + std::to_string(lineNumber_) + ": " + wrong.reason);
        return ScriptEnd::WrongScript;
    }
    return expectFailed_ ? ScriptEnd::ExpectFailed : ScriptEnd::Done;
}

bool KeyScript::step(std::istream& script) {
    std::string line;
    if (!std::getline(script, line)) {
        return false;
    }
    ++lineNumber_;
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    if (!line.empty() && line.front() != ';') {
        perform(line);
        noteEnd();
    }
    return true;
}

void KeyScript::noteEnd() {
    if (!ended_ && !calculator_->engine().form.open) {
        ended_ = true;
        printLine_("end");
    }
}

void KeyScript::driveDialog(Form& dialog) {
    Form* const below = std::exchange(dialog_, &dialog);
    // A restart leaves every dialog first: the handlers below them belong to the calculator that goes.
    while (dialog.open && !restartDue_ && step(*script_)) {
    }
    if (dialog.open && !restartDue_ && leftOpen) {
        std::exchange(leftOpen, nullptr)(dialog);
    }
    dialog_ = below;
}

void KeyScript::perform(std::string_view line) {
    std::string_view rest = line;
    const std::string_view word = takeWord(rest);
    if (word.empty()) {
        return;
    }
    const auto known =
        std::find_if(words().begin(), words().end(), [word](const Word& entry) { return entry.name == word; });
    if (known == words().end()) {
        throw Wrong{"unknown word '" + std::string(word) + "'"};
    }
    if (!rest.empty()) {
        rest.remove_prefix(1);
    }
    if (ended_ && known->action != &KeyScript::restart && known->action != &KeyScript::show &&
        known->action != &KeyScript::expect) {
        throw Wrong{"the program has ended"};
    }
    (this->*known->action)(rest);
}

void KeyScript::repeatHeld() {
    if (held_ != 0) {
        holdModifiers(form(), held_);
    }
}

template <typename Act>
void KeyScript::withModifiers(std::uint8_t shift, Act act) {
    const auto all = static_cast<std::uint8_t>(held_ | shift);
    if (all != 0) {
        holdModifiers(form(), all);
    }
    act(all);
    if (shift != 0) {
        releaseModifiers(form());
    }
    // A key has used its modifiers up, but these are still down.
    repeatHeld();
}

void KeyScript::type(std::string_view text) {
    for (const char character : fromUnicode(text)) {
        const auto byte = static_cast<unsigned char>(character);
        const auto shift = static_cast<std::uint8_t>(held_ & ~kShift);
        const KeyStroke stroke{.keyCode = keyCodeOf(byte), .shift = shift, .character = characterUnder(byte, shift)};
        pressKey(form(), stroke);
        releaseKey(form(), {.keyCode = stroke.keyCode, .shift = held_});
    }
}

void KeyScript::key(std::string_view rest) {
    std::string_view name = takeWord(rest);
    const std::uint8_t shift = takeModifiers(name);
    KeyStroke stroke{.shift = static_cast<std::uint8_t>(shift | held_)};
    const auto* const named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                           [name](const NamedKey& entry) { return entry.name == name; });
    if (named != kNamedKeys.end()) {
        stroke.keyCode = named->keyCode;
        stroke.character = (stroke.shift & (kCtrl | kAlt)) != 0 ? 0 : named->character;
    } else if (const std::string character = fromUnicode(name); character.size() == 1) {
        const auto byte = static_cast<unsigned char>(character.front());
        stroke.keyCode = keyCodeOf(byte);
        if (shift == kShift) {
            // Shift with a character types the shifted one; a letter is its capital.
            stroke.character = std::toupper(byte);
            stroke.shift = held_;
        } else {
            stroke.character = characterUnder(byte, stroke.shift);
        }
    } else {
        throw Wrong{"unknown key '" + std::string(name) + "'"};
    }
    if (shift != 0 && stroke.shift != 0) {
        holdModifiers(form(), stroke.shift);
    }
    if (dialog_ != nullptr && stroke.keyCode == 'V' && stroke.shift == kCtrl) {
        return pasteText(form(), platform_->clipboardText());
    }
    pressKey(form(), stroke);
    releaseKey(form(), {.keyCode = stroke.keyCode, .shift = held_});
}

void KeyScript::hold(std::string_view modifiers) {
    const std::string text = std::string(takeWord(modifiers)) + "+";
    std::string_view rest = text;
    const std::uint8_t mask = takeModifiers(rest);
    if (mask == 0 || !rest.empty()) {
        throw Wrong{"no modifiers '" + text.substr(0, text.size() - 1) + "'"};
    }
    held_ = static_cast<std::uint8_t>(held_ | mask);
    repeatHeld();
}

void KeyScript::release(std::string_view /*rest*/) {
    held_ = 0;
    releaseModifiers(form());
}

KeyScript::Target KeyScript::target(std::string_view text) const {
    Target found;
    found.shift = takeModifiers(text);
    std::string_view name = text.substr(0, text.find('('));
    int number = kNoIndex;
    if (name.size() < text.size()) {
        const std::string_view inside = text.substr(name.size() + 1);
        const auto result = std::from_chars(inside.data(), inside.data() + inside.size(), number);
        const std::string_view behind = inside.substr(static_cast<std::size_t>(result.ptr - inside.data()));
        if (result.ec != std::errc{} || number < 0 || behind != ")") {
            throw Wrong{"no control '" + std::string(text) + "'"};
        }
    }
    found.control = form().find(name, number);
    if (found.control == nullptr && number != kNoIndex) {
        found.control = form().find(name);
        found.row = number;
        if (found.control != nullptr && found.control->rows == nullptr) {
            found.control = nullptr;
        }
    }
    if (found.control == nullptr) {
        throw Wrong{"no control '" + std::string(text) + "'"};
    }
    return found;
}

std::size_t KeyScript::rowOf(const Target& at) const {
    const auto row = calculator_->rowOf(*at.control, at.row);
    if (!row) {
        throw Wrong{"no such row: " + std::to_string(at.row)};
    }
    return *row;
}

void KeyScript::clickControl(std::string_view rest) {
    const Target at = target(takeWord(rest));
    if (at.row < 0) {
        withModifiers(at.shift, [&](std::uint8_t shift) { click(form(), *at.control, shift); });
        return;
    }
    const std::size_t row = rowOf(at);
    withModifiers(at.shift, [&](std::uint8_t /*shift*/) { clickRow(form(), *at.control, row); });
}

void KeyScript::doubleClickRow(std::string_view rest) {
    const Target at = target(takeWord(rest));
    if (at.row < 0) {
        throw Wrong{"dblclick needs the row of a list"};
    }
    const std::size_t row = rowOf(at);
    withModifiers(at.shift, [&](std::uint8_t /*shift*/) { tallyforge::doubleClickRow(form(), *at.control, row); });
}

void KeyScript::rightClickControl(std::string_view rest) {
    const std::string_view name = takeWord(rest);
    std::string_view bare = name;
    if (const std::uint8_t shift = takeModifiers(bare); bare == form().name) {
        return withModifiers(shift, [&](std::uint8_t all) { rightClickForm(form(), all); });
    }
    const Target at = target(name);
    withModifiers(at.shift, [&](std::uint8_t shift) { rightClick(form(), *at.control, shift); });
}

void KeyScript::menu(std::string_view rest) {
    const std::string_view name = takeWord(rest);
    Control* entry = form().find(name);
    if (entry == nullptr || entry->kind != ControlKind::MenuEntry) {
        throw Wrong{"no menu entry '" + std::string(name) + "'"};
    }
    click(form(), *entry);
}

void KeyScript::close(std::string_view /*rest*/) {
    if (isGuest_ && dialog_ == nullptr) {
        throw Wrong{"the calculator is not to be ended here"};
    }
    closeForm(form());
}

void KeyScript::answer(std::string_view rest) {
    constexpr std::array<std::pair<std::string_view, Answer>, 4> kAnswers{
        {{"yes", Answer::Yes}, {"no", Answer::No}, {"ok", Answer::Ok}, {"cancel", Answer::Cancel}}};
    const std::string_view word = takeWord(rest);
    if (word == "text") {
        platform_->queueText(std::string(rest.substr(std::min<std::size_t>(1, rest.size()))));
        return;
    }
    for (const auto& [name, value] : kAnswers) {
        if (name == word) {
            platform_->queueAnswer(value);
            return;
        }
    }
    throw Wrong{"no answer '" + std::string(word) + "'"};
}

void KeyScript::clipboard(std::string_view text) {
    platform_->setClipboardText(fromUnicode(text));
}

void KeyScript::restart(std::string_view /*rest*/) {
    if (isGuest_) {
        throw Wrong{"the calculator is not to be ended here"};
    }
    restartDue_ = true;
}

void KeyScript::restartProgram() {
    if (!ended_) {
        closeForm(calculator_->engine().form);
        noteEnd();
    }
    start();
}

void KeyScript::show(std::string_view rest) {
    shown_.clear();
    for (std::string_view word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
        auto lines = readWord(calculator_->engine(), form(), word);
        if (!lines) {
            const Target at = target(word);
            lines = std::vector<std::string>{at.row < 0 ? controlLine(form(), *at.control)
                                                        : rowLine(*at.control, at.row, rowOf(at))};
        }
        for (std::string& line : *lines) {
            printLine_(line);
            shown_.push_back(std::move(line));
        }
    }
}

void KeyScript::expect(std::string_view line) {
    if (std::find(shown_.begin(), shown_.end(), line) == shown_.end()) {
        complain_("line " + std::to_string(lineNumber_) + ": expected '" + std::string(line) + "'");
        expectFailed_ = true;
    }
}

}  // namespace tallyforge
