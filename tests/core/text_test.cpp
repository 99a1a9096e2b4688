#include "core/text.h"

#include <gtest/gtest.h>
#include <random>

namespace velmora::core {
namespace {

Bytes thereAndBack(BytesView bytes) {
  return toBytes(fromBytes(bytes));
}

TEST(TextBytes, ValidUtf8BecomesItsCharacters) {
  EXPECT_EQ(fromBytes("Gore\xC5\xA1"
                      "a"),
            u"Gore\u0161a");
  EXPECT_EQ(fromBytes("\xE2\x82\xAC"), u"\u20AC");
  EXPECT_EQ(fromBytes("\xF0\x9D\x84\x9E"), u"\U0001D11E");
  EXPECT_EQ(length(fromBytes("\xF0\x9D\x84\x9E")), 2);
  EXPECT_EQ(fromBytes(Bytes("a\0b", 3)), Text(u"a\0b", 3));
}

TEST(TextBytes, EachByteThatIsNoUtf8IsKeptAsItsOwnCharacter) {
  EXPECT_EQ(fromBytes("a\xE9z"), u"a\xDCE9z");
  EXPECT_EQ(fromBytes("\xC0\xAF"), u"\xDCC0\xDCAF") << "overlong";
  EXPECT_EQ(fromBytes("\xED\xB2\x80"), u"\xDCED\xDCB2\xDC80") << "an encoded surrogate";
  EXPECT_EQ(fromBytes("\xED\xA0\xB4\xED\xB4\x9E").size(), 6U) << "a pair encoded one by one";
  EXPECT_EQ(fromBytes("\xF4\x90\x80\x80").size(), 4U) << "beyond the last character";
  EXPECT_EQ(fromBytes("\xE2\x82"), u"\xDCE2\xDC82") << "cut short";
}

TEST(TextBytes, EveryByteStringSurvives) {
  std::mt19937 random(1);
  // Mostly bytes that begin or continue sequences, so that near misses of all kinds come up.
  const BytesView likely("a\x80\x82\x9F\xA0\xBF\xC2\xC3\xE0\xE2\xED\xEF\xF0\xF4\xF5\xFF");
  for (int round = 0; round < 20000; ++round) {
    Bytes bytes(random() % 8, '\0');
    for (char& byte : bytes) byte = likely[random() % likely.size()];
    ASSERT_EQ(thereAndBack(bytes), bytes);
  }
}

TEST(TextBytes, AHalfOfAPairThatACutLeftBecomesTheReplacementCharacter) {
  EXPECT_EQ(toBytes(u"a\xD834"), "a\xEF\xBF\xBD");
  EXPECT_EQ(toBytes(u"\xDD1E"
                    u"a"),
            "\xEF\xBF\xBD"
            "a");
}

TEST(TextCase, MapsOneToOneOverAllOfUnicode) {
  EXPECT_EQ(upper(u"abc xyz 1\u00E4\u0161\u045B\u03C9\u00FF"), u"ABC XYZ 1\u00C4\u0160\u040B\u03A9\u0178");
  EXPECT_EQ(lower(u"ABC XYZ 1\u00C4\u0160\u040B\u03A9\u0178"), u"abc xyz 1\u00E4\u0161\u045B\u03C9\u00FF");
  EXPECT_EQ(upper(u"\u01C6\u1E01\u1F80\uFF41"), u"\u01C4\u1E00\u1F88\uFF21");
  EXPECT_EQ(upper(u"\U00010428\U0001E922"), u"\U00010400\U0001E900") << "beyond the basic plane";
  EXPECT_EQ(lower(u"\U00010400"), u"\U00010428");
}

TEST(TextCase, WhatHasNoSinglePartnerStays) {
  EXPECT_EQ(upper(u"\u00DF\uFB00\u0149"), u"\u00DF\uFB00\u0149");
  EXPECT_EQ(upper(u"\xDCE9\xD800"), u"\xDCE9\xD800");
  EXPECT_EQ(lower(u"\u0130"), u"i");
}

TEST(TextCase, ComparesWithoutRegardToCase) {
  EXPECT_TRUE(equalNoCase(u"pevacid3v1.TXT", u"pevacID3v1.txt"));
  EXPECT_TRUE(equalNoCase(u"\U00010428", u"\U00010400"));
  EXPECT_FALSE(equalNoCase(u"abc", u"ab"));
  EXPECT_TRUE(startsWithNoCase(u"The \u0160arlo", u"the \u0161"));
  EXPECT_FALSE(startsWithNoCase(u"th", u"the"));
}

TEST(TextParts, BlanksAtTheEndsGo) {
  EXPECT_EQ(trim(u"  a b \t "), u"a b \t");
  EXPECT_EQ(trimLeft(u"  a "), u"a ");
  EXPECT_EQ(trimRight(u" a  "), u" a");
  EXPECT_EQ(trim(u"   "), u"");
}

TEST(TextParts, CutsClampToTheText) {
  EXPECT_EQ(left(u"abc", 2), u"ab");
  EXPECT_EQ(left(u"abc", 9), right(u"abc", 9));
  EXPECT_EQ(left(u"abc", -1), u"");
  EXPECT_EQ(right(u"abc", 2), u"bc");
  EXPECT_EQ(dropRight(u"abc", 1), u"ab");
  EXPECT_EQ(dropRight(u"abc", 4), u"");
}

TEST(TextParts, PositionsCountFromOne) {
  for (const auto& [from, found] : {std::pair{1, 2}, {3, 4}, {5, 0}, {99, 0}, {-5, 2}})
    EXPECT_EQ(position(u"a-b-c", u"-", from), found);
  EXPECT_EQ(position(u"abc", u""), 0);
}

TEST(TextParts, ReplacementDoesNotLookAtItsOwnWork) {
  EXPECT_EQ(replaceAll(u"a__b_", u"_", u" "), u"a  b ");
  EXPECT_EQ(replaceAll(u"aaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(replaceAll(u"abc", u"", u"x"), u"abc");
}

}  // namespace
}  // namespace velmora::core
