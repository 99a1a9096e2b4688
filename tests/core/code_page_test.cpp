#include "core/code_page.h"

#include <gtest/gtest.h>

namespace velmora::core {
namespace {

TEST(CodePage, EveryByteSurvives) {
  Bytes all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(fromCodePage(all).size(), 256U);
  EXPECT_EQ(toCodePage(fromCodePage(all)), all);
}

TEST(CodePage, HasLettersOfItsOwnBetween80And9F) {
  EXPECT_EQ(fromCodePage("\x80\x8A\x9A\x9F\xE9"), u"\u20AC\u0160\u0161\u0178\u00E9");
  EXPECT_EQ(toCodePage(u"\u017D\u2013\u2019"), "\x8E\x96\x92");
}

TEST(CodePage, WhatItLacksIsAQuestionMark) {
  EXPECT_EQ(toCodePage(u"\u0107a\u0440"), "?a?");
  EXPECT_EQ(toCodePage(u"\U0001D11E!"), "?!") << "a pair is one character";
  EXPECT_EQ(toCodePage(u"\xDCE9"), "?") << "a byte of a name that is no text";
}

}  // namespace
}  // namespace velmora::core
