#include "ui/list_state.h"

#include "core/number_text.h"

namespace velmora::ui {

namespace {

constexpr char16_t numberEnd = u',';
constexpr char16_t fieldEnd = u':';

bool holdsDigit(TextView text) {
  return text.find_first_of(u"0123456789") != TextView::npos;
}

}  // namespace

Text writeListState(const ListState& fields) {
  Text text;
  for (const std::vector<int>& field : fields) {
    for (const int entry : field) text.append(core::number(std::int64_t{entry})) += numberEnd;
    text += fieldEnd;
  }
  return text;
}

ListState readListState(TextView text, std::size_t count) {
  ListState fields(count);
  std::size_t field = 0;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size() && field < count; ++at) {
    if (text[at] != numberEnd && text[at] != fieldEnd) continue;
    const TextView collected = text.substr(begin, at - begin);
    if (holdsDigit(collected)) fields[field].push_back(core::intValue(collected));
    if (text[at] == fieldEnd) ++field;
    begin = at + 1;
  }
  return fields;
}

}  // namespace velmora::ui
