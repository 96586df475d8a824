// SPDX-License-Identifier: GPL-3.0-or-later
//
// A value that is lent for a while, as a key of another keypad for one press: it is put back when
// the borrower goes out of scope, whatever happened meanwhile.
#pragma once

#include <utility>

namespace tallyforge {

template <typename Value>
class Borrowed {
public:
    /// `held` is `lent` from now on, and what it was before once this is gone.
    Borrowed(Value& held, Value lent) : held_(held), before_(std::exchange(held, std::move(lent))) {}
    ~Borrowed() { held_ = std::move(before_); }
    Borrowed(const Borrowed&) = delete;
    Borrowed& operator=(const Borrowed&) = delete;

    [[nodiscard]] const Value& before() const { return before_; }

private:
    Value& held_;
    Value before_;
};

}  // namespace tallyforge
