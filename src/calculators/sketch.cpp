// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/sketch.h"

#include <cmath>
#include <utility>

namespace tallyforge {

namespace {

constexpr float kWidth = 300.0F;
constexpr float kHeight = 200.0F;
constexpr float kEdge = 20.0F;
constexpr float kTextSize = 12.0F;

}  // namespace

Sketch::Sketch(std::string_view described) {
    drawing_.width = kWidth;
    drawing_.height = kHeight;
    drawing_.described = described;
}

void Sketch::line(DrawnPoint from, DrawnPoint to, Ink ink, float width) {
    shape(DrawnLine{.from = from, .to = to, .width = width, .colour = {.ink = ink}});
}

void Sketch::text(DrawnPoint at, std::string_view words, TextAlign align, Ink ink) {
    shape(DrawnText{.at = at, .text = std::string(words), .size = kTextSize, .align = align, .colour = {.ink = ink}});
}

void Sketch::dot(DrawnPoint at, Ink ink) {
    constexpr float kDot = 4.0F;
    shape(DrawnArc{.centre = at, .radius = kDot, .edge = {.ink = ink}, .fill = {.ink = ink}});
}

DrawnPoint Sketch::along(DrawnPoint at, bool down, float ahead, float aside) {
    return down ? DrawnPoint{at.x + aside, at.y + ahead} : DrawnPoint{at.x + ahead, at.y + aside};
}

void Sketch::label(DrawnPoint at, bool down, std::string_view words) {
    constexpr float kBeside = 14.0F;
    text(along(at, down, kPart / 2 + (down ? 4.0F : 0.0F), down ? kBeside : -kBeside), words,
         down ? TextAlign::Left : TextAlign::Centre);
}

void Sketch::resistor(DrawnPoint at, bool down, std::string_view words) {
    constexpr float kLead = 12.0F;
    constexpr float kTooth = 6.0F;
    constexpr int kTeeth = 6;
    DrawnPolyline zigzag;
    zigzag.edgeWidth = 1.5F;
    zigzag.points = {at, along(at, down, kLead, 0)};
    for (int i = 0; i < kTeeth; ++i) {
        zigzag.points.push_back(
            along(at, down, kLead + kTooth * (static_cast<float>(i) + 0.5F), i % 2 == 0 ? -kTooth : kTooth));
    }
    zigzag.points.push_back(along(at, down, kPart - kLead, 0));
    zigzag.points.push_back(along(at, down, kPart, 0));
    shape(std::move(zigzag));
    label(at, down, words);
}

void Sketch::inductor(DrawnPoint at, bool down, std::string_view words) {
    constexpr float kLead = 12.0F;
    constexpr float kRadius = 4.5F;
    constexpr int kLoops = 4;
    line(at, along(at, down, kLead, 0));
    for (int i = 0; i < kLoops; ++i) {
        shape(DrawnArc{.centre = along(at, down, kLead + kRadius * static_cast<float>(2 * i + 1), 0),
                       .radius = kRadius,
                       .start = down ? -90.0F : 0.0F,
                       .sweep = 180.0F,
                       .edgeWidth = 1.5F});
    }
    line(along(at, down, kPart - kLead, 0), along(at, down, kPart, 0));
    label(at, down, words);
}

void Sketch::capacitor(DrawnPoint at, bool down, std::string_view words) {
    constexpr float kGap = 4.0F;
    constexpr float kPlate = 11.0F;
    const float middle = kPart / 2;
    line(at, along(at, down, middle - kGap, 0));
    line(along(at, down, middle - kGap, -kPlate), along(at, down, middle - kGap, kPlate), Ink::Plain, 2.5F);
    line(along(at, down, middle + kGap, -kPlate), along(at, down, middle + kGap, kPlate), Ink::Plain, 2.5F);
    line(along(at, down, middle + kGap, 0), along(at, down, kPart, 0));
    label(at, down, words);
}

DrawnPoint Sketch::inField(double across, double up) {
    return {kEdge + static_cast<float>(across) * (kWidth - 2 * kEdge),
            kHeight - kEdge - static_cast<float>(up) * (kHeight - 3 * kEdge)};
}

void Sketch::curve(const std::function<double(double)>& height, Ink ink) {
    constexpr int kPoints = 120;
    line(inField(0, 0), inField(1, 0), Ink::Faint);
    line(inField(0, 0), inField(0, 1), Ink::Faint);
    DrawnPolyline drawn{.points = {}, .edge = {.ink = ink}, .edgeWidth = 2.0F};
    for (int i = 0; i <= kPoints; ++i) {
        const double across = static_cast<double>(i) / kPoints;
        const double up = height(across);
        if (std::isfinite(up)) {
            drawn.points.push_back(inField(across, up < 0.0 ? 0.0 : (up > 1.0 ? 1.0 : up)));
        }
    }
    shape(std::move(drawn));
}

void Sketch::mark(double place, std::string_view letter) {
    if (!std::isfinite(place) || place < 0.0 || place > 1.0) {
        return;
    }
    constexpr float kBelow = 14.0F;
    line(inField(place, 0), inField(place, 1), Ink::Faint, 1.0F);
    const DrawnPoint foot = inField(place, 0);
    text({foot.x, foot.y + kBelow}, letter);
}

}  // namespace tallyforge
