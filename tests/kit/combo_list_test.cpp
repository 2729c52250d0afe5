#include "hosts/kit/combo_list.h"

#include <gtest/gtest.h>

#include <string>

namespace gabarito::kit {
namespace {

std::u16string Entry(int n) {
  const std::string digits = std::to_string(n);
  return u"entry " + std::u16string(digits.begin(), digits.end());
}

ComboList Filled(int count) {
  ComboList list;
  for (int n = 0; n < count; ++n) list.Add(Entry(n));
  return list;
}

TEST(ComboList, ThatIsFilledLikeAnotherOneSharesItsEntries) {
  const ComboList first = Filled(1000), second = Filled(1000);
  EXPECT_EQ(first.Token(), second.Token());
}

TEST(ComboList, ThatGoesItsOwnWayLeavesTheOtherAlone) {
  ComboList first = Filled(1000), second = Filled(500);
  EXPECT_EQ(first.Token(), second.Token());
  second.Add(u"another");
  EXPECT_NE(first.Token(), second.Token());
  EXPECT_EQ(first.At(500), u"entry 500");
  EXPECT_EQ(second.At(500), u"another");
  EXPECT_EQ(second.At(499), u"entry 499");
  first.Clear();
  EXPECT_EQ(second.Count(), 501u);
}

TEST(ComboList, FindsOnlyWhatIsItsOwnInSharedEntries) {
  ComboList whole = Filled(1000), part = Filled(300);
  ASSERT_EQ(whole.Token(), part.Token());
  EXPECT_EQ(whole.FindBeginning(u"ENTRY 30"), 30);
  EXPECT_EQ(whole.FindBeginning(u"entry 999"), 999);
  EXPECT_EQ(part.FindBeginning(u"entry 999"), -1);
  EXPECT_EQ(part.FindBeginning(u""), 0);
  // An entry that follows the index makes a new one necessary.
  whole.Add(u"Ação");
  EXPECT_EQ(whole.FindBeginning(u"aÇÃ"), 1000);
}

}  // namespace
}  // namespace gabarito::kit
