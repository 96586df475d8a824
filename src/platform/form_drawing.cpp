// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/form_drawing.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace tallyforge {

namespace {

constexpr float kTwipsPerPoint = 20.0F;
constexpr float kRule = 10.0F;       ///< width of a line
constexpr float kMargin = 60.0F;     ///< between the edge of a field and its text
constexpr float kIndicator = 90.0F;  ///< half the size of an option's mark
constexpr Colour kEdge{.ink = Ink::Faint};

std::string withoutAccessMarks(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
    return text;
}

/// Draws one control after the other.
class FormDrawing {
public:
    explicit FormDrawing(Drawing& drawing) : drawing_(drawing) {}

    void add(const Control& control) {
        switch (control.kind) {
            case ControlKind::Label:
                return addLabel(control);
            case ControlKind::Field:
                return addField(control);
            case ControlKind::Option:
            case ControlKind::Check:
                return addOption(control);
            case ControlKind::Frame:
                return addFrame(control);
            case ControlKind::List:
                return addList(control);
            case ControlKind::Picture:
                return addPicture(control);
            default:
                return;
        }
    }

private:
    static float left(const Control& control) { return static_cast<float>(control.place.left); }
    static float top(const Control& control) { return static_cast<float>(control.place.top); }
    static float width(const Control& control) { return static_cast<float>(control.place.width); }
    static float height(const Control& control) { return static_cast<float>(control.place.height); }
    static float middle(const Control& control) { return top(control) + height(control) / 2.0F; }
    static float size(const Control& control) { return control.font.points * kTwipsPerPoint; }

    /// A text whose small letters stand around the height `y`.
    void text(const Control& control, std::string words, float x, float y, TextAlign align) {
        constexpr float kBaseBelowMiddle = 0.35F;
        drawing_.shapes.emplace_back(DrawnText{.at = {x, y + kBaseBelowMiddle * size(control)},
                                               .text = std::move(words),
                                               .size = size(control),
                                               .align = align,
                                               .bold = control.font.bold,
                                               .face = control.font.face});
    }
    void outline(const Control& control) {
        drawing_.shapes.emplace_back(DrawnRectangle{.topLeft = {left(control), top(control)},
                                                    .width = width(control),
                                                    .height = height(control),
                                                    .edge = kEdge,
                                                    .edgeWidth = kRule});
    }
    /// A label of several lines is broken at blanks, by the width that letters have as a rule.
    void addLabel(const Control& control) {
        const std::string words = withoutAccessMarks(control.text);
        if (control.rightAligned) {
            return text(control, words, left(control) + width(control), middle(control), TextAlign::Right);
        }
        constexpr float kLetter = 0.55F;
        constexpr float kLineHeight = 1.25F;
        const auto most = static_cast<std::size_t>(std::max(width(control) / (kLetter * size(control)), 1.0F));
        const float line = kLineHeight * size(control);
        if (words.size() <= most || height(control) < 2.0F * line) {
            return text(control, words, left(control), middle(control), TextAlign::Left);
        }
        float y = top(control) + line / 2.0F;
        for (std::string_view rest = words; !rest.empty(); y += line) {
            const std::size_t blank = rest.size() <= most ? rest.npos : rest.rfind(' ', most);
            const std::size_t taken = rest.size() <= most ? rest.size() : blank == rest.npos ? most : blank;
            text(control, std::string(rest.substr(0, taken)), left(control), y, TextAlign::Left);
            rest.remove_prefix(std::min(rest.size(), blank == rest.npos ? taken : taken + 1));
        }
    }
    void addField(const Control& control) {
        outline(control);
        control.rightAligned
            ? text(control, control.text, left(control) + width(control) - kMargin, middle(control), TextAlign::Right)
            : text(control, control.text, left(control) + kMargin, middle(control), TextAlign::Left);
    }
    void addOption(const Control& control) {
        const DrawnPoint centre{left(control) + kIndicator + kRule, middle(control)};
        const Colour mark{.ink = control.checked ? Ink::Plain : Ink::None};
        if (control.kind == ControlKind::Option) {
            drawing_.shapes.emplace_back(DrawnArc{.centre = centre, .radius = kIndicator, .edgeWidth = kRule});
            drawing_.shapes.emplace_back(
                DrawnArc{.centre = centre, .radius = kIndicator / 2.0F, .edge = {.ink = Ink::None}, .fill = mark});
        } else {
            const auto box = [&](float half, Colour edge, Colour fill) {
                drawing_.shapes.emplace_back(DrawnRectangle{.topLeft = {centre.x - half, centre.y - half},
                                                            .width = 2.0F * half,
                                                            .height = 2.0F * half,
                                                            .edge = edge,
                                                            .fill = fill,
                                                            .edgeWidth = kRule});
            };
            box(kIndicator, {}, {.ink = Ink::None});
            box(kIndicator / 2.0F, {.ink = Ink::None}, mark);
        }
        text(control, withoutAccessMarks(control.text), centre.x + kIndicator + kMargin, middle(control),
             TextAlign::Left);
    }
    void addFrame(const Control& control) {
        constexpr float kHeading = 0.7F;
        outline(control);
        text(control, withoutAccessMarks(control.text), left(control) + kMargin,
             top(control) + kHeading * size(control), TextAlign::Left);
    }
    void addList(const Control& control) {
        outline(control);
        constexpr float kLineHeight = 1.25F;
        const float line = kLineHeight * size(control);
        const std::size_t count = control.rows == nullptr ? 0 : control.rows->count();
        float y = top(control) + line / 2.0F;
        for (std::size_t row = 0; row < count && y + line / 2.0F <= top(control) + height(control); ++row, y += line) {
            std::string words = control.rows->row(row);
            std::replace(words.begin(), words.end(), '\t', ' ');
            text(control, std::move(words), left(control) + kMargin, y, TextAlign::Left);
        }
    }
    /// The picture's shapes in the form's units, as large as its place allows.
    void addPicture(const Control& control) {
        const Drawing& picture = control.drawing;
        if (picture.width <= 0.0F || picture.height <= 0.0F) {
            return;
        }
        const float scale = std::min(width(control) / picture.width, height(control) / picture.height);
        const DrawnPoint origin{left(control) + (width(control) - scale * picture.width) / 2.0F,
                                top(control) + (height(control) - scale * picture.height) / 2.0F};
        const auto move = [&](DrawnPoint& point) { point = {origin.x + scale * point.x, origin.y + scale * point.y}; };
        for (DrawnShape shape : picture.shapes) {
            std::visit([&](auto& each) { enlarge(each, scale, move); }, shape);
            drawing_.shapes.push_back(std::move(shape));
        }
    }
    template <typename Shape, typename Move>
    static void enlarge(Shape& shape, float scale, const Move& move) {
        if constexpr (std::is_same_v<Shape, DrawnLine>) {
            move(shape.from);
            move(shape.to);
            shape.width *= scale;
        } else if constexpr (std::is_same_v<Shape, DrawnText>) {
            move(shape.at);
            shape.size *= scale;
        } else {
            if constexpr (std::is_same_v<Shape, DrawnRectangle>) {
                move(shape.topLeft);
                shape.width *= scale;
                shape.height *= scale;
                shape.radius *= scale;
            } else if constexpr (std::is_same_v<Shape, DrawnArc>) {
                move(shape.centre);
                shape.radius *= scale;
            } else {
                std::for_each(shape.points.begin(), shape.points.end(), move);
            }
            shape.edgeWidth *= scale;
        }
    }

    Drawing& drawing_;
};

}  // namespace

Drawing drawnForm(const Form& form) {
    Drawing drawing{.width = static_cast<float>(form.place.width),
                    .height = static_cast<float>(form.contentHeight()),
                    .described = form.title,
                    .shapes = {}};
    FormDrawing drawn(drawing);
    for (const Control* control : form.controls()) {
        if (control->visible) {
            drawn.add(*control);
        }
    }
    return drawing;
}

}  // namespace tallyforge
