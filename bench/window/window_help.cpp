// SPDX-License-Identifier: GPL-3.0-or-later
//
// window_help: what a user waits for help, lists and charts, in this process: from F1 to the page
// painted, the first time and later; from a letter of a search to what it has found; from a key to
// the list or chart painted. Ends with 1 where a limit is missed.
#include "desktops/qt/help_window.h"
#include "help/help_file.h"
#include "platform/file_store.h"
#include "platform/form_input.h"

#include "shown_calculator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

namespace {

using namespace tallyforge;

constexpr double kFirstPage = 100.0;  ///< milliseconds
constexpr double kLaterPage = 20.0;
constexpr double kSearched = 30.0;
constexpr double kListOrChart = 30.0;

/// Notes when a window has last been painted.
class PaintWatch : public QObject {
public:
    void start() {
        painted_ = 0.0;
        clock_.start();
    }
    [[nodiscard]] double painted() const { return painted_; }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            // After the paint itself, which comes behind this.
            QTimer::singleShot(0, this, [this] {
                constexpr double kNanosecondsPerMillisecond = 1e6;
                painted_ = static_cast<double>(clock_.nsecsElapsed()) / kNanosecondsPerMillisecond;
            });
        }
        return false;
    }

private:
    QElapsedTimer clock_;
    double painted_ = 0.0;
};

PaintWatch& watch() {
    static PaintWatch kWatch;
    return kWatch;
}

/// Milliseconds from `step` to the end of the painting that it sets off.
double timeOf(const std::function<void()>& step) {
    watch().start();
    step();
    while (watch().painted() == 0.0) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QApplication::processEvents();
    return watch().painted();
}

bool report(const char* what, std::vector<double> times, double limit) {
    std::sort(times.begin(), times.end());
    const double median = times.at(times.size() / 2);
    const double slow = times.at(times.size() * 95 / 100);
    std::printf("%-28s %8.2f ms in the median, 95 percent below %6.2f ms, at most %6.2f; limit %.0f ms: %s\n", what,
                median, slow, times.back(), limit, slow <= limit ? "held" : "missed");
    return slow <= limit;
}

/// Opens the dialog of a key, and closes it when it is painted.
double timeOfDialog(MainForm& form, Control& key) {
    watch().start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [] {
        if (QWidget* dialog = QApplication::activeModalWidget(); dialog != nullptr && watch().painted() != 0.0) {
            dialog->close();
        }
    });
    look.start(1);
    click(form, key);
    return watch().painted();
}

bool measureHelp(qt::QtPlatform& platform) {
    const auto pages = readHelpFile(readWhole(platform.installedFolder() / kHelpFile));
    std::vector<int> topics;
    for (const HelpPage& page : *pages) {
        topics.insert(topics.end(), page.topics.begin(), page.topics.begin() + (page.topics.empty() ? 0 : 1));
    }
    constexpr int kSine = 1222;
    bool held = report("help, the first page", {timeOf([&] { platform.helpTopic(kSine); })}, kFirstPage);
    std::vector<double> times;
    for (const int topic : topics) {
        times.push_back(timeOf([&] { platform.helpTopic(topic); }));
    }
    held = report("help, a later page", times, kLaterPage) && held;
    times.clear();
    for (const char* question : {"speed of light", "registers", "convert pressure", "e"}) {
        QLineEdit& field = platform.help.window()->searchField();
        field.clear();
        QApplication::processEvents();
        for (const char* letter = question; *letter != 0; ++letter) {
            times.push_back(timeOf([&] { field.insert(QString(QLatin1Char(*letter))); }));
        }
    }
    held = report("help, a letter of a search", times, kSearched) && held;
    platform.help.window()->close();
    return held;
}

}  // namespace

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    QApplication application(argc, argv);
    ShownCalculator shown;
    Calculator& calculator = shown.calculator;
    MainForm& form = calculator.engine().form;
    qt::MainWindow& window = shown.window;
    qt::QtPlatform& platform = shown.platform;
    QApplication::instance()->installEventFilter(&watch());
    bool held = measureHelp(platform);
    platform.setWindow(&window);
    const std::pair<Keypad, std::vector<int>> dialogs[] = {{Keypad::Tables, {5, 6, 11, 16, 18, 22, 23}},
                                                           {Keypad::Convert, {16}}};
    std::vector<double> first;
    std::vector<double> again;
    for (const auto& [keypad, keys] : dialogs) {
        calculator.engine().keypads().ShowKeypad(keypad);
        window.view().sync();
        QApplication::processEvents();
        for (const int key : keys) {
            first.push_back(timeOfDialog(form, form.cmdFunctions.at(static_cast<std::size_t>(key))));
            again.push_back(timeOfDialog(form, form.cmdFunctions.at(static_cast<std::size_t>(key))));
        }
    }
    held = report("a list or chart, first", first, kListOrChart) && held;
    held = report("a list or chart, again", again, kListOrChart) && held;
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
