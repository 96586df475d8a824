// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/unit_document.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

TEST(UnitDocument, IsWhatTheManualHas) {
    std::ifstream in(TALLYFORGE_SOURCE_ROOT "/docs/units.md", std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(in), {}};
    EXPECT_EQ(file, tallyforge::unitDocument()) << "run tools/units_doc";
}
