// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the calculator needs of a desktop, and all that it needs. To put the calculator on another
// desktop, write one class that answers this, render the forms that it is handed, and pass every
// key and click to form_input.h. Texts are eight-bit (text.h); the platform maps them when it
// shows them. All calls come on the one thread that runs the calculator.
#pragma once

#include "platform/form.h"
#include "platform/print_job.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

enum class BoxKind { Stop, Notice, Info, Question, Plain };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

struct MessageBox {
    BoxKind kind = BoxKind::Plain;
    std::string title;
    std::string text;
    BoxButtons buttons = BoxButtons::Ok;
};

struct InputBox {
    std::string title;
    std::string prompt;
    std::string preset;
    /// A file's name is asked for: the answer is UTF-8, as names are on disk, and not eight-bit.
    bool fileName = false;
    /// Answers to choose from, beside typing one; UTF-8.
    std::vector<std::string> offers{};
    /// A file with this extension (".csv") is to be written, and the answer may lead to any folder:
    /// a desktop that has a file chooser shows that one. Empty for all other questions.
    std::string writes{};
};

/// Sizes of the desktop. Heights in pixels, screen in twips.
struct DesktopMetrics {
    int dotsPerInch = 96;
    int captionHeight = 19;
    int menuHeight = 20;
    int screenWidth = 28800;
    int screenHeight = 16200;
};

/// Local time of day and date, whole seconds.
struct LocalTime {
    int year = 2000;
    int month = 1;   ///< 1 to 12
    int day = 1;     ///< 1 to 31
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59, 60 in a leap second
};

/// How the user wants a running program ended: at once, or after a question.
enum class Interruption { None, Break, Close };

/// Characters of a clipboard that are looked at.
inline constexpr std::size_t kLongestClipping = 65536;

class Platform {
public:
    virtual ~Platform() = default;

    // Boxes and dialogs return when the user has answered.
    virtual Answer messageBox(const MessageBox& box) = 0;
    /// The text entered, eight-bit but for a file's name; empty where the user cancelled.
    virtual std::string inputBox(const InputBox& box) = 0;
    /// Shows `dialog` over the main form until its `open` is false.
    virtual void showDialog(Form& dialog) = 0;

    [[nodiscard]] virtual DesktopMetrics metrics() const = 0;
    /// The locale's decimal character, '.' or ','.
    [[nodiscard]] virtual char decimalCharacter() const = 0;

    /// The user's folder for this application's data; it need not be there yet. Raises nothing.
    [[nodiscard]] virtual std::filesystem::path dataFolder() const = 0;
    /// The folder that holds what was installed with the program (programs, tips, help).
    [[nodiscard]] virtual std::filesystem::path installedFolder() const = 0;

    /// One boolean of the desktop's settings store, "Options" section.
    [[nodiscard]] virtual bool readOption(std::string_view key, bool preset) const = 0;
    /// Whether the option was ever written.
    [[nodiscard]] virtual bool hasOption(std::string_view key) const = 0;
    virtual void writeOption(std::string_view key, bool value) = 0;

    /// Eight-bit; empty where there is no text. No number is longer than `kLongestClipping`: a desktop
    /// need not hand over more than that of a text, with "..." behind what it has cut.
    [[nodiscard]] virtual std::string clipboardText() const = 0;
    virtual void setClipboardText(std::string_view text) = 0;

    /// Prints, after whatever the desktop asks for.
    virtual void print(const PrintJob& job) = 0;
    /// The date as the user's locale writes it short; eight-bit.
    [[nodiscard]] virtual std::string shortDate(const LocalTime& day) const = 0;
    virtual void playSound(std::span<const std::uint8_t> wave) = 0;
    virtual void openUrl(std::string_view url) = 0;
    virtual void openFolder(const std::filesystem::path& folder) = 0;
    virtual void helpTopic(int topic) = 0;
    /// F1 in the dialog of that form, which has this topic, or 0: the page about the dialog, where the
    /// desktop knows one.
    virtual void helpDialog(std::string_view /*form*/, int topic) {
        if (topic != 0) {
            helpTopic(topic);
        }
    }
    /// Lines about the desktop and its libraries, for a bug report; eight-bit.
    [[nodiscard]] virtual std::string systemInformation() const { return {}; }

    [[nodiscard]] virtual LocalTime now() const = 0;
    /// Uniform in [0, 1).
    [[nodiscard]] virtual double random() = 0;
    virtual void sleep(std::chrono::milliseconds time) = 0;
    /// A program runs and holds the form: lets the desktop see that the window is alive, and drops
    /// what is typed and clicked meanwhile. Returns what the user wants of the run.
    virtual Interruption breathe() { return Interruption::None; }

    /// Tells the user that a handler of a dialog failed; set by the calculator.
    std::function<void(const std::exception&)> handlerFailed;
};

}  // namespace tallyforge
