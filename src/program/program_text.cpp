// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_text.h"

#include "numbers/failure.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace tallyforge {

namespace {

constexpr char kPoint = '.';  ///< the decimal character of programs, in every locale

unsigned char byteOf(char character) {
    return static_cast<unsigned char>(character);
}

/// Length of the UTF-8 character at `at`, 0 where there is none.
std::size_t utf8Length(std::string_view text, std::size_t at) {
    const unsigned char lead = byteOf(text[at]);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (at + length > text.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteOf(text[at + i]) & 0xC0) != 0x80) {
            return 0;
        }
    }
    return length;
}

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8Length(text, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

bool continues(std::string_view line) {
    return line.ends_with("#_");
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Length of the number that `text` begins with: sign, digits, point, digits, exponent.
std::size_t numericPrefix(std::string_view text) {
    std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t digits = 0;
    const auto run = [&] {
        for (; at < text.size() && isDigit(text[at]); ++at) {
            ++digits;
        }
    };
    run();
    if (at < text.size() && text[at] == kPoint) {
        ++at;
        run();
    }
    if (digits == 0) {
        return 0;
    }
    if (at < text.size() && text[at] == 'e') {
        std::size_t end = at + 1;
        end += end < text.size() && (text[end] == '+' || text[end] == '-') ? 1 : 0;
        const std::size_t first = end;
        while (end < text.size() && isDigit(text[end])) {
            ++end;
        }
        at = end > first ? end : at;
    }
    return at;
}

constexpr int code(FailureNumber number) {
    return static_cast<int>(number);
}

/// The number that `text` is as a whole, by its fifteen-digit text, or the failure of reading it.
void readWhole(ProgramWord& word, std::string_view text) {
    try {
        word.number = fifteenDigits(readNumber(text, kPoint));
    } catch (const Failure& failure) {
        word.failure = failure.code();
    }
}

/// Returns whether the word is a number, or should have been one.
bool takeNumber(ProgramWord& word) {
    const std::size_t length = word.text == "1/x" ? 0 : numericPrefix(word.text);
    if (length == 0) {
        return false;
    }
    const bool wholeWord = length == word.text.size();
    ProgramWord prefix;
    readWhole(prefix, std::string_view{word.text}.substr(0, length));
    if (!wholeWord && prefix.failure == 0 && prefix.number == 0.0) {
        return false;
    }
    word.number = prefix.number;
    word.failure = prefix.failure != 0 || wholeWord ? prefix.failure : code(FailureNumber::TypeMismatch);
    word.kind = word.failure == 0 ? ProgramWord::Kind::Number : ProgramWord::Kind::NoNumber;
    return true;
}

/// Operand of a statement that is followed by a number, from character `from` on.
void takeOperand(ProgramWord& word, std::size_t from) {
    const std::string_view text = withoutBlanks(std::string_view{word.text}.substr(std::min(from, word.text.size())));
    if (!text.empty()) {
        readWhole(word, text);
    }
}

ProgramWord wordOf(std::string_view text, const Variables& variables) {
    ProgramWord word;
    word.text = text;
    word.statement = statementOf(text);
    switch (word.statement) {
        case Statement::None:
            break;
        case Statement::Sto:
        case Statement::Rcl:
        case Statement::SetFlag:
        case Statement::ClearFlag:
        case Statement::TestFlag:
            takeOperand(word, 3);
            word.kind = ProgramWord::Kind::Statement;
            return word;
        case Statement::Pause:
            takeOperand(word, 6);
            word.kind = ProgramWord::Kind::Statement;
            return word;
        case Statement::Format:
        case Statement::Kill:
        case Statement::Aset:
            word.function = findFunction(text.substr(0, 4));
            word.kind = ProgramWord::Kind::Statement;
            return word;
        default:
            word.kind = ProgramWord::Kind::Statement;
            return word;
    }
    if (takeNumber(word)) {
        return word;
    }
    word.function = findFunction(text);
    word.index = variables.find(word.text);
    word.kind = word.function != nullptr ? ProgramWord::Kind::Function
                : word.index >= 0        ? ProgramWord::Kind::Variable
                                         : ProgramWord::Kind::Unknown;
    return word;
}

/// The token at `at` as a word, joined with the next one where it is "rcl" or "sto"; `at` moves on.
ProgramWord joinedWord(const std::vector<std::string_view>& tokens, std::size_t& at, const Variables& variables) {
    std::string text{tokens[at]};
    if ((text == "rcl" || text == "sto") && at + 1 < tokens.size()) {
        text.append(" ").append(tokens[++at]);
    }
    ++at;
    return wordOf(text, variables);
}

bool endsSide(std::string_view token) {
    const OperatorClass kind = ClassifyOperator(token).kind;
    return kind != OperatorClass::None && kind != OperatorClass::Math;
}

ProgramTest testOf(const std::vector<std::string_view>& tokens, const Variables& variables) {
    ProgramTest test;
    std::size_t at = 1;
    while (at < tokens.size() && !endsSide(tokens[at])) {
        test.left.push_back(joinedWord(tokens, at, variables));
    }
    if (at < tokens.size()) {
        test.op = ClassifyOperator(tokens[at]).text;
        ++at;
    }
    while (at < tokens.size() && !endsSide(tokens[at])) {
        test.right.push_back(joinedWord(tokens, at, variables));
    }
    return test;
}

}  // namespace

std::string smallLetters(std::string_view text) {
    std::string out{text};
    for (char& character : out) {
        const unsigned char byte = byteOf(character);
        if ((byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7)) {
            character = static_cast<char>(byte + 0x20);
        }
    }
    return out;
}

std::string capitals(std::string_view text) {
    std::string out{text};
    for (char& character : out) {
        const unsigned char byte = byteOf(character);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7)) {
            character = static_cast<char>(byte - 0x20);
        }
    }
    return out;
}

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> splitAtBlanks(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t at = text.find_first_not_of(' '); at < text.size(); at = text.find_first_not_of(' ', at)) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

ProgramText::ProgramText(std::string_view file) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (file.starts_with(kMark)) {
        file.remove_prefix(kMark.size());
    }
    const bool plain = std::all_of(file.begin(), file.end(), [](char c) { return byteOf(c) < 0x80; });
    const std::string converted = !plain && isUtf8(file) ? fromUnicode(file) : std::string{};
    std::string_view rest = converted.empty() ? file : std::string_view{converted};
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        addLine(rest.substr(0, end));
        rest.remove_prefix(end);
        rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest.size(), 1));
    }
    small_ = smallLetters(written_);
    prepared_.resize(lines_.size());
    constexpr std::string_view kLabel = "lbl ";
    for (std::size_t i = 0; i + 1 < lines_.size(); ++i) {
        if (const std::string_view text = at(i).text; text.starts_with(kLabel)) {
            labels_.emplace(text.substr(kLabel.size()), static_cast<int>(i) + 1);
        }
    }
}

void ProgramText::addLine(std::string_view line) {
    std::string written{line};
    std::replace(written.begin(), written.end(), '\t', ' ');
    const std::string_view kept = withoutBlanks(written);
    lines_.push_back({static_cast<std::uint32_t>(written_.size()), static_cast<std::uint32_t>(kept.size())});
    written_ += kept;
}

void ProgramText::forgetPrepared() {
    for (auto& line : prepared_) {
        line.reset();
    }
    words_ = 0;
}

const ProgramLine& ProgramText::prepared(int number, const Variables& variables) {
    auto& line = prepared_[static_cast<std::size_t>(number) - 1];
    if (!line) {
        line = std::make_unique<ProgramLine>(takenApart(at(static_cast<std::size_t>(number) - 1).text, variables));
        // A line takes as much as some words, whatever stands in it.
        constexpr std::size_t kLineItself = 5;
        words_ += line->words.size() + kLineItself;
    }
    return *line;
}

ProgramLine ProgramText::takenApart(std::string_view text, const Variables& variables) {
    ProgramLine line;
    line.text = text;
    line.whole = wordOf(line.text, variables);
    const auto tokens = splitAtBlanks(line.text);
    if (tokens.size() > kMostWords) {
        throw std::bad_alloc{};
    }
    line.words.reserve(tokens.size());
    line.joined.reserve(tokens.size());
    for (const std::string_view token : tokens) {
        line.words.push_back(wordOf(token, variables));
        line.assigns = line.assigns || token == "=";
    }
    for (std::size_t at = 2; at < tokens.size();) {
        line.joined.push_back(joinedWord(tokens, at, variables));
    }
    line.isAssignment = tokens.size() > 1 && tokens[1] == "=";
    line.isName = !tokens.empty() && tokens.front() == "name";
    line.variable = tokens.empty() ? -1 : variables.find(std::string(tokens.front()));
    setTarget(line.whole);
    std::for_each(line.words.begin(), line.words.end(), [this](ProgramWord& word) { setTarget(word); });
    line.isIf = line.text.starts_with("if");
    if (line.isIf) {
        line.test = testOf(tokens, variables);
    }
    return line;
}

void ProgramText::setTarget(ProgramWord& word) const {
    constexpr std::size_t kLabelAt = 4;
    if ((word.statement == Statement::Gsb || word.statement == Statement::Glb) && word.text.size() > kLabelAt) {
        word.target = label(word.text.substr(kLabelAt)).value_or(0);
    }
}

std::optional<int> ProgramText::label(std::string_view label) const {
    const auto found = labels_.find(label);
    return found == labels_.end() ? std::nullopt : std::optional{found->second};
}

int ProgramText::endifOf(int number) {
    ProgramLine* const known = prepared_[static_cast<std::size_t>(number) - 1].get();
    if (known != nullptr && known->endifLine != 0) {
        return known->endifLine;
    }
    int nested = 0;
    for (int at = number + 1; at <= count(); ++at) {
        const std::string_view text = line(at).text;
        if (text.starts_with("if")) {
            nested += continues(line(at - 1).text) ? 0 : 1;
        } else if (text == "endif" && nested-- == 0) {
            if (known != nullptr) {
                known->endifLine = at;
            }
            return at;
        }
    }
    return 0;
}

ProgramCounts ProgramText::counts() const {
    ProgramCounts counts;
    std::size_t line = 0;
    while (line < lines_.size()) {
        if (at(line).text.starts_with('\\') && continues(at(line).text)) {
            // The text that goes on is no program.
            do {
                ++line;
            } while (line < lines_.size() && continues(at(line).text));
            ++line;
            if (line >= lines_.size()) {
                break;
            }
        }
        const std::string_view text = at(line).text;
        counts.endifs += text.starts_with("endif") ? 1 : 0;
        counts.ifs += text.starts_with("if ") ? 1 : 0;
        counts.labels += text.starts_with("lbl") ? 1 : 0;
        counts.ends += text.starts_with("end") ? 1 : 0;
        ++line;
    }
    return counts;
}

}  // namespace tallyforge
