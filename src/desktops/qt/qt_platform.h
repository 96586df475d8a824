// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop as Qt knows it: boxes, clipboard, printer, folders, sound.
#pragma once

#include "desktops/qt/help_desk.h"
#include "desktops/qt/run_watch.h"
#include "platform/platform.h"

#include <functional>
#include <random>
#include <vector>

class QWidget;

namespace tallyforge::qt {

class DialogWindow;
class MainWindow;

class QtPlatform final : public Platform {
public:
    QtPlatform();

    /// Boxes and dialogs open over this window.
    void setWindow(MainWindow* window);
    /// Shows what has changed in the main form; called before a box opens and while a program runs,
    /// when no handler ends that would show it.
    std::function<void()> showChanges;
    /// Runs before a dialog opens: the window of a calculator that starts is not there yet.
    std::function<void()> beforeDialog;
    /// Shows the pages of help.
    HelpDesk help;

    /// While `standIn` is not nullptr it answers boxes and drives dialogs in the user's place, and takes
    /// what would go to the clipboard, the printer and other programs.
    void setStandIn(Platform* standIn) { standIn_ = standIn; }
    /// A dialog is open, or somebody stands in.
    [[nodiscard]] bool isBusy() const { return !dialogs_.empty() || standIn_ != nullptr; }

    Answer messageBox(const MessageBox& box) override;
    std::string inputBox(const InputBox& box) override;
    void showDialog(Form& dialog) override;
    [[nodiscard]] DesktopMetrics metrics() const override;
    [[nodiscard]] char decimalCharacter() const override;
    [[nodiscard]] std::filesystem::path dataFolder() const override;
    [[nodiscard]] std::filesystem::path installedFolder() const override;
    [[nodiscard]] bool readOption(std::string_view key, bool preset) const override;
    [[nodiscard]] bool hasOption(std::string_view key) const override;
    void writeOption(std::string_view key, bool value) override;
    [[nodiscard]] std::string clipboardText() const override;
    void setClipboardText(std::string_view text) override;
    void print(const PrintJob& job) override;
    [[nodiscard]] std::string shortDate(const LocalTime& day) const override;
    void playSound(std::span<const std::uint8_t> wave) override;
    void openUrl(std::string_view url) override;
    void openFolder(const std::filesystem::path& folder) override;
    void helpTopic(int topic) override;
    void helpDialog(std::string_view form, int topic) override;
    [[nodiscard]] std::string systemInformation() const override;
    [[nodiscard]] LocalTime now() const override;
    [[nodiscard]] double random() override;
    void sleep(std::chrono::milliseconds time) override;
    Interruption breathe() override;

private:
    void refresh() const;
    void runWindowOf(Form& dialog);
    void tell(std::string_view title, const std::string& text);
    [[nodiscard]] std::filesystem::path helpFile() const;

    QWidget* window_ = nullptr;  ///< the topmost of ours
    const MainWindow* mainWindow_ = nullptr;
    std::vector<DialogWindow*> dialogs_;  ///< open ones, the topmost last
    Platform* standIn_ = nullptr;
    RunWatch runWatch_;
    std::mt19937_64 generator_;
};

}  // namespace tallyforge::qt
