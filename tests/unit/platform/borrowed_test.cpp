// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/borrowed.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace tallyforge {
namespace {

TEST(Borrowed, PutsTheValueBackAtTheEndOfItsScope) {
    std::string text = "own";
    {
        const Borrowed lent{text, std::string("lent")};
        EXPECT_EQ(text, "lent");
        EXPECT_EQ(lent.before(), "own");
        text = "changed meanwhile";
    }
    EXPECT_EQ(text, "own");
}

TEST(Borrowed, PutsItBackWhenAFailurePassesToo) {
    bool flag = true;
    try {
        const Borrowed lent{flag, false};
        throw std::runtime_error("failed");
    } catch (const std::runtime_error&) {
        EXPECT_TRUE(flag);
    }
}

}  // namespace
}  // namespace tallyforge
