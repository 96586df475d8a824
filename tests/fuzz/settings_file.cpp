// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator starts on whatever stands in its settings file: it runs or refuses, and never
// shows more than it may.
#include "records/settings_file.h"
#include "support/calculator_fixture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tallyforge::CalculatorAtHand hand;
    std::string bytes(reinterpret_cast<const char*>(data), size);
    bytes.resize(tallyforge::SettingsRecords::kSize, ' ');
    hand.writeFile(tallyforge::SettingsFile::kName, bytes);
    hand.start();
    const tallyforge::EngineState& s = hand.s();
    if (s.format.DisplayDigits < 0 || s.format.DisplayDigits > 13 || s.format.WordSize < 4 || s.format.WordSize > 64) {
        std::abort();
    }
    // What was read is worked with, saved and read again.
    if (hand.form().open) {
        hand.platform.answers.assign(2, tallyforge::Answer::Yes);
        hand.enter("12.5");
        hand.choose(hand.form().cmdFunctions.at(data == nullptr || size == 0 ? 0 : data[size - 1] % 24U));
        hand.choose(hand.form().mnuSave);
        hand.start();
        if (!hand.form().open) {
            std::abort();
        }
    }
    hand.platform.answers.clear();
    return 0;
}
