// SPDX-License-Identifier: GPL-3.0-or-later
//
// tallyforge-keys: runs a key script on a calculator without a desktop.
#include "keypads/keypad_table.h"
#include "platform/headless/key_script.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using namespace tallyforge;

constexpr int kWrongCall = 2;
constexpr int kTimeIsUp = 3;
constexpr const char* kUsage =
    "usage: tallyforge-keys [--data DIR] [--home DIR] [--decimal point|comma] [--now \"YYYY-MM-DD HH:MM:SS\"]\n"
    "                       [--seed N] [--dpi N] [--tips] [--timeout S] [--unfinished] [SCRIPT]\n";

struct Call {
    HeadlessOptions options;
    std::optional<double> timeout;
    std::string script;
    bool unfinished = false;
};

/// A private folder that goes with the program.
class PrivateFolder {
public:
    PrivateFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tallyforge-XXXXXX").string();
        if (const char* made = mkdtemp(pattern.data()); made != nullptr) {
            path = made;
        }
    }
    ~PrivateFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    std::filesystem::path path;
};

std::optional<LocalTime> readTime(const std::string& text) {
    LocalTime time;
    char end = 0;
    const int fields = std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d%c", &time.year, &time.month, &time.day, &time.hour,
                                   &time.minute, &time.second, &end);
    const bool valid = fields == 6 && time.month >= 1 && time.month <= 12 && time.day >= 1 && time.day <= 31 &&
                       time.hour >= 0 && time.hour <= 23 && time.minute >= 0 && time.minute <= 59 && time.second >= 0 &&
                       time.second <= 59;
    return valid ? std::optional{time} : std::nullopt;
}

std::optional<double> readPositive(const std::string& text) {
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return !text.empty() && *end == '\0' && value > 0.0 ? std::optional{value} : std::nullopt;
}

/// Takes one option with its value; returns false where it makes no sense.
bool takeOption(Call& call, const std::string& name, const std::string& value) {
    if (name == "--data") {
        call.options.data = value;
    } else if (name == "--home") {
        call.options.home = value;
    } else if (name == "--decimal" && (value == "point" || value == "comma")) {
        call.options.decimal = value == "point" ? '.' : ',';
    } else if (name == "--now") {
        call.options.now = readTime(value);
        return call.options.now.has_value();
    } else if (name == "--seed") {
        char* end = nullptr;
        call.options.seed = std::strtoull(value.c_str(), &end, 10);
        return !value.empty() && *end == '\0';
    } else if (name == "--dpi") {
        const auto dots = readPositive(value);
        call.options.dotsPerInch = static_cast<int>(dots.value_or(0));
        return call.options.dotsPerInch >= 24 && call.options.dotsPerInch <= 1440;
    } else if (name == "--timeout") {
        call.timeout = readPositive(value);
        return call.timeout.has_value();
    } else {
        return false;
    }
    return true;
}

std::optional<Call> readCall(const std::vector<std::string>& words) {
    Call call;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--tips") {
            call.options.tips = true;
        } else if (words[i] == "--unfinished") {
            call.unfinished = true;
        } else if (words[i].starts_with("--")) {
            if (i + 1 >= words.size() || !takeOption(call, words[i], words[i + 1])) {
                return std::nullopt;
            }
            ++i;
        } else if (call.script.empty()) {
            call.script = words[i];
        } else {
            return std::nullopt;
        }
    }
    return call;
}

/// Lists the keys behind which nothing is built yet.
void listUnfinished() {
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            if (row.does == nullptr) {
                std::string caption = toUnicode(row.caption.text, row.caption.face);
                for (char& character : caption) {
                    character = character == '\n' ? ' ' : character;
                }
                std::cout << static_cast<int>(table->id) << ' ' << row.key << ' ' << caption << '\n';
            }
        }
    }
}

/// Ends the program when its time is up, whatever it does by then.
void watch(double seconds) {
    std::thread([seconds] {
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
        std::cerr << "time is up\n" << std::flush;
        std::_Exit(kTimeIsUp);
    }).detach();
}

int runScript(Call& call) {
    std::optional<PrivateFolder> own;
    if (call.options.data.empty()) {
        own.emplace();
        call.options.data = own->path;
    }
    if (call.options.home.empty()) {
        call.options.home = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    }
    std::ifstream file;
    if (!call.script.empty()) {
        file.open(call.script);
        if (!file) {
            std::cerr << "tallyforge-keys: cannot read " << call.script << '\n';
            return kWrongCall;
        }
    }
    KeyScript script(
        call.options, [](std::string_view line) { std::cout << line << '\n'; },
        [](std::string_view line) { std::cerr << line << '\n'; });
    const ScriptEnd end = script.run(call.script.empty() ? std::cin : file);
    std::cout << std::flush;
    return static_cast<int>(end);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    auto call = readCall({argv + 1, argv + argc});
    if (!call) {
        std::cerr << kUsage;
        return kWrongCall;
    }
    if (call->unfinished) {
        listUnfinished();
        return 0;
    }
    if (call->timeout) {
        watch(*call->timeout);
    }
    return runScript(*call);
}
