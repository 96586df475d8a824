// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/click_sound.h"

#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

namespace tallyforge {

namespace {

constexpr std::uint32_t kRate = 11025;
constexpr std::uint32_t kSamples = kRate * 60 / 1000;

void put(std::vector<std::uint8_t>& wave, std::string_view tag) {
    wave.insert(wave.end(), tag.begin(), tag.end());
}

void put(std::vector<std::uint8_t>& wave, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        wave.push_back(static_cast<std::uint8_t>(value >> (8 * i) & 0xFFU));
    }
}

std::vector<std::uint8_t> makeClick() {
    constexpr std::uint32_t kHeader = 36;
    constexpr double kTone = 880.0;
    constexpr double kDecay = 90.0;
    std::vector<std::uint8_t> wave;
    put(wave, "RIFF");
    put(wave, kHeader + kSamples, 4);
    put(wave, "WAVEfmt ");
    put(wave, 16, 4);
    put(wave, 1, 2);
    put(wave, 1, 2);
    put(wave, kRate, 4);
    put(wave, kRate, 4);
    put(wave, 1, 2);
    put(wave, 8, 2);
    put(wave, "data");
    put(wave, kSamples, 4);
    for (std::uint32_t i = 0; i < kSamples; ++i) {
        const double time = static_cast<double>(i) / kRate;
        const double swing = std::sin(2.0 * std::numbers::pi * kTone * time) * std::exp(-kDecay * time);
        wave.push_back(static_cast<std::uint8_t>(std::lround(128.0 + 60.0 * swing)));
    }
    return wave;
}

}  // namespace

std::span<const std::uint8_t> clickSound() {
    static const std::vector<std::uint8_t> kClick = makeClick();
    return kClick;
}

}  // namespace tallyforge
