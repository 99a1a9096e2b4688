#include "core/number_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace velmora::core {
namespace {

TEST(NumberText, WholeNumbersLeadWithTheirSignPlace) {
  EXPECT_EQ(number(std::int64_t{12}), u" 12");
  EXPECT_EQ(number(std::int64_t{0}), u" 0");
  EXPECT_EQ(number(std::int64_t{-3}), u"-3");
  EXPECT_EQ(number(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
  EXPECT_EQ(plain(std::int64_t{12}), u"12");
}

TEST(NumberText, FractionsHaveNoLeadingAndNoTrailingZeros) {
  EXPECT_EQ(number(0.5), u" .5");
  EXPECT_EQ(number(-0.25), u"-.25");
  EXPECT_EQ(number(3.0), u" 3");
  EXPECT_EQ(number(-0.0), u" 0");
  EXPECT_EQ(number(0.1 + 0.2), u" .3") << "15 significant digits";
  EXPECT_EQ(number(10.05), u" 10.05");
  EXPECT_EQ(plain(0.5), u".5");
}

TEST(NumberText, VeryLargeAndVerySmallNumbersHaveAnExponent) {
  EXPECT_EQ(number(999999999999999.0), u" 999999999999999");
  EXPECT_EQ(number(1e15), u" 1E+15");
  EXPECT_EQ(number(1.5e-7), u" 1.5E-07");
}

TEST(NumberText, ReadingForgives) {
  EXPECT_EQ(value(u" 12"), 12);
  EXPECT_EQ(value(u" 1 2 3 "), 123) << "blanks anywhere";
  EXPECT_EQ(value(u"- 5"), -5);
  EXPECT_EQ(value(u"+.5x"), .5);
  EXPECT_EQ(value(u"1.2.3"), 1.2);
  EXPECT_EQ(value(u"12 songs"), 12);
  EXPECT_EQ(value(u"1,5"), 1);
}

TEST(NumberText, ReadsBothLettersOfTheExponent) {
  EXPECT_EQ(value(u"1.5E2"), 150);
  EXPECT_EQ(value(u"1d+2"), 100);
  EXPECT_EQ(value(u"25e-1"), 2.5);
  EXPECT_EQ(value(u"12 e"), 12) << "an exponent without digits is none";
}

TEST(NumberText, WhatIsNoNumberIsZero) {
  for (const TextView text : {u"", u"   ", u"abc", u".", u"-", u"E5", u"--1", u"$1"})
    EXPECT_EQ(value(text), 0);
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
  EXPECT_EQ(sizeText(0), u" 0 KB");
  EXPECT_EQ(sizeText(512), u" .5 KB");
  EXPECT_EQ(sizeText(1536), u" 1.5 KB");
  EXPECT_EQ(sizeText(1024.0 * 1024 - 1), u" 1024 KB") << "rounded after the unit was chosen";
  EXPECT_EQ(sizeText(3.0 * 1024 * 1024), u" 3 MB");
  EXPECT_EQ(sizeText(2.25 * 1024 * 1024 * 1024), u" 2.25 GB");
  EXPECT_EQ(sizeText(5000.0 * 1024 * 1024 * 1024), u" 5000 GB") << "the largest unit";
}

}  // namespace
}  // namespace velmora::core
