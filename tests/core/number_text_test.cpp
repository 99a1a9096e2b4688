#include "core/number_text.h"

#include <gtest/gtest.h>
#include <limits>
#include <utility>

namespace velmora::core {
namespace {

TEST(NumberText, NumbersLeadWithTheirSignPlaceAndHaveNoZerosToSpare) {
  EXPECT_EQ(number(std::int64_t{12}) + number(std::int64_t{0}) + number(std::int64_t{-3}), u" 12 0-3");
  EXPECT_EQ(number(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
  EXPECT_EQ(plain(std::int64_t{12}) + plain(0.5), u"12.5");
  const std::pair<double, TextView> cases[] = {{0.5, u" .5"},
                                               {-0.25, u"-.25"},
                                               {3.0, u" 3"},
                                               {-0.0, u" 0"},
                                               {0.1 + 0.2, u" .3"},
                                               {10.05, u" 10.05"},
                                               {999999999999999.0, u" 999999999999999"},
                                               {1e15, u" 1E+15"},
                                               {1.5e-7, u" 1.5E-07"}};
  for (const auto& [given, text] : cases) EXPECT_EQ(number(given), text);
}

TEST(NumberText, ReadingForgivesAndWhatIsNoNumberIsZero) {
  const std::pair<TextView, double> cases[] = {
      {u" 12", 12},      {u" 1 2 3 ", 123}, {u"- 5", -5},    {u"+.5x", .5},  {u"1.2.3", 1.2},
      {u"12 songs", 12}, {u"1,5", 1},       {u"1.5E2", 150}, {u"1d+2", 100}, {u"25e-1", 2.5},
      {u"12 e", 12},     {u"", 0},          {u"   ", 0},     {u"abc", 0},    {u".", 0},
      {u"-", 0},         {u"E5", 0},        {u"--1", 0},     {u"$1", 0}};
  for (const auto& [text, number] : cases) EXPECT_EQ(value(text), number);
}

TEST(NumberText, NumbersBeyondAllBoundsStayFinite) {
  EXPECT_EQ(value(u"1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(value(u"-1e999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(value(u"1e-999"), 0);
  EXPECT_EQ(intValue(u"99999999999"), std::numeric_limits<int>::max());
  EXPECT_EQ(intValue(u"-1e30"), std::numeric_limits<int>::min());
}

TEST(NumberText, AHalfGoesToTheEvenNeighbour) {
  EXPECT_EQ(roundHalfEven(2.5), 2);
  EXPECT_EQ(roundHalfEven(3.5), 4);
  EXPECT_EQ(roundHalfEven(-2.5), -2);
  EXPECT_EQ(roundHalfEven(2.51), 3);
  EXPECT_EQ(roundHalfEven(0.125, 2), 0.12);
  EXPECT_EQ(roundHalfEven(0.375, 2), 0.38);
  EXPECT_EQ(intValue(u"2.5"), 2);
}

TEST(NumberText, SizesChangeTheirUnitAtTenTwentyFour) {
  constexpr double mega = 1024.0 * 1024;
  const std::pair<double, TextView> cases[] = {{0, u" 0 KB"},
                                               {512, u" .5 KB"},
                                               {1536, u" 1.5 KB"},
                                               {mega - 1, u" 1024 KB"},
                                               {3 * mega, u" 3 MB"},
                                               {2.25 * 1024 * mega, u" 2.25 GB"},
                                               {5000 * 1024 * mega, u" 5000 GB"}};
  for (const auto& [bytes, text] : cases) EXPECT_EQ(sizeText(bytes), text);
}

}  // namespace
}  // namespace velmora::core
