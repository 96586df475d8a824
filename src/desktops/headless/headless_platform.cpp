// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/headless_platform.h"

#include "platform/dialog_run.h"
#include "platform/file_store.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <sstream>
#include <thread>
#include <utility>

namespace tallyforge {

namespace {

constexpr std::string_view kindName(BoxKind kind) {
    constexpr std::array<std::string_view, 5> kNames{"stop", "notice", "info", "question", "plain"};
    return kNames.at(static_cast<std::size_t>(kind));
}

constexpr std::string_view answerName(Answer answer) {
    constexpr std::array<std::string_view, 4> kNames{"ok", "cancel", "yes", "no"};
    return kNames.at(static_cast<std::size_t>(answer));
}

bool offers(BoxButtons buttons, Answer answer) {
    switch (buttons) {
        case BoxButtons::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        case BoxButtons::OkCancel:
            return answer == Answer::Ok || answer == Answer::Cancel;
        case BoxButtons::Ok:
            break;
    }
    return answer == Answer::Ok;
}

std::uint64_t seedFor(const HeadlessOptions& options) {
    return options.seed.value_or(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

}  // namespace

namespace {

std::string quotedText(std::string_view unicode) {
    std::string out = "\"";
    for (const char character : unicode) {
        if (character == '\n') {
            out += "\\n";
        } else if (character == '"' || character == '\\') {
            out += '\\';
            out += character;
        } else {
            out += character;
        }
    }
    return out + '"';
}

}  // namespace

std::string inQuotes(std::string_view eightBitText, Face face) {
    return quotedText(toUnicode(eightBitText, face));
}

HeadlessPlatform::HeadlessPlatform(HeadlessOptions options, Print printLine)
    : options_(std::move(options)), printLine_(std::move(printLine)), generator_(seedFor(options_)) {}

Answer HeadlessPlatform::messageBox(const MessageBox& box) {
    Answer answer = Answer::Ok;
    if (box.buttons != BoxButtons::Ok) {
        answer = box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Cancel;
        const auto queuedAnswer = std::find_if(answers_.begin(), answers_.end(),
                                               [&box](Answer queued) { return offers(box.buttons, queued); });
        if (queuedAnswer != answers_.end()) {
            answer = *queuedAnswer;
            answers_.erase(queuedAnswer);
        }
    }
    printLine_("box " + std::string(kindName(box.kind)) + " " + inQuotes(box.title) + " " + inQuotes(box.text) +
               " -> " + std::string(answerName(answer)));
    return answer;
}

std::string HeadlessPlatform::inputBox(const InputBox& box) {
    std::string text;
    if (!texts_.empty()) {
        text = std::move(texts_.front());
        texts_.pop_front();
    }
    printLine_("input " + inQuotes(box.title) + " " + inQuotes(box.prompt) + " " + inQuotes(box.preset) + " -> " +
               quotedText(text));
    return box.fileName ? text : fromUnicode(text);
}

void HeadlessPlatform::showDialog(Form& dialog) {
    bool shown = false;
    runDialog(*this, dialog, [&] {
        shown = true;
        printLine_("dialog " + dialog.name + " " + inQuotes(dialog.title));
        activateDialog(dialog);
        if (driveDialog && dialog.open) {
            driveDialog(dialog);
        }
    });
    if (shown) {
        printLine_("dialog " + dialog.name + " closed");
    }
}

DesktopMetrics HeadlessPlatform::metrics() const {
    DesktopMetrics metrics;
    metrics.dotsPerInch = options_.dotsPerInch;
    return metrics;
}

std::filesystem::path HeadlessPlatform::dataFolder() const {
    return options_.data;
}

std::filesystem::path HeadlessPlatform::optionFile() const {
    return options_.data / ".options.txt";
}

bool HeadlessPlatform::readOption(std::string_view key, bool preset) const {
    if (!options_.tips && key == "Show Tips at Startup") {
        return false;
    }
    return storedOption(key).value_or(preset);
}

bool HeadlessPlatform::hasOption(std::string_view key) const {
    return storedOption(key).has_value();
}

// What is no plain file, or larger than any options are, holds none.
std::string HeadlessPlatform::storedOptions() const {
    constexpr std::size_t kMost = 65536;
    try {
        return readWhole(optionFile(), kMost);
    } catch (const FileError&) {
        return {};
    }
}

std::optional<bool> HeadlessPlatform::storedOption(std::string_view key) const {
    std::istringstream options(storedOptions());
    for (std::string line; std::getline(options, line);) {
        if (line.starts_with(std::string(key) + "=")) {
            return line.ends_with("1");
        }
    }
    return std::nullopt;
}

void HeadlessPlatform::writeOption(std::string_view key, bool value) {
    const std::string start = std::string(key) + "=";
    std::string kept;
    std::istringstream before(storedOptions());
    for (std::string line; std::getline(before, line);) {
        kept += line.starts_with(start) ? "" : line + "\n";
    }
    try {
        writeWhole(optionFile(), kept + start + (value ? "1\n" : "0\n"));
    } catch (const FileError&) {
        // An option that cannot be kept lasts as long as the calculator, as on any desktop.
    }
}

void HeadlessPlatform::print(const PrintJob& job) {
    if (options_.print) {
        return options_.print(job);
    }
    forEachLine(job, [this](const PrintLine& line) { printLine_("page " + toUnicode(line.text, line.font.face)); });
}

std::string HeadlessPlatform::shortDate(const LocalTime& day) const {
    if (options_.shortDate) {
        return options_.shortDate(day);
    }
    char text[32];
    if (options_.decimal == ',') {
        std::snprintf(text, sizeof text, "%02d.%02d.%04d", day.day, day.month, day.year);
    } else {
        std::snprintf(text, sizeof text, "%d/%d/%04d", day.month, day.day, day.year);
    }
    return text;
}

void HeadlessPlatform::playSound(std::span<const std::uint8_t> /*wave*/) {
    printLine_("sound");
}

void HeadlessPlatform::openUrl(std::string_view url) {
    printLine_("url " + std::string(url));
}

void HeadlessPlatform::openFolder(const std::filesystem::path& folder) {
    printLine_("folder " + folder.string());
}

void HeadlessPlatform::helpTopic(int topic) {
    printLine_("help " + std::to_string(topic));
}

LocalTime HeadlessPlatform::now() const {
    if (options_.now) {
        return *options_.now;
    }
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min,
            .second = local.tm_sec};
}

double HeadlessPlatform::random() {
    return std::uniform_real_distribution<double>(0.0, 1.0)(generator_);
}

void HeadlessPlatform::sleep(std::chrono::milliseconds time) {
    // A clock that stands has nothing to wait for.
    if (!options_.now) {
        std::this_thread::sleep_for(time);
    }
}

}  // namespace tallyforge
