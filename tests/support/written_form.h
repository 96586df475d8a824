// SPDX-License-Identifier: GPL-3.0-or-later
//
// Forms and pictures as text, a line a control or a shape, and their comparison with the text that
// is kept of them in tests/forms. A form that changes on purpose is written anew, and its changed
// lines are read, by TALLYFORGE_WRITE_FORMS=1 in the environment of the test.
#pragma once

#include "platform/form.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tallyforge {

using Lines = std::vector<std::string>;

namespace written {

inline std::string number(float value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(value));
    return text;
}

inline std::string quoted(std::string_view text, Face face = Face::Arial) {
    std::string out = "\"";
    for (const char character : toUnicode(text, face)) {
        out += character == '\n' ? "\\n" : std::string(1, character);
    }
    return out + "\"";
}

inline std::string point(DrawnPoint at) {
    return number(at.x) + " " + number(at.y);
}

inline std::string colour(const Colour& colour) {
    constexpr std::array<std::string_view, 5> kInks{"plain", "faint", "accent", "own", "none"};
    std::string text(kInks.at(static_cast<std::size_t>(colour.ink)));
    if (colour.ink == Ink::Own) {
        for (const int part : {int{colour.red}, int{colour.green}, int{colour.blue}}) {
            text += " " + std::to_string(part);
        }
    }
    return text;
}

inline std::string edge(const Colour& ink, const Colour& fill, float width) {
    return ", edge " + colour(ink) + " " + number(width) + ", fill " + colour(fill);
}

struct ShapeLine {
    std::string operator()(const DrawnLine& line) const {
        return "line " + point(line.from) + " to " + point(line.to) + ", " + colour(line.colour) + " " +
               number(line.width);
    }
    std::string operator()(const DrawnRectangle& box) const {
        return "box " + point(box.topLeft) + " by " + number(box.width) + " " + number(box.height) + ", corners " +
               number(box.radius) + edge(box.edge, box.fill, box.edgeWidth);
    }
    std::string operator()(const DrawnArc& arc) const {
        return "arc " + point(arc.centre) + " radius " + number(arc.radius) + " from " + number(arc.start) + " by " +
               number(arc.sweep) + edge(arc.edge, arc.fill, arc.edgeWidth);
    }
    std::string operator()(const DrawnPolyline& drawn) const {
        std::string text = drawn.closed ? "shape" : "path";
        for (const DrawnPoint& at : drawn.points) {
            text += " " + point(at);
        }
        return text + edge(drawn.edge, drawn.fill, drawn.edgeWidth);
    }
    std::string operator()(const DrawnText& text) const {
        constexpr std::array<std::string_view, 3> kAligns{"left", "centre", "right"};
        return "text " + point(text.at) + " " + quoted(text.text, text.face) + " " + number(text.size) + " " +
               std::string(kAligns.at(static_cast<std::size_t>(text.align))) + (text.bold ? " bold " : " ") +
               colour(text.colour);
    }
};

inline std::string place(const Place& at) {
    return std::to_string(at.left) + " " + std::to_string(at.top) + " by " + std::to_string(at.width) + " " +
           std::to_string(at.height);
}

inline std::string kind(ControlKind kind) {
    constexpr std::array<std::string_view, 14> kKinds{"key",   "field",  "label",   "list",      "option",
                                                      "frame", "lamp",   "menu",    "menuentry", "line",
                                                      "box",   "choice", "picture", "progress"};
    return std::string(kKinds.at(static_cast<std::size_t>(kind)));
}

inline std::string font(const Font& font) {
    constexpr std::array<std::string_view, 4> kFaces{"Arial", "Small", "Symbol", "Terminal"};
    return std::string(kFaces.at(static_cast<std::size_t>(font.face))) + " " + number(font.points) +
           (font.bold ? " bold" : "");
}

/// What differs from a control as it is made.
inline std::string properties(const Control& control) {
    std::string text;
    const auto add = [&text](bool holds, std::string_view words) { text += holds ? ", " + std::string(words) : ""; };
    const auto addNumber = [&text](std::string_view words, int count) {
        text += count != 0 ? ", " + std::string(words) + " " + std::to_string(count) : "";
    };
    const auto addText = [&text](std::string_view words, std::string_view value) {
        text += !value.empty() ? ", " + std::string(words) + " " + quoted(value) : "";
    };
    constexpr std::array<std::string_view, 4> kColours{"", "yellow", "blue", "pale yellow"};
    constexpr std::array<std::string_view, 5> kTones{"", "number", "operator", "enter", "mode"};
    const auto back = kColours.at(static_cast<std::size_t>(control.colour));
    const auto tone = kTones.at(static_cast<std::size_t>(control.tone));
    add(!back.empty(), back);
    add(!tone.empty(), tone);
    addText("tip", control.tip);
    addText("spoken", control.spoken);
    addText("group", control.group);
    addText("menu", control.menu);
    addText("short cut", control.shortCut);
    addText("typed by", control.typedBy);
    addNumber("struck by", control.struckBy);
    addNumber("stop", control.walkStop);
    addNumber("most", static_cast<int>(control.maxLength));
    add(!control.enabled, "disabled");
    add(!control.visible, "hidden");
    add(control.checked, "checked");
    add(control.opaque, "opaque");
    add(control.fromBottom, "from the bottom");
    add(control.rightAligned, "right");
    add(!control.tabStop, "no tab stop");
    add(control.takesEnter, "takes Enter");
    add(control.takesTab, "takes Tab");
    add(control.takesEscape, "takes Esc");
    add(control.live, "live");
    for (const int column : control.columns) {
        addNumber("column", column);
    }
    return text;
}

inline std::string hears(const Control& control) {
    std::string text;
    const auto add = [&text](const auto& handler, std::string_view words) {
        text += handler ? (text.empty() ? "; " : " ") + std::string(words) : "";
    };
    add(control.click, "click");
    add(control.doubleClick, "double");
    add(control.mouseDown, "down");
    add(control.mouseUp, "up");
    add(control.gotFocus, "got");
    add(control.lostFocus, "lost");
    add(control.changed, "changed");
    add(control.keyDown, "keydown");
    add(control.keyPress, "keypress");
    add(control.keyUp, "keyup");
    add(control.idle, "idle");
    add(control.words, "words");
    add(control.resting, "resting");
    return text;
}

}  // namespace written

/// The picture's size and words, and a line a shape.
inline void writePicture(const Drawing& drawing, Lines& lines) {
    lines.push_back("  picture " + written::number(drawing.width) + " " + written::number(drawing.height) + " " +
                    written::quoted(drawing.described));
    for (const DrawnShape& shape : drawing.shapes) {
        lines.push_back("  " + std::visit(written::ShapeLine{}, shape));
    }
}

inline std::string controlLine(const Control& control) {
    return control.fullName() + " " + written::kind(control.kind) + " " + written::place(control.place) + " " +
           written::font(control.font) + " " + written::quoted(control.text, control.font.face) +
           written::properties(control) + written::hears(control);
}

inline std::string formLine(const Form& form) {
    const auto named = [](const Control* control) { return control == nullptr ? "-" : control->fullName(); };
    return form.name + " " + written::quoted(form.title) + " at " + written::place(form.place) + ", content " +
           std::to_string(form.contentHeight()) + ", help " + std::to_string(form.helpTopic) + ", focus " +
           named(form.focus) + ", Enter " + named(form.defaultKey) + ", Esc " + named(form.cancelKey) +
           (form.alwaysOnTop ? ", on top" : "");
}

/// The form, its controls and their pictures and rows.
inline void writeForm(const Form& form, Lines& lines) {
    lines.push_back(formLine(form));
    for (const Control* control : form.controls()) {
        lines.push_back(controlLine(*control));
        if (control->kind == ControlKind::Picture) {
            writePicture(control->drawing, lines);
        }
    }
}

/// The same words in the same order, and numbers that differ by less than a hundredth and a bit: two
/// compilers need not round alike.
inline bool sameLine(const std::string& one, const std::string& other) {
    if (one == other) {
        return true;
    }
    std::istringstream ones(one);
    std::istringstream others(other);
    std::string left;
    std::string right;
    while (ones >> left) {
        if (!(others >> right)) {
            return false;
        }
        char* leftEnd = nullptr;
        char* rightEnd = nullptr;
        const double a = std::strtod(left.c_str(), &leftEnd);
        const double b = std::strtod(right.c_str(), &rightEnd);
        const bool numbers = leftEnd != left.c_str() && rightEnd != right.c_str();
        if (left != right && !(numbers && std::string_view(leftEnd) == rightEnd && std::abs(a - b) < 0.015)) {
            return false;
        }
    }
    return !(others >> right);
}

/// The lines are those of tests/forms/`name`.txt.
inline void expectAsWritten(const std::string& name, const Lines& lines) {
    const auto path = std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "tests/forms" / (name + ".txt");
    if (std::getenv("TALLYFORGE_WRITE_FORMS") != nullptr) {
        std::ofstream out(path);
        for (const std::string& line : lines) {
            out << line << "\n";
        }
    }
    std::ifstream in(path);
    Lines kept;
    for (std::string line; std::getline(in, line);) {
        kept.push_back(line);
    }
    for (std::size_t i = 0; i < std::max(lines.size(), kept.size()); ++i) {
        const std::string is = i < lines.size() ? lines[i] : "(no line)";
        const std::string was = i < kept.size() ? kept[i] : "(no line)";
        ASSERT_TRUE(sameLine(is, was)) << name << ".txt, line " << i + 1 << "\n is " << is << "\nwas " << was
                                       << "\n(TALLYFORGE_WRITE_FORMS=1 writes it anew)";
    }
}

}  // namespace tallyforge
