#include "gabarito/keyinject/send_input.h"

#include <gtest/gtest.h>

#include <chrono>

#include "allocations.h"
#include "gabarito/platform/erro.h"
#include "recording_user32.h"

namespace gabarito {
namespace {

struct SendKeyStringTest : testing::Test {
  RecordingUser32 user32;
  SystemVersion system;
  RecordingDialogs dialogs;

  void Send(std::u16string_view text) { SendKeyString(user32, system, dialogs, text, true); }
  std::int32_t ErrorOf(std::u16string_view text) {
    try {
      Send(text);
    } catch (const Erro& erro) {
      return erro.Number();
    }
    return 0;
  }
};

std::u16string Letters(std::size_t count) { return std::u16string(count, u'a'); }

TEST_F(SendKeyStringTest, AllRecordsThatFitGoOutInOneCall) {
  const struct {
    std::u16string text;
    std::size_t records;
  } rows[] = {
      {Letters(300), 600},
      {u"{a 256}", 512},
      {u"(" + Letters(256) + u")", 512},
      {std::u16string(256, u'+'), 512},
      // 486 records leave the bound as it is, 26 are free; 488 raise it by 511.
      {Letters(243) + u"{a 13}", 512},
      {Letters(244) + u"{a 267}", 1022},
      {u"{a 256}{a 255}", 1022},
      {Letters(100000), 200000},
  };
  for (const auto& row : rows) {
    user32.calls = 0;
    ASSERT_EQ(ErrorOf(row.text), 0) << "row " << &row - rows;
    EXPECT_EQ(user32.calls, 1) << "row " << &row - rows;
    EXPECT_EQ(user32.records.size(), row.records) << "row " << &row - rows;
  }
}

TEST_F(SendKeyStringTest, AnErrorSendsNothingAndLeavesNothingBehind) {
  const struct {
    std::u16string text;
    std::int32_t number;
  } rows[] = {
      {u"{a 257}", 9},
      {u"+{a 256}", 9},
      {u"(" + Letters(257) + u")", 9},
      {Letters(243) + u"{a 14}", 9},
      {Letters(244) + u"{a 268}", 9},
      {u"{a 256}{a 256}", 9},
      {u"{a 32767}", 9},
      {std::u16string(100000, u'+'), 9},
      {u"{a 32767.5}", 6},
      {u"+({{b 32768}", 6},
      {u"+{b 1e400}", 6},
  };
  for (const auto& row : rows) {
    user32.calls = 0;
    EXPECT_EQ(ErrorOf(row.text), row.number) << "row " << &row - rows;
    EXPECT_EQ(user32.calls, 0) << "row " << &row - rows;
    Send(u"A");
    EXPECT_EQ(user32.Sent(), "+16 +65 -65:1E -16") << "row " << &row - rows;
  }
  const std::u16string_view endless(u"a", std::size_t{1} << 31);
  EXPECT_EQ(ErrorOf(endless), 6);
}

TEST_F(SendKeyStringTest, TheOldestSystemsGetTheStockSendKeys) {
  const struct {
    std::int32_t platform, major, minor;
    bool wait;
    std::u16string_view keys;
  } rows[] = {{1, 4, 0, true, u"wait +{TAB}"}, {1, 4, 9, false, u"go +{TAB}"},
              {1, 4, 10, true, u""},           {1, 5, 0, true, u""},
              {1, 3, 51, true, u""},           {2, 4, 0, true, u""}};
  for (const auto& row : rows) {
    user32.calls = 0;
    dialogs.keys.clear();
    system.version = {.dwMajorVersion = row.major, .dwMinorVersion = row.minor, .dwPlatformId = row.platform};
    SendKeyString(user32, system, dialogs, u"+{TAB}", row.wait);
    EXPECT_EQ(dialogs.keys, row.keys) << "row " << &row - rows;
    EXPECT_EQ(user32.calls, row.keys.empty() ? 1 : 0) << "row " << &row - rows;
  }
}

TEST_F(SendKeyStringTest, AWarmThreadAllocatesNothing) {
  const std::u16string_view texts[] = {u"{TAB}", u"+{TAB}", u"{PRINTSCREEN 2 x}", u"(ab\u20AC)~{a"};
  for (const auto text : texts) Send(text);
  const int before = Allocations();
  for (const auto text : texts) Send(text);
  EXPECT_EQ(Allocations(), before);
}

TEST_F(SendKeyStringTest, OpenersWithoutACloserTakeLinearTime) {
  const std::u16string_view pairs[] = {u"((", u"{{", u"({", u"{)", u"(}", u"+("};
  for (const auto pair : pairs) {
    std::u16string text;
    while (text.size() < 1'000'000) text += pair;
    const auto start = std::chrono::steady_clock::now();
    ErrorOf(text);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << "pair " << &pair - pairs;
  }
}

}  // namespace
}  // namespace gabarito
