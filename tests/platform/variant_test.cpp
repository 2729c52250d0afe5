#include "gabarito/platform/variant.h"

#include <gtest/gtest.h>

#include "raised.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

TEST(Variant, HasATextANumberAndATruth) {
  const struct {
    Variant value;
    View text;
    std::int32_t number;
  } rows[] = {{Empty{}, u"", 0},    {true, u"True", -1},
              {false, u"False", 0}, {std::int32_t{-7}, u"-7", -7},
              {2.5, u"2,5", 2},     {u"1.234,5", u"1.234,5", 1234}};
  for (const auto& row : rows) {
    EXPECT_EQ(ToText(row.value), row.text);
    EXPECT_EQ(ToInt32(row.value), row.number) << row.number;
    EXPECT_EQ(ToBoolean(row.value), row.number != 0) << row.number;
  }
  EXPECT_TRUE(ToBoolean(u"TRUE"));
  EXPECT_FALSE(ToBoolean(u"false"));
  EXPECT_TRUE(ToBoolean(0.25));
}

TEST(Variant, RefusesAFormThatItsTypeDoesNotHave) {
  for (const Variant& value : {Variant(Null{}), Variant(std::make_shared<StdFont>()), MakeArray({})}) {
    EXPECT_EQ(RaisedBy([&] { ToText(value); }), kTypeMismatch) << value.index();
    EXPECT_EQ(RaisedBy([&] { ToInt32(value); }), kTypeMismatch) << value.index();
    EXPECT_EQ(RaisedBy([&] { ToBoolean(value); }), kTypeMismatch) << value.index();
  }
  EXPECT_EQ(RaisedBy([] { ToInt32(Variant(u"abc")); }), kTypeMismatch);
  EXPECT_EQ(RaisedBy([] { ToInt32(Variant(1e10)); }), kOverflow);
  EXPECT_EQ(RaisedBy([] { ToFont(Variant(Empty{})); }), kTypeMismatch);
}

TEST(Variant, IsTheSameByTypeAndValueAFontByItsLookAnArrayByIdentity) {
  const auto font = std::make_shared<StdFont>();
  const auto twin = std::make_shared<StdFont>();
  EXPECT_TRUE(SameValue(font, twin));
  EXPECT_EQ(ToFont(font), font);
  twin->Bold = true;
  EXPECT_FALSE(SameValue(font, twin));
  EXPECT_FALSE(SameValue(font, FontRef()));
  EXPECT_TRUE(SameValue(FontRef(), FontRef()));
  EXPECT_FALSE(SameValue(std::int32_t{1}, 1.0));
  const Variant array = MakeArray({Empty{}}, 3);
  EXPECT_TRUE(SameValue(array, array));
  EXPECT_FALSE(SameValue(array, MakeArray({Empty{}}, 3)));
}

}  // namespace
}  // namespace gabarito
