// SPDX-License-Identifier: GPL-3.0-or-later
//
// tallyforge-keys: runs a key script on a calculator without a desktop.
#include "convert/convert_lines.h"
#include "convert/unit_document.h"
#include "desktops/headless/key_script.h"
#include "electrical/lookup_tables.h"
#include "keypads/keypad_table.h"
#include "platform/file_store.h"
#include "program/program_check.h"
#include "shell/about_dialog.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
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

constexpr int kFindings = 1;
constexpr int kWrongCall = 2;
constexpr int kTimeIsUp = 3;
constexpr const char* kUsage =
    "usage: tallyforge-keys [--data DIR] [--home DIR] [--decimal point|comma] [--now \"YYYY-MM-DD HH:MM:SS\"]\n"
    "                       [--seed N] [--dpi N] [--tips] [--timeout S] [--unfinished] [--table [NAME]] [SCRIPT]\n"
    "       tallyforge-keys --convert [--exact] [--decimal point|comma] [FILE]\n"
    "       tallyforge-keys --units\n"
    "       tallyforge-keys --check PROGRAM\n"
    "       tallyforge-keys --help\n"
    "       tallyforge-keys --version\n";

struct Call {
    HeadlessOptions options;
    std::optional<double> timeout;
    std::string script;
    std::string program;  ///< to be checked
    bool unfinished = false;
    bool converts = false;
    bool exact = false;
    bool units = false;
    /// The table to print; an empty name lists them all.
    std::optional<std::string> table;
};

/// A private folder that goes with the program. It lies in memory where there is such a place: its
/// files are written through to the disk, and nobody needs them there.
class PrivateFolder {
public:
    PrivateFolder() {
        std::error_code ignored;
        const char* const chosen = std::getenv("TMPDIR");
        if ((chosen != nullptr && *chosen != '\0') || !makeIn("/dev/shm")) {
            makeIn(std::filesystem::temp_directory_path(ignored));
        }
    }
    ~PrivateFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
        ::close(inUse_);
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    std::filesystem::path path;

private:
    bool makeIn(const std::filesystem::path& folder) {
        std::string pattern = (folder / (std::string(kPrefix) + "XXXXXX")).string();
        sweep(folder);
        if (const char* const made = folder.empty() ? nullptr : mkdtemp(pattern.data()); made != nullptr) {
            path = made;
            inUse_ = ::open((path / kInUse).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
            static_cast<void>(::flock(inUse_, LOCK_EX));
        }
        return !path.empty();
    }
    /// Removes the folders of runs that were killed: nobody holds their mark any more.
    static void sweep(const std::filesystem::path& folder) {
        std::error_code error;
        for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            if (!entry->path().filename().string().starts_with(kPrefix)) {
                continue;
            }
            const int mark = ::open((entry->path() / kInUse).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
            std::error_code ignored;
            if (mark >= 0 && ::flock(mark, LOCK_EX | LOCK_NB) == 0) {
                std::filesystem::remove_all(entry->path(), ignored);
            }
            ::close(mark);
        }
    }

    static constexpr const char* kPrefix = "tallyforge-run-";
    static constexpr const char* kInUse = ".in-use";
    int inUse_ = -1;
};

/// The whole of `text` as a number, or nothing.
template <typename Number>
std::optional<Number> readNumber(const std::string& text) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end ? std::optional{value} : std::nullopt;
}

std::optional<LocalTime> readTime(const std::string& text) {
    LocalTime time;
    char behind = 0;
    const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &time.year, &time.month, &time.day,
                                   &time.hour, &time.minute, &time.second, &behind);
    const std::chrono::year_month_day date{std::chrono::year{time.year},
                                           std::chrono::month{static_cast<unsigned>(time.month)},
                                           std::chrono::day{static_cast<unsigned>(time.day)}};
    const bool valid = fields == 6 && date.ok() && time.hour >= 0 && time.hour <= 23 && time.minute >= 0 &&
                       time.minute <= 59 && time.second >= 0 && time.second <= 59;
    return valid ? std::optional{time} : std::nullopt;
}

std::optional<int> readDotsPerInch(const std::string& text) {
    constexpr int kFewest = 24;
    constexpr int kMost = 1440;
    const auto dots = readNumber<int>(text);
    return dots && *dots >= kFewest && *dots <= kMost ? dots : std::nullopt;
}

std::optional<double> readTimeout(const std::string& text) {
    constexpr double kMost = 1e6;
    const auto seconds = readNumber<double>(text);
    return seconds && *seconds > 0.0 && *seconds <= kMost ? seconds : std::nullopt;
}

/// Takes one option with its value; returns false where it makes no sense.
bool takeOption(Call& call, const std::string& name, const std::string& value) {
    if (name == "--data" && !value.empty()) {
        call.options.data = value;
    } else if (name == "--home" && !value.empty()) {
        call.options.home = value;
    } else if (name == "--decimal" && (value == "point" || value == "comma")) {
        call.options.decimal = value == "point" ? '.' : ',';
    } else if (name == "--now") {
        call.options.now = readTime(value);
        return call.options.now.has_value();
    } else if (name == "--seed") {
        call.options.seed = readNumber<std::uint64_t>(value);
        return call.options.seed.has_value();
    } else if (name == "--dpi") {
        const auto dots = readDotsPerInch(value);
        call.options.dotsPerInch = dots.value_or(call.options.dotsPerInch);
        return dots.has_value();
    } else if (name == "--check" && !value.empty()) {
        call.program = value;
    } else if (name == "--timeout") {
        call.timeout = readTimeout(value);
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
        } else if (words[i] == "--convert") {
            call.converts = true;
        } else if (words[i] == "--exact") {
            call.exact = true;
        } else if (words[i] == "--units") {
            call.units = true;
        } else if (words[i] == "--table") {
            const bool named = i + 1 < words.size() && !words[i + 1].starts_with("--");
            call.table = named ? words[++i] : std::string();
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
            if (!row.built() && row.types.plain == '\0') {
                std::string caption = toUnicode(row.caption.text, row.caption.face);
                for (char& character : caption) {
                    character = character == '\n' ? ' ' : character;
                }
                std::printf("%d %d %s\n", static_cast<int>(table->id), row.key, caption.c_str());
            }
        }
    }
}

/// Lists what is wrong with a program, a line each: "FILE:LINE: what". Returns the exit status.
int checkFile(const std::string& name) {
    std::string text;
    try {
        text = readWhole(name);
    } catch (const FileError&) {
        std::fprintf(stderr, "tallyforge-keys: cannot read %s\n", name.c_str());
        return kWrongCall;
    }
    const auto findings = checkProgram(text);
    for (const ProgramFinding& finding : findings) {
        std::printf("%s:%d: %s\n", name.c_str(), finding.line, toUnicode(finding.text, Face::Arial).c_str());
    }
    return findings.empty() ? 0 : kFindings;
}

/// The script may print while the watch flushes, so lines go through stdio, which locks.
void putLine(std::string_view line, std::FILE* stream) {
    std::fwrite(line.data(), 1, line.size(), stream);
    std::fputc('\n', stream);
}

void printLine(std::string_view line) {
    putLine(line, stdout);
}

void complain(std::string_view line) {
    putLine(line, stderr);
}

int printTable(const std::string& name) {
    const auto text = name.empty() ? listOfTables() : printedTable(name);
    if (!text) {
        complain("tallyforge-keys: no table " + name + ", --table lists them");
        return kWrongCall;
    }
    std::fwrite(text->data(), 1, text->size(), stdout);
    return 0;
}

/// Ends the program when its time is up, whatever it does by then.
void watch(double seconds, const std::filesystem::path& toRemove) {
    std::thread([seconds, toRemove] {
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
        complain("time is up");
        std::fflush(stdout);
        std::error_code ignored;
        std::filesystem::remove_all(toRemove, ignored);
        std::_Exit(kTimeIsUp);
    }).detach();
}

/// The script or the lines to convert: a file, or standard input.
bool openInput(const std::string& name, std::ifstream& file) {
    if (!name.empty()) {
        file.open(name);
        if (!file || std::filesystem::is_directory(name)) {
            complain("tallyforge-keys: cannot read " + name);
            return false;
        }
    }
    return true;
}

/// Latin letters beyond ASCII are rare in units, and conversion of texts is not free.
bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char each) { return static_cast<unsigned char>(each) < 0x80; });
}

int convertLines(const Call& call) {
    std::ifstream file;
    if (!openInput(call.script, file)) {
        return kWrongCall;
    }
    LineConverter converter(call.exact ? Sizes::Exact : Sizes::Table, call.options.decimal);
    std::istream& lines = call.script.empty() ? std::cin : file;
    std::string line;
    bool allConverted = true;
    while (std::getline(lines, line)) {
        const auto answer = isAscii(line) ? converter.convert(line) : converter.convert(fromUnicode(line));
        if (!answer.warning.empty()) {
            complain(line + ": " + toUnicode(answer.warning, Face::Arial));
        }
        printLine(isAscii(answer.text) ? answer.text : toUnicode(answer.text, Face::Arial));
        allConverted = allConverted && answer.converted;
    }
    return allConverted ? 0 : 1;
}

int runScript(Call& call) {
    std::ifstream file;
    if (!openInput(call.script, file)) {
        return kWrongCall;
    }
    std::optional<PrivateFolder> own;
    if (call.options.data.empty()) {
        own.emplace();
        if (own->path.empty()) {
            complain("tallyforge-keys: cannot make a private folder");
            return kWrongCall;
        }
        call.options.data = own->path;
    }
    if (call.options.home.empty()) {
        call.options.home = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    }
    if (call.timeout) {
        watch(*call.timeout, own ? own->path : std::filesystem::path());
    }
    KeyScript script(call.options, printLine, complain);
    std::istream& lines = call.script.empty() ? std::cin : file;
    const ScriptEnd end = script.run(lines);
    if (lines.bad()) {
        complain("tallyforge-keys: the script cannot be read to its end");
        return kWrongCall;
    }
    return static_cast<int>(end);
}

/// What is asked of the program and not of the calculator.
bool answers(std::string_view word) {
    if (word == "--help") {
        std::fputs(kUsage, stdout);
    } else if (word == "--version") {
        printLine("tallyforge-keys " + std::string(version()));
    } else {
        return false;
    }
    return true;
}

/// Does what is asked for; the exit status.
int perform(const std::vector<std::string>& words) {
    if (words.size() == 1 && answers(words.front())) {
        return 0;
    }
    auto call = readCall(words);
    if (!call) {
        std::fputs(kUsage, stderr);
        return kWrongCall;
    }
    if (call->unfinished) {
        listUnfinished();
        return 0;
    }
    if (call->units) {
        std::fputs(unitDocument().c_str(), stdout);
        return 0;
    }
    if (call->converts) {
        return convertLines(*call);
    }
    if (!call->program.empty()) {
        return checkFile(call->program);
    }
    return call->table ? printTable(*call->table) : runScript(*call);
}

}  // namespace

int main(int argc, char** argv) {
    // A limit on the size of files is a failure of the write, told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    std::ios::sync_with_stdio(false);
    const int status = perform({argv + 1, argv + argc});
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain("tallyforge-keys: what is to be shown cannot be written");
        return kWrongCall;
    }
    return status;
}
