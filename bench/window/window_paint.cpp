// SPDX-License-Identifier: GPL-3.0-or-later
//
// window_paint: the calculator's window in this process, from a modifier that goes down to the bank
// painted with its captions, and from a new size to the window painted in it. Ends with 1 where a
// limit is missed.
#include "platform/form_input.h"

#include "shown_calculator.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

namespace {

using namespace tallyforge;

constexpr double kMaskLimit = 3.0;            ///< milliseconds, in the median
constexpr double kResizeLimit = 1000.0 / 60;  ///< sixty frames a second

struct Times {
    double median = 0.0;
    double slow = 0.0;  ///< 95 percent are below
};

/// Runs `step` with 0, 1, 2 ... and everything that it sets off, painting included.
Times measure(int count, const std::function<void(int)>& step) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        QElapsedTimer clock;
        clock.start();
        step(i);
        QApplication::processEvents();
        constexpr double kNanosecondsPerMillisecond = 1e6;
        times.push_back(static_cast<double>(clock.nsecsElapsed()) / kNanosecondsPerMillisecond);
    }
    std::sort(times.begin(), times.end());
    return {.median = times.at(times.size() / 2), .slow = times.at(times.size() * 95 / 100)};
}

bool report(const char* what, const Times& times, double limit) {
    std::printf("%-28s %8.2f ms in the median, 95 percent below %6.2f ms; limit %.1f ms: %s\n", what, times.median,
                times.slow, limit, times.median <= limit ? "held" : "missed");
    return times.median <= limit;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ShownCalculator shown;
    Calculator& calculator = shown.calculator;
    MainForm& form = calculator.engine().form;
    qt::MainWindow& window = shown.window;
    bool held = true;
    // Keypads that are shown without a hint, which would wait for its answer.
    for (const auto& [name, keypad] :
         {std::pair{"mask, Standard", Keypad::Standard}, std::pair{"mask, Trigonometry", Keypad::Trigonometry},
          std::pair{"mask, Convert", Keypad::Convert}}) {
        calculator.engine().keypads().ShowKeypad(keypad);
        window.view().sync();
        QApplication::processEvents();
        const auto mask = [&](int i) {
            holdModifiers(form, static_cast<std::uint8_t>(i % 8));
            window.view().sync();
        };
        measure(16, mask);  // glyphs are loaded by now
        held = report(name, measure(400, mask), kMaskLimit) && held;
        releaseModifiers(form);
    }
    const QSize usual = window.size();
    const auto drag = [&](int i) { window.resize(usual + QSize(i % 97, i % 61)); };
    held = report("resizing", measure(300, drag), kResizeLimit) && held;
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
