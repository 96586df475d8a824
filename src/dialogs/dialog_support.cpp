// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/dialog_support.h"

#include "engine/engine.h"
#include "platform/key_codes.h"
#include "platform/text.h"

#include <array>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kRejected = "0";

/// Glyphs of the tape's code page and the characters that read alike elsewhere.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kPairs{
    {{"²"_t, "ý"_t}, {"µ"_t, "æ"_t}, {"°"_t, "ø"_t}}};
constexpr std::string_view kCube = "³"_t;
constexpr std::string_view kCubeInText = "^3";
constexpr std::string_view kAngstrom = "Å"_t;

std::string_view printed(std::string_view character) {
    for (const auto& [one, other] : kPairs) {
        if (character == one || character == other) {
            return character == one ? other : one;
        }
    }
    return character == kCube ? kCubeInText : character == kAngstrom ? "A" : character;
}

}  // namespace

DialogPlace placeCalculator(const Place& form, const DesktopMetrics& screen, int width, int height) {
    constexpr int kTaskBar = 800;
    const int half = form.width / 2;
    DialogPlace at{.DialogTop = form.top, .DialogLeft = form.left + half};
    if (at.DialogLeft + width > screen.screenWidth - kTaskBar) {
        at.DialogLeft = half >= width ? form.left : screen.screenWidth - kTaskBar - width;
    }
    if (at.DialogTop + height > screen.screenHeight) {
        at.DialogTop = screen.screenHeight - height;
    }
    return at;
}

DialogPlace PlaceDialog(const Place& form, const DesktopMetrics& screen, int width, int height) {
    constexpr int kTaskBar = 800;
    const int half = form.height / 2;
    DialogPlace place{.DialogTop = form.top + half, .DialogLeft = form.left};
    if (place.DialogTop + height >= screen.screenHeight - kTaskBar) {
        place.DialogTop = half >= height ? form.top : screen.screenHeight - kTaskBar - height;
    }
    if (form.left + width >= screen.screenWidth) {
        place.DialogLeft = screen.screenWidth - width;
    }
    return place;
}

void placeBeside(const Engine& calc, Form& dialog) {
    const DialogPlace at =
        PlaceDialog(calc.form.place, calc.platform.metrics(), dialog.place.width, dialog.place.height);
    dialog.place.left = at.DialogLeft;
    dialog.place.top = at.DialogTop;
}

std::string DialogKeyFilter::filter(int key, std::string& text) {
    switch (key) {
        case kKeyBackspace:
            exponentSign = exponentSign && !text.ends_with('-') && text.size() != 1;
            EexActive = EexActive && !text.ends_with('e') && text.size() != 1;
            return std::to_string(key);
        case kKeyEscape:
            EexActive = false;
            exponentSign = false;
            return "esc";
        case '-':
        case '\\':
        case 'E':
        case 'e':
            return exponentKey(key, text);
        default:
            break;
    }
    const bool digit = key >= '0' && key <= '9';
    const bool point = key == decimal_ && text.find(decimal_) == std::string::npos;
    return digit || point ? std::to_string(key) : std::string(kRejected);
}

std::string DialogKeyFilter::exponentKey(int key, std::string& text) {
    const bool sign = key == '-' || key == '\\';
    if (EexActive) {
        const bool taken = sign && !std::exchange(exponentSign, exponentSign || sign);
        return taken ? std::to_string(int{'-'}) : std::string(kRejected);
    }
    if (sign) {
        return key == '\\' ? "chs" : std::string(kRejected);
    }
    EexActive = true;
    if (text.empty()) {
        text = "1e";
        return std::string(kRejected);
    }
    return std::to_string(int{'e'});
}

std::string_view AngleLabel(AngleMode mode, bool state) {
    switch (mode) {
        case AngleMode::Degrees:
            return state ? "Deg" : "(ø)"_t;
        case AngleMode::Radians:
            return state ? "rad" : "(rad)";
        default:
            return state ? "Grad" : "(Gr)";
    }
}

void CharLimitMessage(Engine& calc, std::string_view text) {
    calc.message(BoxKind::Info, "Character Limit Reached!",
                 "\nYou've exceeded 15 characters! The \npreviously entered number will be used.\n" +
                     std::string(text) + ". Or press Esc or\n Click Clear to re-enter.");
}

std::string MapLabelToPrint(std::string_view label) {
    std::string text;
    for (const char& character : label) {
        text += printed({&character, 1});
    }
    if (text.ends_with(kCubeInText)) {
        text.replace(text.size() - kCubeInText.size(), kCubeInText.size(), kCube);
    }
    return text;
}

}  // namespace tallyforge
