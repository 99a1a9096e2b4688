#include "ui/list_state.h"

#include <gtest/gtest.h>

namespace velmora::ui {
namespace {

TEST(ListState, IsFieldsOfNumbersWithALeadingBlank) {
  EXPECT_EQ(writeListState({{1, 20}, {}, {0}}), u" 1, 20,:: 0,:");
  EXPECT_EQ(writeListState({{}, {}}), u"::");
}

TEST(ListState, ComesBackAsItWasWritten) {
  const ListState state = {{}, {3}, {0, 1, 32736}, {0}, {12}, {7}};
  EXPECT_EQ(readListState(writeListState(state), 6), state);
}

TEST(ListState, ReadsWhatItCanOfAnyText) {
  struct Case {
    const char16_t* text;
    ListState fields;
  };
  for (const Case& c : {Case{u"", {{}, {}}}, Case{u"::", {{}, {}}}, Case{u" 1, 2", {{1}, {}}},
                        Case{u"1:2:3:4", {{1}, {2}}}, Case{u"x,,  ,4,:y:", {{4}, {}}},
                        Case{u" 1,99999999999999999999,:", {{1, 2147483647}, {}}}, Case{u"-5,:", {{-5}, {}}}})
    EXPECT_EQ(readListState(c.text, 2), c.fields);
}

}  // namespace
}  // namespace velmora::ui
