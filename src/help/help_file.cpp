// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_file.h"

#include "help/page_reader.h"

#include <cstdint>
#include <string>

namespace tallyforge {

namespace {

constexpr std::string_view kHead = "Tallyforge help 1\n";
constexpr std::size_t kChecksumBytes = 8;

/// FNV-1a with 64 bits.
std::uint64_t checksumOf(std::string_view bytes) {
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const char c : bytes) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return sum;
}

/// Numbers are written lowest byte first.
void putNumber(std::string& out, std::uint64_t number, std::size_t bytes) {
    constexpr unsigned kByte = 8;
    for (std::size_t i = 0; i < bytes; ++i, number >>= kByte) {
        out += static_cast<char>(number & 0xFFU);
    }
}

constexpr std::size_t kNumberBytes = 4;

void put(std::string& out, int number) {
    putNumber(out, static_cast<std::uint64_t>(number), kNumberBytes);
}

void put(std::string& out, const std::string& text) {
    putNumber(out, text.size(), kNumberBytes);
    out += text;
}

template <typename Item>
void put(std::string& out, const std::vector<Item>& items) {
    putNumber(out, items.size(), kNumberBytes);
    for (const Item& item : items) {
        put(out, item);
    }
}

struct Damaged {};

class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    std::uint64_t number(std::size_t bytes) {
        constexpr unsigned kByte = 8;
        const std::string_view taken = take(bytes);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < bytes; ++i) {
            value |= static_cast<std::uint64_t>(static_cast<unsigned char>(taken[i])) << (kByte * i);
        }
        return value;
    }

    void get(int& number) {
        constexpr std::uint64_t kMost = 1'000'000;
        const std::uint64_t value = this->number(kNumberBytes);
        if (value > kMost) {
            throw Damaged{};
        }
        number = static_cast<int>(value);
    }

    void get(std::string& text) {
        text = take(number(kNumberBytes));
        if (!isUtf8(text)) {
            throw Damaged{};
        }
    }

    template <typename Item>
    void get(std::vector<Item>& items) {
        // Every item takes bytes, so a count is never larger than what is left.
        const std::uint64_t count = number(kNumberBytes);
        if (count > rest_.size()) {
            throw Damaged{};
        }
        for (std::uint64_t i = 0; i < count; ++i) {
            get(items.emplace_back());
        }
    }

private:
    std::string_view take(std::uint64_t count) {
        if (count > rest_.size()) {
            throw Damaged{};
        }
        const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(count));
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::string_view rest_;
};

/// The parts of a page in the order of the file.
template <typename Page, typename Each>
void eachPart(Page& page, const Each& each) {
    each(page.title);
    each(page.name);
    each(page.file);
    each(page.topics);
    each(page.index);
    each(page.words);
    each(page.dialogs);
    each(page.messages);
    each(page.body);
}

}  // namespace

std::string writeHelpFile(std::span<const HelpPage> pages) {
    std::string contents;
    for (const HelpPage& page : pages) {
        eachPart(page, [&](const auto& part) { put(contents, part); });
    }
    std::string file(kHead);
    putNumber(file, checksumOf(contents), kChecksumBytes);
    return file + contents;
}

std::optional<std::vector<HelpPage>> readHelpFileContents(std::string_view contents) {
    try {
        std::vector<HelpPage> pages;
        for (Reader reader(contents); !reader.atEnd();) {
            eachPart(pages.emplace_back(), [&](auto& part) { reader.get(part); });
        }
        return pages;
    } catch (const Damaged&) {
        return std::nullopt;
    }
}

std::optional<std::vector<HelpPage>> readHelpFile(std::string_view bytes) {
    if (!bytes.starts_with(kHead) || bytes.size() < kHead.size() + kChecksumBytes) {
        return std::nullopt;
    }
    const std::uint64_t sum = Reader(bytes.substr(kHead.size())).number(kChecksumBytes);
    const std::string_view contents = bytes.substr(kHead.size() + kChecksumBytes);
    return sum == checksumOf(contents) ? readHelpFileContents(contents) : std::nullopt;
}

}  // namespace tallyforge
