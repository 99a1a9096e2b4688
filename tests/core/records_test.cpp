#include "core/records.h"

#include <gtest/gtest.h>

namespace velmora::core::records {
namespace {

using Elements = std::vector<Element>;

Bytes written(const Elements& elements) {
  Bytes out;
  for (const Element& element : elements) write(out, element);
  return out;
}

TEST(Records, AreQuotedTextMarksAndEmptyLines) {
  EXPECT_EQ(written({u"Gore\u0161a", true, false, Element(), u""}),
            "\"Gore\xC5\xA1"
            "a\"\r\n#TRUE#\r\n#FALSE#\r\n\r\n\"\"\r\n");
}

TEST(Records, AllKindsOfElementSurvive) {
  const Elements elements = {u" 12",  true,      Element(), false,          u"",
                             u"a, b", u"#TRUE#", u"\xDCE9", u"two\r\nlines"};
  EXPECT_EQ(readAll(written(elements)), elements);
}

TEST(Records, ATextWithAQuoteComesBackCutAndMovesNoOtherRecord) {
  const Elements quoted = {u"7\", 12\"", u"\"Weird\" one, two", u"a\"b\r\nc", u"next", true};
  EXPECT_EQ(readAll(written(quoted)), (Elements{u"7", u"", u"a", u"next", true}));
}

TEST(Records, AnUnquotedFieldRunsToTheCommaOrLineEnd) {
  EXPECT_EQ(readAll("one, two\r\n 3\n#TRUE#\rlast"), (Elements{u"one", u"two", u"3", true, u"last"}));
}

TEST(Records, ATornTailIsTold) {
  Reader reader("\"whole\"\r\n\"to");
  EXPECT_EQ(reader.next(), Element(u"whole"));
  EXPECT_FALSE(reader.torn());
  EXPECT_EQ(reader.next(), Element(u"to"));
  EXPECT_TRUE(reader.torn());
  EXPECT_FALSE(reader.next());
}

}  // namespace
}  // namespace velmora::core::records
