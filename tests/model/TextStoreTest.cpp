// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/detail/TextStore.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

#include "base/File.h"

namespace clipvane::test {
namespace {

FileBytes bytesOf(std::string_view text) {
    auto bytes = std::make_unique<char[]>(text.size());
    text.copy(bytes.get(), text.size());
    return {std::move(bytes), text.size()};
}

TEST(TextStore, KeptTexts_AreNotCopied) {
    TextStore store;
    FileBytes file = bytesOf("of a file");
    const char* const place = file.view().data();
    EXPECT_EQ(store.keep(std::move(file)).data(), place);

    std::string text(100, 'x');
    const char* const textPlace = text.data();
    EXPECT_EQ(store.keep(std::move(text)).data(), textPlace);
}

/// Texts of all sizes, those that a string keeps within itself among them.
TEST(TextStore, GrownMovedAndCopied_TextsStayWhereTheyAre) {
    std::vector<std::string> expected;
    std::vector<std::string_view> views;
    auto store = std::make_unique<TextStore>();
    for (const std::size_t size :
         {0U, 1U, 8U, 15U, 16U, 100U, 5000U, 8191U, 8192U, 8193U, 65536U, 200000U}) {
        for (int i = 0; i < 20; ++i) {
            expected.push_back(std::string(size, static_cast<char>('a' + i)));
            views.push_back(i % 2 == 0 ? store->copy(expected.back())
                                       : store->keep(std::string(expected.back())));
        }
    }
    std::optional<TextStore> copy(*store);
    TextStore moved(std::move(*store));
    store.reset();
    EXPECT_EQ(std::vector<std::string>(views.begin(), views.end()), expected);
    moved = {};
    EXPECT_EQ(std::vector<std::string>(views.begin(), views.end()), expected);
}

TEST(TextStore, AddedToACopy_TheOriginalKeepsItsOwn) {
    TextStore store;
    store.copy("first");
    TextStore copy(store);
    const std::string_view ofCopy = copy.copy("of the copy");
    const std::string_view ofStore = store.copy("of the store");
    EXPECT_EQ(ofCopy, "of the copy");
    EXPECT_EQ(ofStore, "of the store");
}

TEST(TextStore, AddedToWhatWasMovedFrom_TheOtherKeepsItsOwn) {
    TextStore store;
    store.copy("first");
    TextStore moved(std::move(store));
    store = {};
    const std::string_view again = store.copy("again");
    const std::string_view second = moved.copy("second");
    EXPECT_EQ(again, "again");
    EXPECT_EQ(second, "second");
}

}  // namespace
}  // namespace clipvane::test
