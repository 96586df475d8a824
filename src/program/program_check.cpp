// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_check.h"

#include "program/program_text.h"
#include "program/program_words.h"
#include "program/variables.h"

#include <algorithm>
#include <optional>
#include <set>

namespace tallyforge {

namespace {

using Words = std::vector<ProgramWord>;
using Kind = ProgramWord::Kind;

constexpr std::string_view kLabelWord = "lbl ";
constexpr std::string_view kGoesOn = "#_";
constexpr std::string_view kInit = "init";
/// Keys whose letter is a label of its own; the other four have captions that stay.
constexpr std::string_view kKeyLetters = "abcdefghijklmnopqrst";

std::string inQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

class Checker {
public:
    explicit Checker(std::string_view file) : text_(file) {}
    [[nodiscard]] std::vector<ProgramFinding> findings();

private:
    /// What an "if" around a line has tested for being different from 0.
    struct OpenIf {
        std::string notZero;
    };

    void add(int line, std::string text) { findings_.push_back({line, std::move(text)}); }
    void checkDeclaration();
    void checkName(int line, const std::string& name);
    void collectCalls();
    void checkLabel(int line);
    void endSection();
    int skipMessage(int line);
    void checkLine(int line);
    void checkSeveral(int line, const ProgramLine& ready);
    void checkIf(int line, const ProgramLine& ready);
    void checkComparison(int line, const ProgramLine& ready);
    void checkWords(int line, const Words& words, std::size_t from);
    void checkWord(int line, const ProgramWord& word);

    ProgramText text_;
    Variables variables_;
    std::vector<ProgramFinding> findings_;
    int firstLabel_ = 0;
    std::set<std::string> called_;
    std::set<std::string> labels_;
    int section_ = 0;  ///< line of its label, 0 outside
    bool ended_ = false;
    bool endif_ = false;
    std::vector<OpenIf> open_;
};

std::string sideOf(const Words& words) {
    std::string side;
    for (const ProgramWord& word : words) {
        side += word.text + ' ';
    }
    return side;
}

bool isZero(const Words& words) {
    return words.size() == 1 && words.front().kind == Kind::Number && words.front().number == 0.0;
}

std::vector<ProgramFinding> Checker::findings() {
    const auto isLabel = [this](int line) { return text_.line(line).text.starts_with(kLabelWord); };
    for (int line = 1; line <= text_.count() && firstLabel_ == 0; ++line) {
        firstLabel_ = isLabel(line) ? line : 0;
    }
    if (firstLabel_ == 0) {
        add(std::max(text_.count(), 1), "no label: a program has sections, each from \"lbl\" to \"end\"");
        return findings_;
    }
    checkDeclaration();
    collectCalls();
    for (int line = firstLabel_; line <= text_.count(); ++line) {
        const std::string_view written = text_.line(line).text;
        if (text_.line(line).skipped()) {
            continue;
        }
        if (isLabel(line)) {
            endSection();
            checkLabel(line);
        } else if (!ended_ && written == "umsg") {
            line = skipMessage(line);
        } else if (!ended_) {
            checkLine(line);
        }
    }
    endSection();
    std::ranges::stable_sort(findings_, {}, &ProgramFinding::line);
    return findings_;
}

// The last line with a "#" before the first label counts.
void Checker::checkDeclaration() {
    constexpr std::size_t kFirstName = 2;
    int declaration = 0;
    for (int line = 1; line < firstLabel_; ++line) {
        declaration = text_.line(line).text.starts_with('#') ? line : declaration;
    }
    if (declaration == 0) {
        add(firstLabel_, "no declaration: a line that begins with \"#\" stands before the first label");
        return;
    }
    const std::string_view written = text_.line(declaration).text;
    variables_.declare(std::string_view{written}.substr(std::min(kFirstName, written.size())), [](const auto&) {});
    for (const std::string_view name : splitAtBlanks(std::string_view{written}.substr(1))) {
        checkName(declaration, std::string(name));
    }
}

void Checker::checkName(int line, const std::string& name) {
    const auto wins = [&](std::string_view what) {
        add(line, "name " + inQuotes(name) + " is taken for " + std::string(what));
    };
    const bool letter = name.front() >= 'a' && name.front() <= 'z';
    const bool digit = name.front() >= '0' && name.front() <= '9';
    if (const Statement statement = statementOf(name); statement != Statement::None) {
        const auto row = std::ranges::find(statementRows(), statement, &StatementRow::statement);
        wins("the word " + inQuotes(row->word));
    } else if (findFunction(name) != nullptr || ClassifyOperator(name).kind == OperatorClass::Then) {
        wins("the word of that name");
    } else if (digit && name.front() != '0') {
        wins("a number");
    } else if (!letter && !digit) {
        add(line, "name " + inQuotes(name) + " does not begin with a letter");
    } else if (letter && name.size() == 1) {
        add(line, "name " + inQuotes(name) + " is too short: two characters at least");
    }
}

void Checker::collectCalls() {
    constexpr std::size_t kOperand = 4;
    constexpr std::size_t kKeyAt = 5;
    constexpr std::size_t kCaptionAt = 7;
    std::set<char> renamed;
    for (int line = firstLabel_; line <= text_.count(); ++line) {
        const std::string_view written = text_.line(line).text;
        const Statement statement = statementOf(written);
        if ((statement == Statement::Gsb || statement == Statement::Glb) && written.size() > kOperand) {
            called_.emplace(written.substr(kOperand));
        } else if (statement == Statement::Name && written.size() > kCaptionAt) {
            called_.emplace(written.substr(kCaptionAt));
            renamed.insert(written[kKeyAt]);
        }
    }
    called_.emplace(kInit);
    for (const char letter : kKeyLetters) {
        if (!renamed.contains(letter)) {
            called_.emplace(1, letter);
        }
    }
}

void Checker::checkLabel(int line) {
    const std::string label{text_.line(line).text.substr(kLabelWord.size())};
    if (line == text_.count()) {
        add(line, "label " + inQuotes(label) + " stands on the last line and is not found");
    } else if (!labels_.insert(label).second) {
        add(line, "label " + inQuotes(label) + " is there already, in line " + std::to_string(*text_.label(label)));
    } else if (!called_.contains(label)) {
        add(line, "label " + inQuotes(label) + " is never called");
    }
    section_ = line;
}

void Checker::endSection() {
    if (section_ != 0 && !ended_) {
        add(section_, "section without an \"end\"" + std::string(endif_ ? "; an \"endif\" is none" : ""));
    }
    section_ = 0;
    ended_ = false;
    endif_ = false;
    open_.clear();
}

// Returns the last line of the message.
int Checker::skipMessage(int line) {
    if (line == text_.count() || !text_.line(line + 1).text.starts_with('\\')) {
        add(line, "no text: a line that begins with \"\\\" stands behind \"umsg\"");
        return line;
    }
    ++line;
    while (line < text_.count() && text_.line(line).text.ends_with(kGoesOn)) {
        ++line;
    }
    return line;
}

void Checker::checkLine(int line) {
    const ProgramLine& ready = text_.prepared(line, variables_);
    if (ready.text == "end") {
        ended_ = true;
    } else if (ready.text == "endif") {
        endif_ = true;
        if (!open_.empty()) {
            open_.pop_back();
        }
    } else if (ready.isName) {
        if (ready.words.size() < 3) {
            add(line, "\"name\" wants a key and a caption");
        }
    } else if (ready.isIf) {
        checkIf(line, ready);
    } else if (ready.words.size() > 2) {
        checkSeveral(line, ready);
    } else {
        checkWord(line, ready.whole);
    }
}

void Checker::checkSeveral(int line, const ProgramLine& ready) {
    if (ready.variable < 0) {
        const std::string first = inQuotes(ready.words.front().text);
        add(line, ready.isAssignment ? "variable " + first + " is not declared"
                                     : first + " is no variable: a line of three words or more begins with one");
    }
    checkWords(line, ready.words, ready.isAssignment ? 2 : 1);
}

void Checker::checkIf(int line, const ProgramLine& ready) {
    if (text_.endifOf(line) == 0) {
        add(line, "\"if\" without an \"endif\"");
    }
    checkWords(line, ready.test.left, 0);
    checkWords(line, ready.test.right, 0);
    checkComparison(line, ready);
    const bool notZero = ready.test.op == "<>" && isZero(ready.test.right);
    open_.push_back({notZero ? sideOf(ready.test.left) : std::string{}});
}

// The comparison is the first word that begins like one, whatever stands behind it.
void Checker::checkComparison(int line, const ProgramLine& ready) {
    const auto isComparison = [](const ProgramWord& word) {
        const OperatorClass kind = ClassifyOperator(word.text).kind;
        return kind != OperatorClass::None && kind != OperatorClass::Math;
    };
    const auto found = std::find_if(ready.words.begin() + 1, ready.words.end(), isComparison);
    const std::string& op = ready.test.op;
    if (found == ready.words.end() || ClassifyOperator(found->text).kind == OperatorClass::Then) {
        add(line, "\"if\" without a comparison");
    } else if (op != "=" && op != "<>" && op != "<" && op != ">") {
        add(line, inQuotes(found->text) + " is no comparison");
    } else if (found->text != op) {
        add(line, inQuotes(found->text) + " means " + inQuotes(op));
    } else if ((op == "<" || op == ">") && (isZero(ready.test.left) || isZero(ready.test.right))) {
        const std::string side = sideOf(isZero(ready.test.right) ? ready.test.left : ready.test.right);
        const bool asked = std::ranges::any_of(open_, [&](const OpenIf& outer) { return outer.notZero == side; });
        if (!asked) {
            add(line, inQuotes(op) + " holds of 0 and 0, too: ask for \"<> 0\" first");
        }
    }
}

void Checker::checkWords(int line, const Words& words, std::size_t from) {
    for (std::size_t at = from; at < words.size(); ++at) {
        checkWord(line, words[at]);
    }
}

void Checker::checkWord(int line, const ProgramWord& word) {
    if (word.kind == Kind::Unknown) {
        add(line, "unknown word " + inQuotes(word.text) + ": it pushes 0");
    } else if (word.kind == Kind::NoNumber || word.failure != 0) {
        add(line, inQuotes(word.text) + " is no number");
    } else if ((word.statement == Statement::Gsb || word.statement == Statement::Glb) && word.target == 0) {
        constexpr std::size_t kOperand = 4;
        add(line, "label " + inQuotes(word.text.substr(std::min(kOperand, word.text.size()))) + " is missing");
    } else if (word.statement == Statement::If) {
        add(line, "\"if\" within a line has nothing to compare");
    }
}

}  // namespace

std::vector<ProgramFinding> checkProgram(std::string_view file) {
    return Checker{file}.findings();
}

}  // namespace tallyforge
