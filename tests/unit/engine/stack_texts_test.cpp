// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the texts on the stack may take of the memory.
#include "engine/engine_state.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace tallyforge {
namespace {

void push(StackState& stack, const ValueCell& text) {
    stack.makeRoom(stack.StackPtr);
    stack.expectText(text.textView().size());
    stack.Stack[static_cast<std::size_t>(stack.StackPtr)] = text;
    stack.StackPtr += 1;
}

/// Pushes texts of that size until one is refused.
void fill(StackState& stack, std::size_t size) {
    while (true) {
        push(stack, ValueCell{std::string(size, '1')});
    }
}

TEST(StackTexts, HaveABoundWhateverTheirLength) {
    for (const std::size_t size : {std::size_t{66}, std::size_t{4096}}) {
        StackState stack;
        EXPECT_THROW(fill(stack, size), std::bad_alloc);
        const std::size_t bytes = static_cast<std::size_t>(stack.depth()) * ValueCell::bytesOfText(size);
        EXPECT_GE(bytes, StackState::kMostTextBytes);
        EXPECT_LE(bytes, StackState::kMostTextBytes / 8 * 9 + 8192);
        EXPECT_THROW(push(stack, ValueCell{std::string(size, '1')}), std::bad_alloc) << "and so the next one";
    }
}

TEST(StackTexts, MakeRoomWhereTheyHaveBeenDropped) {
    StackState stack;
    EXPECT_THROW(fill(stack, 4096), std::bad_alloc);
    const int full = stack.StackPtr;
    stack.StackPtr = full / 2;
    EXPECT_NO_THROW(push(stack, ValueCell{std::string(4096, '2')}));
    EXPECT_TRUE(stack.slot(full - 1).isEmpty()) << "what is left above the stack goes";
    EXPECT_EQ(stack.slot(full / 2 - 1).textView().size(), 4096U);
    EXPECT_THROW(fill(stack, 4096), std::bad_alloc);
    EXPECT_GE(stack.StackPtr, full - 1);
}

TEST(StackTexts, CountOnceWhereTheyAreCopies) {
    StackState stack;
    const ValueCell text{std::string(4096, '1')};
    for (int element = 0; element < kMostElements; ++element) {
        push(stack, text);
    }
    EXPECT_EQ(stack.depth(), kMostElements);
    EXPECT_THROW(push(stack, text), std::bad_alloc) << "the stack itself is full";
}

}  // namespace
}  // namespace tallyforge
