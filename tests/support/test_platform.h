// SPDX-License-Identifier: GPL-3.0-or-later
//
// A platform for tests: it records every box, sound and help call, answers from queues, keeps a
// data folder of its own that it removes at the end, and has a clock that stands.
#pragma once

#include "platform/dialog_run.h"
#include "platform/platform.h"

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tallyforge {

class TestPlatform : public Platform {
public:
    TestPlatform() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tallyforge-test-XXXXXX").string();
        folder = mkdtemp(pattern.data());
    }
    ~TestPlatform() override {
        std::error_code ignored;
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder, ignored);
    }
    TestPlatform(const TestPlatform&) = delete;
    TestPlatform& operator=(const TestPlatform&) = delete;

    // What happened.
    std::vector<MessageBox> boxes;
    std::vector<InputBox> inputs;
    std::vector<int> helpTopics;
    std::vector<std::string> urls;
    std::vector<std::filesystem::path> folders;
    std::vector<std::string> dialogs;
    std::vector<PrintLine> printed;
    std::vector<Drawing> printedPictures;
    int sounds = 0;

    // What the user answers: questions take the first answer or No, input boxes the first text or
    // nothing.
    std::deque<Answer> answers;
    std::deque<std::string> texts;
    std::function<void(Form&)> inDialog;

    // What the desktop is like.
    /// The tips' option is as it was stored; else tips are off, so that a start shows nothing.
    bool tips = false;
    std::filesystem::path folder;
    DesktopMetrics desktop;
    char decimal = '.';
    std::map<std::string, bool, std::less<>> options;
    std::string clipboard;
    LocalTime time{.year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 30};
    std::deque<double> randoms;

    Answer messageBox(const MessageBox& box) override {
        boxes.push_back(box);
        if (box.buttons == BoxButtons::Ok) {
            return Answer::Ok;
        }
        if (answers.empty()) {
            return box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Cancel;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string inputBox(const InputBox& box) override {
        inputs.push_back(box);
        if (texts.empty()) {
            return {};
        }
        std::string text = texts.front();
        texts.pop_front();
        return text;
    }
    void showDialog(Form& dialog) override {
        runDialog(*this, dialog, [&] {
            dialogs.push_back(dialog.name);
            activateDialog(dialog);
            if (inDialog && dialog.open) {
                inDialog(dialog);
            }
        });
    }
    DesktopMetrics metrics() const override { return desktop; }
    char decimalCharacter() const override { return decimal; }
    std::filesystem::path dataFolder() const override { return folder; }
    std::filesystem::path installedFolder() const override { return folder; }
    bool readOption(std::string_view key, bool preset) const override {
        if (!tips && key == "Show Tips at Startup") {
            return false;
        }
        const auto found = options.find(key);
        return found == options.end() ? preset : found->second;
    }
    bool hasOption(std::string_view key) const override { return options.contains(key); }
    void writeOption(std::string_view key, bool value) override { options[std::string(key)] = value; }
    std::string clipboardText() const override { return clipboard; }
    void setClipboardText(std::string_view text) override { clipboard = text; }
    void print(const PrintJob& job) override {
        printed.clear();
        forEachLine(job, [this](const PrintLine& line) { printed.push_back(line); });
        printedPictures = job.pictures;
    }
    std::string shortDate(const LocalTime& day) const override {
        return std::to_string(day.month) + "/" + std::to_string(day.day) + "/" + std::to_string(day.year);
    }
    void playSound(std::span<const std::uint8_t> /*wave*/) override { ++sounds; }
    void openUrl(std::string_view url) override { urls.emplace_back(url); }
    void openFolder(const std::filesystem::path& path) override { folders.push_back(path); }
    void helpTopic(int topic) override { helpTopics.push_back(topic); }
    LocalTime now() const override { return time; }
    double random() override {
        if (randoms.empty()) {
            return 0.5;
        }
        const double next = randoms.front();
        randoms.pop_front();
        return next;
    }
    void sleep(std::chrono::milliseconds /*time*/) override {}
};

}  // namespace tallyforge
