// SPDX-License-Identifier: GPL-3.0-or-later
//
// tallyforge: the calculator in its window, with the program or tape that it is given. With --render FILE.png [SCRIPT]
// it draws the window as it stands after a key script into a picture, or the dialog that the script has left open, and
// ends; with
// --print FILE.pdf [SCRIPT] it writes the page that is printed then.
#include "desktops/headless/key_script.h"
#include "desktops/qt/control_interface.h"
#include "desktops/qt/desktop_style.h"
#include "desktops/qt/dialog_view.h"
#include "desktops/qt/form_view.h"
#include "desktops/qt/help_manual.h"
#include "desktops/qt/main_window.h"
#include "desktops/qt/printing_output.h"
#include "desktops/qt/qt_platform.h"
#include "help/help_file.h"
#include "platform/file_store.h"
#include "platform/form_input.h"
#include "platform/installed_file.h"
#include "shell/about_dialog.h"
#include "shell/calculator.h"

#include "apps/tallyforge/example_trial.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <csignal>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <sstream>
#include <utility>

namespace {

using namespace tallyforge;

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x23, 0x26, 0x2B));
    palette.setColor(QPalette::WindowText, QColor(0xEC, 0xEE, 0xF1));
    palette.setColor(QPalette::Base, QColor(0x15, 0x18, 0x1C));
    palette.setColor(QPalette::Text, QColor(0xEC, 0xEE, 0xF1));
    palette.setColor(QPalette::Button, QColor(0x39, 0x3E, 0x45));
    palette.setColor(QPalette::ButtonText, QColor(0xEC, 0xEE, 0xF1));
    palette.setColor(QPalette::ToolTipBase, QColor(0x15, 0x18, 0x1C));
    palette.setColor(QPalette::ToolTipText, QColor(0xEC, 0xEE, 0xF1));
    palette.setColor(QPalette::Light, QColor(0x39, 0x3E, 0x45));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7D, 0x84, 0x8E));
    }
    return palette;
}

/// Opens the script that is named; none is an empty one.
bool openScript(const QString& name, std::ifstream& file) {
    if (name.isEmpty()) {
        return true;
    }
    file.open(name.toStdString());
    if (!file || std::filesystem::is_directory(name.toStdString())) {
        std::cerr << "tallyforge: cannot read " << name.toStdString() << '\n';
        return false;
    }
    return true;
}

/// Runs the script without a desktop and draws the form that it leaves.
int render(const QString& picture, const QString& script, double scale) {
    const QTemporaryDir folder;
    HeadlessOptions options;
    options.data = folder.path().toStdString();
    options.home = QApplication::applicationDirPath().toStdString();
    std::ostringstream complaints;
    KeyScript keys(
        options, [](std::string_view) {}, [&](std::string_view line) { complaints << line << '\n'; });
    std::ifstream file;
    if (!openScript(script, file)) {
        return 2;
    }
    std::istringstream nothing;
    bool drawn = false;
    keys.leftOpen = [&](Form& dialog) {
        qt::DialogView view(dialog, '.', qt::FormView::kUsualScale * scale, nullptr);
        view.sync();
        view.show();
        QApplication::processEvents();
        drawn = view.grab().save(picture);
    };
    std::istream& input = script.isEmpty() ? static_cast<std::istream&>(nothing) : file;
    if (keys.run(input) == ScriptEnd::WrongScript) {
        std::cerr << complaints.str();
        return 2;
    }
    if (drawn) {
        return 0;
    }
    qt::MainWindow window(keys.calculator().engine().form, '.');
    window.fitsScreen = false;
    window.present();
    const QSize usual = window.size();
    window.resize(usual * scale);
    window.show();
    QApplication::processEvents();
    if (!window.grab().save(picture)) {
        std::cerr << "tallyforge: cannot write " << picture.toStdString() << '\n';
        return 1;
    }
    return 0;
}

/// Runs the script without a desktop, and writes what its calculator would print then as PDF, or
/// what the dialog prints that the script has left open.
int printTo(const QString& pdf, const QString& script) {
    const QTemporaryDir folder;
    bool atEnd = false;
    qt::PrintEnd end = qt::PrintEnd::Failed;
    HeadlessOptions options;
    options.data = folder.path().toStdString();
    options.home = QApplication::applicationDirPath().toStdString();
    options.shortDate = [](const LocalTime& day) { return qt::QtPlatform().shortDate(day); };
    options.print = [&](const PrintJob& job) {
        if (atEnd) {
            end = qt::writePdf(pdf, job, qt::usualPage());
        }
    };
    KeyScript keys(
        options, [](std::string_view) {}, [](std::string_view line) { std::cerr << line << '\n'; });
    keys.leftOpen = [&](Form& dialog) {
        atEnd = true;
        pressKey(dialog, {.keyCode = 'P', .shift = kCtrl, .character = 'P' - '@'});
    };
    std::ifstream file;
    std::istringstream nothing;
    if (!openScript(script, file)) {
        return 2;
    }
    if (keys.run(script.isEmpty() ? static_cast<std::istream&>(nothing) : file) == ScriptEnd::WrongScript) {
        return 2;
    }
    if (!std::exchange(atEnd, true)) {
        MainForm& form = keys.calculator().engine().form;
        click(form, form.mnuPrint);
    }
    if (end != qt::PrintEnd::Done) {
        std::cerr << "tallyforge: cannot write " << pdf.toStdString() << '\n';
        return 1;
    }
    return 0;
}

/// Runs `act` once, when the window is on the screen: what opens then stands over it and not where
/// it would have been.
class OnScreen : public QObject {
public:
    OnScreen(QWindow& window, std::function<void()> act) : QObject(&window), act_(std::move(act)) {
        window.installEventFilter(this);
        standsOn(window);
    }
    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            standsOn(*static_cast<QWindow*>(window));
        }
        return false;
    }

private:
    void standsOn(QWindow& window) {
        if (window.isExposed()) {
            window.removeEventFilter(this);
            QTimer::singleShot(0, &window, std::exchange(act_, {}));
        }
    }

    std::function<void()> act_;
};

/// Shows the calculator, and opens the file that it was started with.
int showWindow(const QString& file) {
    qt::QtPlatform platform;
    Calculator calculator(platform);
    MainForm& form = calculator.engine().form;
    qt::MainWindow window(form, platform.decimalCharacter());
    window.remembersSize = true;
    platform.setWindow(&window);
    platform.showChanges = [&window] { window.view().sync(); };
    // The tip of the day stands over the window, not before it.
    const auto show = [&window] {
        window.present();
        window.show();
    };
    platform.beforeDialog = show;
    calculator.load();
    platform.beforeDialog = nullptr;
    if (!form.open) {
        return 1;
    }
    if ((QGuiApplication::queryKeyboardModifiers() & Qt::ShiftModifier) != 0) {
        // The way round a default program that does not end.
        calculator.engine().s.files.AutoLoadProgram = false;
    }
    platform.help.tryIt = [&](const HelpExample& example) { tryExample(platform, calculator, window, example); };
    show();
    QTimer::singleShot(0, &window, [&] {
        calculator.activate();
        window.view().sync();
    });
    if (!file.isEmpty()) {
        new OnScreen(*window.windowHandle(), [&] {
            calculator.openFile(file.toStdString());
            window.view().sync();
        });
    }
    return QApplication::exec();
}

/// Writes all pages of the help as PDF.
int printManual(const QString& pdf) {
    const qt::QtPlatform platform;
    const std::filesystem::path file = installedFile(platform, "", kHelpFile);
    try {
        const auto pages = readHelpFile(readWhole(file));
        if (!pages) {
            std::cerr << "tallyforge: " << file.string() << " is damaged\n";
            return 1;
        }
        writeWhole(pdf.toStdString(), qt::manualPdf(*pages));
    } catch (const FileError&) {
        std::cerr << "tallyforge: cannot read " << file.string() << " or write " << pdf.toStdString() << '\n';
        return 1;
    }
    return 0;
}

constexpr double kLeastScale = 0.25;
constexpr double kMostScale = 8.0;

constexpr const char* kUsage =
    "usage: tallyforge [FILE.rec|FILE.tape] [--dark]\n"
    "       tallyforge --render FILE.png [SCRIPT] [--scale N] [--dark]\n"
    "       tallyforge --print FILE.pdf [SCRIPT]\n"
    "       tallyforge --manual FILE.pdf\n"
    "       tallyforge --help\n"
    "       tallyforge --version\n";

/// What needs no desktop.
bool answers(std::string_view word) {
    if (word == "--help") {
        std::cout << kUsage;
    } else if (word == "--version") {
        std::cout << "tallyforge " << version() << '\n';
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    // A limit on the size of files is a failure of the write, told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    if (argc == 2 && answers(argv[1])) {
        return 0;
    }
    QApplication application(argc, argv);
    qt::installStyle();
    QApplication::setApplicationName("Tallyforge");
    QApplication::setDesktopFileName("tallyforge");
    qt::installAccessibility();
    QStringList words = QApplication::arguments().mid(1);
    if (words.removeAll("--dark") > 0) {
        QApplication::setPalette(darkPalette());
    }
    double scale = 1.0;
    const bool renders = words.size() >= 2 && words.contains("--render");
    if (const qsizetype at = words.indexOf("--scale"); renders && at >= 0 && at + 1 < words.size()) {
        scale = words.at(at + 1).toDouble();
        words.remove(at, 2);
    }
    const bool canBeDrawn = scale >= kLeastScale && scale <= kMostScale;
    if (renders && canBeDrawn && words.size() >= 2 && words.size() <= 3 && words.front() == "--render") {
        return render(words.at(1), words.value(2), scale);
    }
    if (words.size() >= 2 && words.size() <= 3 && words.front() == "--print") {
        return printTo(words.at(1), words.value(2));
    }
    if (words.size() == 2 && words.front() == "--manual") {
        return printManual(words.at(1));
    }
    if (words.size() > 1 || words.value(0).startsWith('-')) {
        std::cerr << kUsage;
        return 2;
    }
    return showWindow(words.value(0));
}
