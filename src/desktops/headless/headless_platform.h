// SPDX-License-Identifier: GPL-3.0-or-later
//
// A desktop without a screen: boxes are printed and answered from a queue, the clock may stand
// still, the clipboard is a text. It is what key scripts run on.
#pragma once

#include "platform/platform.h"

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <string>

namespace tallyforge {

struct HeadlessOptions {
    std::filesystem::path data{};
    std::filesystem::path home{};
    char decimal = '.';
    std::optional<LocalTime> now{};
    std::optional<std::uint64_t> seed{};
    int dotsPerInch = 96;
    bool tips = false;
    /// Takes what is printed; without it each line is shown.
    std::function<void(const PrintJob&)> print{};
    /// The short form of a date; without it the usual one of the decimal character.
    std::function<std::string(const LocalTime&)> shortDate{};
};

/// The text as `face` shows it, in straight quotes, with line breaks, quotes and backslashes escaped; UTF-8.
[[nodiscard]] std::string inQuotes(std::string_view eightBitText, Face face = Face::Arial);

class HeadlessPlatform final : public Platform {
public:
    using Print = std::function<void(std::string_view line)>;
    HeadlessPlatform(HeadlessOptions options, Print printLine);

    /// Queues the answer for the next question that has this button.
    void queueAnswer(Answer answer) { answers_.push_back(answer); }
    /// Queues the text for the next input box.
    void queueText(std::string text) { texts_.push_back(std::move(text)); }
    /// Takes over what is queued, the clipboard and the random numbers of a former platform.
    void inherit(const HeadlessPlatform& former) {
        answers_ = former.answers_;
        texts_ = former.texts_;
        clipboard_ = former.clipboard_;
        generator_ = former.generator_;
    }
    /// Runs while a dialog is open; must close it.
    std::function<void(Form&)> driveDialog;

    Answer messageBox(const MessageBox& box) override;
    std::string inputBox(const InputBox& box) override;
    void showDialog(Form& dialog) override;
    [[nodiscard]] DesktopMetrics metrics() const override;
    [[nodiscard]] char decimalCharacter() const override { return options_.decimal; }
    [[nodiscard]] std::filesystem::path dataFolder() const override;
    [[nodiscard]] std::filesystem::path installedFolder() const override { return options_.home; }
    [[nodiscard]] bool readOption(std::string_view key, bool preset) const override;
    [[nodiscard]] bool hasOption(std::string_view key) const override;
    void writeOption(std::string_view key, bool value) override;
    [[nodiscard]] std::string clipboardText() const override { return clipboard_; }
    void setClipboardText(std::string_view text) override { clipboard_ = text; }
    void print(const PrintJob& job) override;
    [[nodiscard]] std::string shortDate(const LocalTime& day) const override;
    void playSound(std::span<const std::uint8_t> wave) override;
    void openUrl(std::string_view url) override;
    void openFolder(const std::filesystem::path& folder) override;
    void helpTopic(int topic) override;
    [[nodiscard]] LocalTime now() const override;
    [[nodiscard]] double random() override;
    void sleep(std::chrono::milliseconds time) override;

private:
    [[nodiscard]] std::filesystem::path optionFile() const;
    [[nodiscard]] std::string storedOptions() const;
    [[nodiscard]] std::optional<bool> storedOption(std::string_view key) const;

    HeadlessOptions options_;
    Print printLine_;
    std::deque<Answer> answers_;
    std::deque<std::string> texts_;
    std::string clipboard_;
    std::mt19937_64 generator_;
};

}  // namespace tallyforge
