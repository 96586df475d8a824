// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/pictures.h"

#include "calculators/sketch.h"
#include "numbers/circle.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace tallyforge {

namespace {

using Complex = std::complex<double>;

/// The two decades about `middle`: 0 is a tenth of it, 1 ten times.
double frequencyAt(double across, double middle) {
    return middle * std::pow(10.0, 2.0 * across - 1.0);
}
double placeOf(double frequency, double middle) {
    return (std::log10(frequency / middle) + 1.0) / 2.0;
}

/// The size of an impedance over frequency, the largest at the top, on a scale of decades.
template <typename Impedance>
void impedanceCurve(Sketch& sketch, double middle, Impedance impedance) {
    constexpr int kSamples = 60;
    double least = 1e308;
    double most = 0.0;
    const auto size = [&](double across) { return std::abs(impedance(kTwoPi * frequencyAt(across, middle))); };
    for (int i = 0; i <= kSamples; ++i) {
        const double value = size(static_cast<double>(i) / kSamples);
        if (std::isfinite(value) && value > 0.0) {
            least = std::min(least, value);
            most = std::max(most, value);
        }
    }
    if (most <= least) {
        return;
    }
    const double span = std::log(most / least);
    sketch.curve([&](double across) { return std::log(size(across) / least) / span; });
    sketch.text(Sketch::inField(0, 1.05), "|Z|", TextAlign::Left);
}

/// Frames a loop of wire with a part at its left and one at its right.
void loop(Sketch& sketch) {
    sketch.line({70, 50}, {230, 50});
    sketch.line({70, 150}, {230, 150});
    for (const float x : {70.0F, 230.0F}) {
        sketch.line({x, 50}, {x, 70});
        sketch.line({x, 130}, {x, 150});
    }
}

}  // namespace

Drawing ohmsLawPicture(const Values& /*values*/, bool /*solved*/) {
    Sketch sketch("A source of the voltage E drives the current I through the resistance R, which takes the power P.");
    loop(sketch);
    sketch.shape(DrawnArc{.centre = {70, 100}, .radius = 30, .edgeWidth = 1.5F});
    sketch.text({70, 104}, "E");
    sketch.resistor({230, 70}, true, "R");
    sketch.line({130, 50}, {160, 50}, Ink::Accent, 3.0F);
    sketch.shape(DrawnPolyline{.points = {{160, 44}, {172, 50}, {160, 56}},
                               .closed = true,
                               .edge = {.ink = Ink::Accent},
                               .fill = {.ink = Ink::Accent}});
    sketch.text({150, 38}, "I");
    sketch.text({262, 104}, "P", TextAlign::Left);
    return sketch.take();
}

Drawing resonancePicture(const Values& v, bool solved) {
    enum { X, C, L, F };
    if (!solved) {
        Sketch sketch("An inductor L and a capacitor C in a loop.");
        loop(sketch);
        sketch.inductor({70, 70}, true, "L");
        sketch.capacitor({230, 70}, true, "C");
        return sketch.take();
    }
    Sketch sketch("The reactances of L and of C over frequency; they are equal, X, at the frequency F.");
    const double middle = v[F];
    sketch.curve([](double across) { return across; });
    sketch.curve([](double across) { return 1.0 - across; }, Ink::Plain);
    sketch.mark(placeOf(v[F], middle), "F");
    sketch.dot(Sketch::inField(0.5, 0.5));
    sketch.text(Sketch::inField(0.5, 0.6), "X");
    sketch.text(Sketch::inField(0.9, 1.0), "L");
    sketch.text(Sketch::inField(0.1, 1.0), "C");
    return sketch.take();
}

Drawing bandPicture(const Values& v, bool solved) {
    enum { Fo, BW, FL, FU };
    Sketch sketch("A band from FL to FU about its centre Fo, BW wide, on a scale of decades.");
    const double lower = solved ? v[FL] : 1.0;
    const double upper = solved ? v[FU] : 2.0;
    const double centre = std::sqrt(lower) * std::sqrt(upper);
    const double quality = centre / (upper - lower);
    const auto response = [&](double across) {
        const double ratio = frequencyAt(across, centre) / centre;
        return 1.0 / std::hypot(1.0, quality * (ratio - 1.0 / ratio));
    };
    sketch.curve(response);
    sketch.mark(placeOf(centre, centre), "Fo");
    sketch.mark(placeOf(lower, centre), "FL");
    sketch.mark(placeOf(upper, centre), "FU");
    return sketch.take();
}

Drawing seriesPicture(const Values& v, bool solved) {
    enum { Rs, C, L, Rp, F };
    if (solved) {
        const double middle = 1.0 / (kTwoPi * std::sqrt(v[L]) * std::sqrt(v[C]));
        Sketch sketch("The size of the impedance over frequency; Fr and the frequency F are marked.");
        impedanceCurve(sketch, middle, [&](double w) {
            const Complex branch{v[Rs], w * v[L] - 1.0 / (w * v[C])};
            return 1.0 / (1.0 / branch + 1.0 / v[Rp]);
        });
        sketch.mark(0.5, "Fr");
        if (std::abs(v[F] / middle - 1.0) > 1e-9) {
            sketch.mark(placeOf(v[F], middle), "F");
        }
        return sketch.take();
    }
    Sketch sketch("Rs, L and C in series; the load Rp lies beside them.");
    sketch.line({20, 60}, {40, 60});
    sketch.resistor({40, 60}, false, "Rs");
    sketch.inductor({100, 60}, false, "L");
    sketch.capacitor({160, 60}, false, "C");
    sketch.line({220, 60}, {240, 60});
    sketch.line({240, 60}, {240, 80});
    sketch.line({240, 80}, {240, 150});
    sketch.line({30, 60}, {30, 120});
    sketch.line({30, 120}, {100, 120});
    sketch.resistor({100, 120}, false, "Rp");
    sketch.line({160, 120}, {240, 120});
    return sketch.take();
}

Drawing parallelPicture(const Values& v, bool solved) {
    enum { RL, C, L, F };
    if (solved) {
        const double middle = 1.0 / (kTwoPi * std::sqrt(v[L]) * std::sqrt(v[C]));
        Sketch sketch("The size of the impedance over frequency; Fn, Fr and the frequency F are marked.");
        impedanceCurve(sketch, middle, [&](double w) {
            return 1.0 / (Complex{0.0, w * v[C]} + 1.0 / Complex{v[RL], w * v[L]});
        });
        const double quality = std::sqrt(v[L]) / std::sqrt(v[C]) / v[RL];
        if (quality > 1.0) {
            sketch.mark(placeOf(middle * std::sqrt(1.0 - 1.0 / (quality * quality)), middle), "Fr");
        }
        if (v[F] > 0.0) {
            sketch.mark(placeOf(v[F], middle), "F");
        }
        return sketch.take();
    }
    Sketch sketch("An inductor L with its resistance RL beside a capacitor C.");
    sketch.line({70, 30}, {230, 30});
    sketch.line({70, 160}, {230, 160});
    sketch.inductor({70, 35}, true, "L");
    sketch.line({70, 30}, {70, 35});
    sketch.resistor({70, 95}, true, "RL");
    sketch.line({70, 155}, {70, 160});
    sketch.line({230, 30}, {230, 65});
    sketch.capacitor({230, 65}, true, "C");
    sketch.line({230, 125}, {230, 160});
    return sketch.take();
}

Drawing windingPicture(const Values& /*values*/, bool /*solved*/) {
    Sketch sketch("A ring core with the area Ae and the path le, wound with n turns that carry the current I.");
    sketch.shape(DrawnArc{.centre = {150, 100}, .radius = 75, .edgeWidth = 2.0F});
    sketch.shape(DrawnArc{.centre = {150, 100}, .radius = 42, .edgeWidth = 2.0F});
    sketch.shape(DrawnArc{.centre = {150, 100}, .radius = 58, .edge = {.ink = Ink::Faint}});
    constexpr int kTurns = 7;
    for (int i = 0; i < kTurns; ++i) {
        const float angle = static_cast<float>(kPi) * (0.75F + 0.5F * static_cast<float>(i) / (kTurns - 1));
        const auto at = [angle](float radius) {
            return DrawnPoint{150 + radius * std::cos(angle), 100 - radius * std::sin(angle)};
        };
        sketch.line(at(36), at(81), Ink::Accent, 3.0F);
    }
    sketch.text({45, 104}, "n, I");
    sketch.text({150, 104}, "le");
    sketch.text({208, 104}, "Ae");
    return sketch.take();
}

Drawing corePicture(const Values& v, bool solved) {
    enum { D, E, F, G };
    Sketch sketch("The core seen on its build E: the window F by G; the strip is D wide, into the sheet.");
    const double e = solved ? v[E] : 1.0;
    const double f = solved ? v[F] : 1.0;
    const double g = solved ? v[G] : 2.0;
    const double unit = std::min(240.0 / (g + 2.0 * e), 150.0 / (f + 2.0 * e));
    const auto size = [unit](double length) { return static_cast<float>(length * unit); };
    const DrawnPoint outer{150 - size(g + 2 * e) / 2, 100 - size(f + 2 * e) / 2};
    sketch.shape(DrawnRectangle{
        .topLeft = outer, .width = size(g + 2 * e), .height = size(f + 2 * e), .radius = size(e), .edgeWidth = 2.0F});
    sketch.shape(DrawnRectangle{
        .topLeft = {150 - size(g) / 2, 100 - size(f) / 2}, .width = size(g), .height = size(f), .edgeWidth = 2.0F});
    sketch.text({150, 104 - size(f) / 2 + 16}, "G");
    sketch.text({156 - size(g) / 2, 104}, "F", TextAlign::Left);
    sketch.text({150, 104 - size(f + e) / 2}, "E");
    sketch.text({150, 194}, solved ? "to scale" : "D: depth", TextAlign::Centre, Ink::Faint);
    return sketch.take();
}

Drawing temperaturePicture(const Values& v, bool solved) {
    enum { A, R1, R2, T1, T2 };
    Sketch sketch("Resistance over temperature: a straight line through R1 at T1 and R2 at T2.");
    const bool rises = !solved || v[R2] >= v[R1];
    const double low = rises ? 0.25 : 0.75;
    sketch.curve([low](double across) { return low + (1.0 - 2.0 * low) * across; });
    sketch.dot(Sketch::inField(0.2, low + (1.0 - 2.0 * low) * 0.2));
    sketch.dot(Sketch::inField(0.8, low + (1.0 - 2.0 * low) * 0.8));
    const bool ordered = !solved || v[T1] <= v[T2];
    sketch.mark(0.2, ordered ? "T1" : "T2");
    sketch.mark(0.8, ordered ? "T2" : "T1");
    sketch.text(Sketch::inField(0.2, 0.95), ordered ? "R1" : "R2");
    sketch.text(Sketch::inField(0.8, 0.95), ordered ? "R2" : "R1");
    return sketch.take();
}

Drawing arcPicture(const Values& v, bool solved) {
    enum { AB, Radius, Angle };
    Sketch sketch("A circle's arc s over its chord AB; radii to both ends hold the angle. To scale.");
    const double angle = solved ? v[Angle] : kPi / 2.0;
    const float degrees = static_cast<float>(angle * 180.0 / kPi);
    constexpr float kRadius = 85.0F;
    constexpr DrawnPoint kCentre{150, 105};
    const auto at = [&](double turn) {
        return DrawnPoint{kCentre.x + kRadius * static_cast<float>(std::sin(turn)),
                          kCentre.y - kRadius * static_cast<float>(std::cos(turn))};
    };
    sketch.shape(DrawnArc{.centre = kCentre, .radius = kRadius, .edge = {.ink = Ink::Faint}});
    sketch.shape(DrawnArc{.centre = kCentre,
                          .radius = kRadius,
                          .start = 90.0F - degrees / 2,
                          .sweep = degrees,
                          .edge = {.ink = Ink::Accent},
                          .edgeWidth = 3.0F});
    const DrawnPoint a = at(-angle / 2);
    const DrawnPoint b = at(angle / 2);
    sketch.line(kCentre, a);
    sketch.line(kCentre, b);
    sketch.line(a, b, Ink::Plain, 2.0F);
    sketch.text({a.x - 8, a.y}, "A", TextAlign::Right);
    sketch.text({b.x + 8, b.y}, "B", TextAlign::Left);
    sketch.text({kCentre.x, kCentre.y - kRadius + 14}, "s");
    sketch.text({kCentre.x + 6, kCentre.y + 14}, "r", TextAlign::Left);
    return sketch.take();
}

Drawing rootsPicture(std::span<const std::complex<double>> roots) {
    Sketch sketch("The roots in the plane: real parts to the right, imaginary parts upwards.");
    constexpr double kMiddle = 0.5;
    sketch.line(Sketch::inField(0, kMiddle), Sketch::inField(1, kMiddle), Ink::Faint);
    sketch.line(Sketch::inField(kMiddle, 0), Sketch::inField(kMiddle, 1), Ink::Faint);
    sketch.text(Sketch::inField(0.97, 0.55), "R");
    sketch.text(Sketch::inField(0.54, 0.95), "j");
    double most = 0.0;
    for (const Complex& root : roots) {
        most = std::max({most, std::abs(root.real()), std::abs(root.imag())});
    }
    for (const Complex& root : roots) {
        const Complex scaled = most > 0.0 ? root / most : root;
        constexpr double kReach = 0.45;
        sketch.dot(Sketch::inField(kMiddle + kReach * scaled.real(), kMiddle + kReach * scaled.imag()));
    }
    return sketch.take();
}

Drawing balancePicture(double rate, double periods) {
    Sketch sketch("What is owed of the loan, from its amount down to nothing, over its payments.");
    sketch.curve([=](double across) {
        const double left = periods * (1.0 - across);
        return rate == 0.0 ? 1.0 - across
                           : std::expm1(-left * std::log1p(rate)) / std::expm1(-periods * std::log1p(rate));
    });
    sketch.mark(1.0, "n");
    return sketch.take();
}

Drawing ladderPicture(std::span<const std::string> elements) {
    Sketch sketch("The network as it was entered, from its load on the right to its input on the left.");
    constexpr float kTop = 60.0F;
    constexpr float kBottom = 160.0F;
    constexpr float kRight = 264.0F;
    constexpr float kLeast = 20.0F;
    const auto count = static_cast<float>(std::max<std::size_t>(elements.size(), 4));
    const float step = (kRight - kLeast) / count;
    float x = kRight;
    for (const std::string& element : elements) {
        const bool parallel = element.back() == 'p';
        const float part = std::min(step, Sketch::kPart);
        const DrawnPoint at = parallel ? DrawnPoint{x, kTop + 20} : DrawnPoint{x - part, kTop};
        if (parallel) {
            sketch.line({x, kTop}, {x, kTop + 20});
            sketch.line({x, kTop + 20 + Sketch::kPart}, {x, kBottom});
        }
        const bool fits = parallel || step >= Sketch::kPart;
        switch (fits ? element.front() : ' ') {
            case 'C':
                sketch.capacitor(at, parallel, element);
                break;
            case 'L':
                sketch.inductor(at, parallel, element);
                break;
            case ' ':
                sketch.shape(DrawnRectangle{.topLeft = {x - part, kTop - 8}, .width = part, .height = 16});
                sketch.text({x - part / 2, kTop - 14}, element);
                break;
            default:
                sketch.resistor(at, parallel, element);
                break;
        }
        sketch.line({x - step, kBottom}, {x, kBottom});
        if (parallel || part < step) {
            sketch.line({x - step, kTop}, {parallel ? x : x - part, kTop});
        }
        x -= step;
    }
    sketch.text({x, (kTop + kBottom) / 2}, elements.empty() ? "" : "Zin", TextAlign::Left);
    return sketch.take();
}

}  // namespace tallyforge
