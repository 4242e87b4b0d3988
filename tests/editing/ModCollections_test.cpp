#include "editing/ModCollections.h"

#include <gtest/gtest.h>

#include <random>

namespace kestrel::editing {
namespace {

class HistoryTest : public testing::Test {
  protected:
    // From one pixel to all of them, inverted-screen pixels too.
    void ChangePixels() {
        const unsigned changes = 1U << random_() % 11;
        for (unsigned i = 0; i < changes; ++i) {
            const auto x = static_cast<int>(random_() % 32);
            const auto y = static_cast<int>(random_() % 32);
            icon_.PicMask.SetPixel(x, y, random_() % 2 == 0 ? gdi::kWhite : gdi::kBlack);
            icon_.PicImage.SetPixel(x, y, random_() & gdi::kWhite);
        }
    }
    void ExpectPlanes(const document::IconDocument& expected) const {
        ASSERT_TRUE(icon_.PicMask.SamePixels(expected.PicMask));
        ASSERT_TRUE(icon_.PicImage.SamePixels(expected.PicImage));
    }

    std::mt19937 random_{11};
    document::IconDocument icon_;
    ModCollections history_{icon_};
};

TEST_F(HistoryTest, EveryEntryComesBackExactly) {
    std::vector<document::IconDocument> kept;
    for (int i = 0; i < 500; ++i) {
        if (i % 7 != 0) ChangePixels();  // else an entry that changes nothing
        kept.push_back(icon_);
        history_.PushUndoSnapshot();
    }
    EXPECT_EQ(history_.UndoCount(), 500U);
    for (std::size_t i = 499; i-- > 0;) {
        ASSERT_TRUE(history_.PopUndoSnapshot());
        ExpectPlanes(kept[i]);
    }
    EXPECT_FALSE(history_.CanUndo());
    EXPECT_FALSE(history_.PopUndoSnapshot());
    EXPECT_EQ(history_.RedoCount(), 499U);
    for (std::size_t i = 1; i < 500; ++i) {
        ASSERT_TRUE(history_.PopRedoSnapshot());
        ExpectPlanes(kept[i]);
    }
    EXPECT_FALSE(history_.PopRedoSnapshot());
    // A new branch in the middle.
    for (int i = 0; i < 250; ++i)
        ASSERT_TRUE(history_.PopUndoSnapshot());
    const document::IconDocument middle = icon_;
    ChangePixels();
    history_.PushUndoSnapshot();
    EXPECT_FALSE(history_.CanRedo());
    ASSERT_TRUE(history_.PopUndoSnapshot());
    ExpectPlanes(middle);
}

TEST_F(HistoryTest, AChangeThatNobodyRecordedIsNotLost) {
    EXPECT_FALSE(history_.PopUndoSnapshot()) << "there is no entry at all";
    history_.PushUndoSnapshot();
    EXPECT_FALSE(history_.CanUndo());
    ChangePixels();
    const document::IconDocument changed = icon_;
    EXPECT_TRUE(history_.CanUndo());
    ASSERT_TRUE(history_.PopUndoSnapshot());
    ExpectPlanes({});
    ASSERT_TRUE(history_.PopRedoSnapshot());
    ExpectPlanes(changed);
}

}  // namespace
}  // namespace kestrel::editing
