// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/chart_figures.h"

#include "numbers/number_format.h"
#include "reference/pen.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

constexpr float kWidth = 1600.0F;
constexpr float kMargin = 60.0F;
constexpr float kLabel = 26.0F;  ///< height of the pieces' names
constexpr char kPoint = '.';

/// Lines across the figure at each whole inch above `base`, with their numbers.
void inchScale(Pen& pen, double inches, float base, float scale) {
    for (int inch = 0; inch <= static_cast<int>(inches); ++inch) {
        const float y = base - static_cast<float>(inch) * scale;
        pen.line({kMargin, y}, {kWidth, y}, kFaint, 1.0F);
        pen.text({kMargin - 10.0F, y + 8.0F}, std::to_string(inch), kLabel, TextAlign::Right, kFaint);
    }
}

/// What the pieces share: the middle of place `index` among `count`, and its width.
struct Slot {
    float width;
    float left;
    [[nodiscard]] float middle(std::size_t index) const { return left + (static_cast<float>(index) + 0.5F) * width; }
};

Slot slots(std::size_t count) {
    return {.width = (kWidth - kMargin) / static_cast<float>(std::max<std::size_t>(count, 1)), .left = kMargin};
}

Colour inkOf(std::size_t index, ChosenRow row) {
    return row == index ? kAccent : kPlain;
}

/// Half a profile of straight flanks between `outer` and `inner`, `turns` of `pitch` from `left` on,
/// with flats of an eighth of the pitch outside and a quarter inside.
std::vector<DrawnPoint> flanks(float left, float pitch, int turns, float outer, float inner) {
    std::vector<DrawnPoint> points;
    for (int turn = 0; turn < turns; ++turn) {
        const float start = left + static_cast<float>(turn) * pitch;
        points.push_back({start, outer});
        points.push_back({start + pitch / 8.0F, outer});
        points.push_back({start + pitch * 7.0F / 16.0F, inner});
        points.push_back({start + pitch * 11.0F / 16.0F, inner});
    }
    points.push_back({left + static_cast<float>(turns) * pitch, outer});
    return points;
}

}  // namespace

Drawing nailFigure(std::span<const Piece> nails, ChosenRow row) {
    constexpr float kBase = 580.0F;
    constexpr float kScale = 88.0F;  // units an inch
    Pen pen(kWidth, kBase + 50.0F, "Nails side by side, lengths and diameters to one scale in inches");
    double longest = 0.0;
    for (const Piece& nail : nails) {
        longest = std::max(longest, nail.length);
    }
    inchScale(pen, longest, kBase, kScale);
    const Slot slot = slots(nails.size());
    for (std::size_t index = 0; index < nails.size(); ++index) {
        const Piece& nail = nails[index];
        const Colour ink = inkOf(index, row);
        const float x = slot.middle(index);
        const float half = static_cast<float>(nail.diameter) * kScale / 2.0F;
        const float head = kBase - static_cast<float>(nail.length) * kScale;
        const float point = kBase - 4.0F * half;
        pen.shape({{x - half, head}, {x + half, head}, {x + half, point}, {x, kBase}, {x - half, point}}, ink);
        pen.box({x - 2.5F * half, head - 4.0F}, 5.0F * half, 4.0F, ink);
        pen.text({x, kBase + 34.0F}, nail.name, kLabel, TextAlign::Centre, ink);
    }
    return pen.drawing();
}

Drawing screwFigure(std::span<const Piece> screws, ChosenRow row) {
    constexpr float kBase = 250.0F;
    constexpr float kScale = 100.0F;
    constexpr float kLength = 2.0F;         // inches
    constexpr float kThreadedPart = 0.67F;  // of the length
    Pen pen(kWidth, kBase + 50.0F, "Wood screws side by side, diameters and threads to one scale in inches");
    inchScale(pen, kLength, kBase, kScale);
    const Slot slot = slots(screws.size());
    for (std::size_t index = 0; index < screws.size(); ++index) {
        const Piece& screw = screws[index];
        const Colour ink = inkOf(index, row);
        const float x = slot.middle(index);
        const float half = static_cast<float>(screw.diameter) * kScale / 2.0F;
        const float head = kBase - kLength * kScale;
        const float thread = kBase - kLength * kThreadedPart * kScale;
        const float shank = head + half;
        pen.shape({{x - 2.0F * half, head},
                   {x + 2.0F * half, head},
                   {x + half, shank},
                   {x + half, thread},
                   {x - half, thread},
                   {x - half, shank}},
                  ink);
        const float pitch = kScale / static_cast<float>(screw.threadsPerInch);
        std::vector<DrawnPoint> outline{{x - 0.7F * half, thread}};
        std::vector<DrawnPoint> other{{x + 0.7F * half, thread}};
        for (float y = thread; y + pitch < kBase; y += pitch) {
            // The threads run out to the point over the last diameter.
            const float wide = std::min(1.0F, (kBase - y) / (3.0F * half)) * half;
            outline.push_back({x - wide, y + pitch / 2.0F});
            outline.push_back({x - 0.7F * wide, y + pitch});
            other.push_back({x + wide, y + pitch / 2.0F});
            other.push_back({x + 0.7F * wide, y + pitch});
        }
        outline.push_back({x, kBase});
        outline.insert(outline.end(), other.rbegin(), other.rend());
        pen.shape(std::move(outline), ink, 1.0F);
        pen.text({x, kBase + 34.0F}, screw.name, kLabel, TextAlign::Centre, ink);
    }
    return pen.drawing();
}

Drawing wireFigure(std::span<const Piece> wires, ChosenRow row) {
    constexpr float kGap = 8.0F;
    constexpr float kLeastLabel = 26.0F;  // room that a name needs
    double together = 0.0;
    for (const Piece& wire : wires) {
        together += wire.diameter;
    }
    const float room = kWidth - kGap * static_cast<float>(wires.size());
    const float scale = together > 0.0 ? room / static_cast<float>(together) : 0.0F;
    const float base = wires.empty() ? 0.0F : 20.0F + static_cast<float>(wires.front().diameter) * scale;
    Pen pen(kWidth, base + 70.0F, "Wires in section, to one scale");
    float left = 0.0F;
    float labelled = -kLeastLabel;
    for (std::size_t index = 0; index < wires.size(); ++index) {
        const float radius = static_cast<float>(wires[index].diameter) * scale / 2.0F;
        const Colour ink = inkOf(index, row);
        const float x = left + kGap / 2.0F + radius;
        pen.circle({x, base - radius}, radius, ink);
        const bool chosen = row == index;
        const float width = static_cast<float>(wires[index].name.size()) * 0.6F * kLabel;
        if (x - width / 2.0F >= labelled &&
            !(row && !chosen && std::abs(static_cast<float>(*row) - static_cast<float>(index)) < 3.0F)) {
            pen.text({x, base + 30.0F}, wires[index].name, kLabel, TextAlign::Centre, ink);
            labelled = x + width / 2.0F + 6.0F;
        } else if (chosen) {
            pen.text({x, base + 62.0F}, wires[index].name, kLabel, TextAlign::Centre, ink);
        }
        left += 2.0F * radius + kGap;
    }
    return pen.drawing();
}

Drawing threadFigure(std::span<const ThreadSize> threads, ChosenRow row) {
    constexpr float kPitch = 190.0F;
    constexpr int kTurns = 5;
    constexpr float kLeft = 40.0F;
    constexpr float kTop = 90.0F;
    const float right = kLeft + kPitch * static_cast<float>(kTurns);
    const ThreadSize& thread = threads[row.value_or(0)];
    const float perInch = kPitch * static_cast<float>(thread.threadsPerInch);
    // The basic profile is five eighths of a triangle with angles of 60 degrees high.
    const float depth = 0.625F * 0.8660254F * kPitch;
    const float drilled = static_cast<float>(thread.major - thread.drill) / 2.0F * perInch;
    const float bottom = kTop + depth + 90.0F;
    Pen pen(kWidth, bottom + 20.0F, "Profile of a " + thread.name + " thread and the drill of its hole");
    std::vector<DrawnPoint> outline = flanks(kLeft, kPitch, kTurns, kTop, kTop + depth);
    outline.push_back({right, bottom});
    outline.push_back({kLeft, bottom});
    pen.shape(std::move(outline), kPlain, 2.5F);
    pen.line({kLeft - 20.0F, kTop + drilled}, {right + 20.0F, kTop + drilled}, kAccent, 2.5F);
    pen.line({right - kPitch, kTop - 36.0F}, {right, kTop - 36.0F}, kPlain, 1.5F);
    pen.line({right - kPitch, kTop - 50.0F}, {right - kPitch, kTop - 10.0F}, kFaint, 1.0F);
    pen.line({right, kTop - 50.0F}, {right, kTop - 10.0F}, kFaint, 1.0F);
    const float textLeft = right + 50.0F;
    const double height = (thread.major - thread.drill) * thread.threadsPerInch / 1.299038;
    const std::string lines[] = {thread.name + " - " + plainText(thread.threadsPerInch, kPoint),
                                 "major dia " + fixedText(thread.major, 4) + " in",
                                 "pitch " + fixedText(1.0 / thread.threadsPerInch, 4) + " in",
                                 "tap drill " + thread.drillName + ", " + fixedText(thread.drill, 4) + " in",
                                 "thread height " + fixedText(height * 100.0, 0) + " %"};
    float y = kTop - 20.0F;
    for (const std::string& line : lines) {
        pen.text({textLeft, y}, line, 32.0F, TextAlign::Left, &line == &lines[3] ? kAccent : kPlain);
        y += 46.0F;
    }
    return pen.drawing();
}

Drawing pipeFigure(std::span<const PipeThread> pipes, ChosenRow row) {
    constexpr float kLeft = 40.0F;
    constexpr float kLength = 900.0F;  // of the effective thread, on the figure
    constexpr float kTop = 90.0F;
    const PipeThread& pipe = pipes[row.value_or(0)];
    const float scale = kLength / static_cast<float>(pipe.effective);
    const float pitch = scale / static_cast<float>(pipe.threadsPerInch);
    const float depth = 0.8F * pitch;
    constexpr float kTaper = 1.0F / 32.0F;  // a side
    const float fall = kLength * kTaper;
    const float bottom = kTop + fall + depth + 90.0F;
    Pen pen(kWidth, bottom + 20.0F, "End of a " + pipe.name + " inch pipe with its taper thread");
    std::vector<DrawnPoint> outline{{kLeft, bottom}};
    for (float x = 0.0F; x + pitch <= kLength; x += pitch) {
        // The end of the pipe, at the left, is its thinnest.
        const float crest = kTop + fall - (x + pitch / 2.0F) * kTaper;
        outline.push_back({kLeft + x, kTop + fall - x * kTaper + depth});
        outline.push_back({kLeft + x + pitch / 2.0F, crest});
    }
    outline.push_back({kLeft + kLength, kTop + depth});
    outline.push_back({kLeft + kLength, kTop});
    outline.push_back({kLeft + kLength + 120.0F, kTop});
    outline.push_back({kLeft + kLength + 120.0F, bottom});
    pen.shape(std::move(outline), kPlain, 2.0F);
    const float handTight = kLeft + static_cast<float>(pipe.handTight) * scale;
    pen.line({handTight, kTop - 40.0F}, {handTight, bottom}, kAccent, 2.0F);
    pen.text({handTight, kTop - 50.0F}, "L1", 30.0F, TextAlign::Centre, kAccent);
    pen.line({kLeft + kLength, kTop - 40.0F}, {kLeft + kLength, bottom}, kFaint, 2.0F);
    pen.text({kLeft + kLength, kTop - 50.0F}, "L2", 30.0F, TextAlign::Centre, kPlain);
    const std::string lines[] = {
        pipe.name + " in pipe", "outside dia " + plainText(pipe.outside, kPoint) + " in",
        plainText(pipe.threadsPerInch, kPoint) + " threads an inch", "taper 1 in 16",
        "L1 " + plainText(pipe.handTight, kPoint) + " in, L2 " + plainText(pipe.effective, kPoint) + " in"};
    float y = kTop - 20.0F;
    for (const std::string& line : lines) {
        pen.text({kLeft + kLength + 170.0F, y}, line, 30.0F, TextAlign::Left, kPlain);
        y += 44.0F;
    }
    return pen.drawing();
}

namespace {

/// "47 kohm, 5 %" for a resistor with these bands.
std::string resistance(std::span<const BandColour> colours, const std::array<std::size_t, kBands>& bands) {
    const int tens = colours[bands[0]].number;
    const int ones = colours[bands[1]].number;
    if (tens < 0 || ones < 0) {
        return "no such resistor";
    }
    int power = colours[bands[2]].number;
    double value = 10.0 * tens + ones;
    for (; power > 0; --power) {
        value *= 10.0;
    }
    value = power < 0 ? value / 10.0 : value;
    constexpr std::array<std::string_view, 4> kPrefixes{"", "k", "M", "G"};
    std::size_t prefix = 0;
    while (value >= 1000.0 && prefix + 1 < kPrefixes.size()) {
        value /= 1000.0;
        ++prefix;
    }
    const std::string& tolerance = colours[bands[3]].tolerance;
    return plainText(value, kPoint) + " " + std::string(kPrefixes.at(prefix)) + "ohm" +
           (tolerance.empty() ? "" : ", " + tolerance);
}

}  // namespace

Drawing resistorFigure(std::span<const BandColour> colours, const std::array<std::size_t, kBands>& bands) {
    constexpr float kAxis = 130.0F;
    constexpr float kBody = 620.0F;
    constexpr float kHalf = 80.0F;
    constexpr float kBodyLeft = 380.0F;
    constexpr std::array<float, kBands> kAt{90.0F, 210.0F, 330.0F, 500.0F};
    constexpr float kBandWidth = 50.0F;
    const std::string value = resistance(colours, bands);
    std::string names;
    for (const std::size_t band : bands) {
        names += (names.empty() ? "" : " ") + colours[band].name;
    }
    Pen pen(kWidth, 2.0F * kAxis + 20.0F, "Resistor with the bands " + names + ": " + value);
    pen.line({kBodyLeft - 240.0F, kAxis}, {kBodyLeft, kAxis}, kPlain, 8.0F);
    pen.line({kBodyLeft + kBody, kAxis}, {kBodyLeft + kBody + 240.0F, kAxis}, kPlain, 8.0F);
    pen.filledBox({kBodyLeft, kAxis - kHalf}, kBody, 2.0F * kHalf, ownColour(0xE6, 0xD3, 0xA8), 40.0F);
    for (std::size_t band = 0; band < kBands; ++band) {
        pen.filledBox({kBodyLeft + kAt.at(band), kAxis - kHalf}, kBandWidth, 2.0F * kHalf,
                      colours[bands.at(band)].look);
    }
    pen.text({kBodyLeft + kBody + 290.0F, kAxis + 14.0F}, value, 40.0F, TextAlign::Left, kPlain);
    pen.text({kWidth / 2.0F, 2.0F * kAxis + 6.0F}, names, 32.0F, TextAlign::Centre, kPlain);
    return pen.drawing();
}

}  // namespace tallyforge
