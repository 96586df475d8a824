// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/polynomial.h"

#include "calculators/exact_integer.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

/// digits · 10^exponent, as a text has it.
struct Decimal {
    ExactInteger digits;
    int exponent = 0;
};

// The text is known to read as a number.
Decimal parse(std::string_view text, char decimal) {
    Decimal number;
    const auto mark = std::min(text.find_first_of("eE"), text.size());
    std::string digits;
    bool behindPoint = false;
    for (const char character : text.substr(0, mark)) {
        if (character == decimal) {
            behindPoint = true;
        } else if (character >= '0' && character <= '9') {
            digits += character;
            number.exponent -= behindPoint ? 1 : 0;
        }
    }
    number.digits = ExactInteger::fromDigits(digits);
    if (text.find('-') < mark) {
        number.digits = -number.digits;
    }
    if (mark + 1 < text.size()) {
        number.exponent += std::atoi(std::string(text.substr(mark + 1)).c_str());
    }
    return number;
}

/// All coefficients times one power of ten, so that they are whole; the roots are the same.
std::vector<ExactInteger> wholeCoefficients(std::span<const std::string> texts, char decimal) {
    std::vector<Decimal> numbers;
    int least = 0;
    bool first = true;
    for (const std::string& text : texts) {
        static_cast<void>(readNumber(text, decimal));
        numbers.push_back(parse(text, decimal));
        if (numbers.back().digits.sign() != 0) {
            least = first ? numbers.back().exponent : std::min(least, numbers.back().exponent);
            first = false;
        }
    }
    std::vector<ExactInteger> whole;
    whole.reserve(numbers.size());
    for (const Decimal& number : numbers) {
        whole.push_back(number.digits.sign() == 0 ? ExactInteger{} : number.digits.timesTen(number.exponent - least));
    }
    return whole;
}

double narrowed(long double value) {
    return checked(static_cast<double>(value));
}

ExactInteger times(std::int64_t factor, const ExactInteger& number) {
    return ExactInteger(factor) * number;
}

/// a x² + b x + c = 0: the root of larger size first, the other by their product, so that no digit
/// is lost in a difference.
Roots quadraticRoots(const ExactInteger& c, const ExactInteger& b, const ExactInteger& a) {
    const ExactInteger discriminant = b * b - times(4, a * c);
    const long double twice = 2.0L * a.value();
    const long double middle = -b.value() / twice;
    const long double half = std::sqrt(std::abs(discriminant.value())) / std::abs(twice);
    Roots roots;
    if (discriminant.sign() < 0) {
        roots.imaginary = narrowed(half);
        roots.first = roots.second = narrowed(middle);
        return roots;
    }
    const long double larger = middle < 0.0L ? middle - half : middle + half;
    roots.first = narrowed(larger);
    roots.second = narrowed(larger == 0.0L ? 0.0L : c.value() / a.value() / larger);
    return roots;
}

/// Newton's steps for a simple root of a cubic, which mend what a shift has lost.
long double polished(const std::array<long double, 4>& a, long double x) {
    constexpr int kSteps = 4;
    for (int step = 0; step < kSteps; ++step) {
        const long double value = ((a[3] * x + a[2]) * x + a[1]) * x + a[0];
        const long double slope = (3.0L * a[3] * x + 2.0L * a[2]) * x + a[1];
        const long double next = x - value / slope;
        if (!std::isfinite(next)) {
            break;
        }
        x = next;
    }
    return x;
}

/// Cardano's form of x³ + ... with x = y - a2 / (3 a3): y³ + 3 Q y - 2 R = 0, D = Q³ + R².
class Cubic {
public:
    explicit Cubic(const std::vector<ExactInteger>& a)
        : coefficients_{a[0].value(), a[1].value(), a[2].value(), a[3].value()} {
        const ExactInteger p = times(3, a[3] * a[1]) - a[2] * a[2];
        const ExactInteger r =
            times(9, a[3] * a[2] * a[1]) - times(27, a[3] * a[3] * a[0]) - times(2, a[2] * a[2] * a[2]);
        const ExactInteger d = times(4, p * p * p) + r * r;
        const long double lead = a[3].value();
        q_ = p.value() / (9.0L * lead * lead);
        r_ = r.value() / (54.0L * lead * lead * lead);
        d_ = d.value() / (2916.0L * lead * lead * lead * lead * lead * lead);
        kind_ = d.sign();
        shift_ = -a[2].value() / (3.0L * lead);
    }

    [[nodiscard]] Roots roots() const { return kind_ > 0 ? oneReal() : kind_ == 0 ? severalEqual() : threeReal(); }

private:
    [[nodiscard]] Roots oneReal() const {
        const long double e = std::sqrt(d_);
        // The larger of the two cube roots; their product is -Q.
        const long double t = std::cbrt(r_ < 0.0L ? r_ - e : r_ + e);
        const long double u = -q_ / t;
        // t + u and |t - u| without a difference.
        const long double y = 2.0L * r_ / (t * t + q_ + u * u);
        const long double apart = 2.0L * e / (t * t - q_ + u * u);
        const long double real = polished(coefficients_, y + shift_);
        Roots found;
        found.third = narrowed(real);
        constexpr long double kHalfRootOfThree = 0.86602540378443864676L;
        found.imaginary = narrowed(kHalfRootOfThree * apart);
        // The three add up to -a2 / a3.
        found.first = found.second = narrowed((3.0L * shift_ - real) / 2.0L);
        return found;
    }

    /// A double root, or a triple one.
    [[nodiscard]] Roots severalEqual() const {
        const long double y = std::cbrt(r_);
        Roots found;
        found.third = narrowed(2.0L * y + shift_);
        found.first = found.second = narrowed(shift_ - y);
        return found;
    }

    [[nodiscard]] Roots threeReal() const {
        constexpr long double kThirdOfACircle = 2.09439510239319549231L;
        const long double angle = std::atan2(std::sqrt(-d_), r_) / 3.0L;
        const auto root = [&](long double turn) {
            return narrowed(polished(coefficients_, 2.0L * std::sqrt(-q_) * std::cos(angle + turn) + shift_));
        };
        Roots found;
        found.third = root(0.0L);
        found.first = root(kThirdOfACircle);
        found.second = root(-kThirdOfACircle);
        const bool ordered = std::abs(found.first) == std::abs(found.second)
                                 ? found.first >= found.second
                                 : std::abs(found.first) > std::abs(found.second);
        if (!ordered) {
            std::swap(found.first, found.second);
        }
        return found;
    }

    std::array<long double, 4> coefficients_;
    long double q_;
    long double r_;
    long double d_;
    long double shift_;
    int kind_;
};

std::string term(double coefficient, bool leads, bool constant, char decimal) {
    if (!constant && (coefficient == 1.0 || coefficient == -1.0)) {
        return coefficient < 0.0 ? "-" : (leads ? "" : "+");
    }
    return (coefficient >= 0.0 && !leads ? "+" : "") + plainText(coefficient, decimal);
}

}  // namespace

Roots SolvePoly(std::span<const std::string> coefficients, char decimal) {
    const std::vector<ExactInteger> a = wholeCoefficients(coefficients, decimal);
    if (a.back().sign() == 0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    switch (a.size()) {
        case 2:
            return {.first = narrowed(-a[0].value() / a[1].value())};
        case 3:
            return quadraticRoots(a[0], a[1], a[2]);
        default:
            return Cubic(a).roots();
    }
}

double CalcPoly(std::span<const double> coefficients, double x) {
    double value = 0.0;
    for (std::size_t i = coefficients.size(); i-- > 0;) {
        value = value * x + coefficients[i];
    }
    return checked(value);
}

std::string equationText(std::span<const double> coefficients, char decimal) {
    static constexpr std::array<std::string_view, 4> kPowers{"", "x ", "x² "_t, "x³ "_t};
    std::string text = "(";
    for (std::size_t i = coefficients.size(); i-- > 0;) {
        text += term(coefficients[i], i + 1 == coefficients.size(), i == 0, decimal);
        text += kPowers.at(i);
    }
    return text + ")";
}

}  // namespace tallyforge
