#include "hosts/kit/text_line.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace gabarito::kit {
namespace {

TEST(TextLine, ATwinHoldsTheSameAfterAnyEdits) {
  std::mt19937 dice(1);
  const auto below = [&](int n) { return static_cast<std::int32_t>(dice() % static_cast<unsigned>(n)); };
  TextLine lines[3];  // the third takes the twins from each other now and then
  for (int step = 0; step < 20'000; ++step) {
    TextLine& line = lines[below(2)];
    const std::u16string text(static_cast<std::size_t>(below(4)), static_cast<char16_t>(u'a' + below(26)));
    switch (below(4)) {
      case 0:
        line.SelStart(below(12));
        line.SelLength(below(5));
        break;
      case 1:
        line.Text(text);
        break;
      default:
        line.SelStart(below(2) == 0 ? below(12) : 100);
        line.Replace(text, below(2) * 9);
    }
    TextLine& copy = lines[below(20) == 0 ? 2 : below(2)];
    copy.CopyOf(line);
    ASSERT_EQ(copy.Text(), line.Text()) << "step " << step;
  }
}

TEST(TextLine, TypingOnCostsTheSameAtEachLength) {
  TextLine line, twin;
  const auto start = std::chrono::steady_clock::now();
  for (int key = 0; key < 300'000; ++key) {
    line.Replace(u"7", 0);
    twin.CopyOf(line);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_EQ(twin.Text().size(), 300'000u);
}

}  // namespace
}  // namespace gabarito::kit
