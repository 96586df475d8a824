// SPDX-License-Identifier: GPL-3.0-or-later
//
// A formula that refuses its values.
#pragma once

#include "numbers/failure.h"

#include <gtest/gtest.h>

namespace tallyforge {

template <typename Formula>
void expectFailure(FailureNumber number, Formula&& formula) {
    try {
        const double value = formula();
        ADD_FAILURE() << "gives " << value << " instead of failure " << static_cast<int>(number);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), static_cast<int>(number));
    }
}

}  // namespace tallyforge
