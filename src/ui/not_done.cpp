#include "ui/not_done.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>

#include "core/number_text.h"

namespace velmora::ui {

void NotDone::add(TextView path, TextView why) {
  left_.push_back({Text(path), Text(why)});
}

/// Each cause with its number of files, the most frequent first; a cause alone needs no number.
Text NotDone::causes() const {
  std::map<TextView, std::int64_t> counts;
  for (const Left& left : left_) ++counts[left.why];
  std::vector<std::pair<TextView, std::int64_t>> byCount(counts.begin(), counts.end());
  std::ranges::stable_sort(byCount, std::ranges::greater(), &std::pair<TextView, std::int64_t>::second);
  Text text;
  for (const auto& [why, count] : byCount) {
    if (!text.empty()) text += u", ";
    text += why;
    if (byCount.size() > 1) text += u" (" + core::plain(count) + u")";
  }
  return text;
}

void NotDone::say(platform::Dialogs& dialogs, TextView title, TextView one, TextView many) {
  if (left_.empty()) return;
  const Text why = causes();
  // Emptied before the box opens: what runs while it waits begins anew.
  const std::vector<Left> left = std::exchange(left_, {});
  Text text =
      core::plain(static_cast<std::int64_t>(left.size())) + u" " + Text(left.size() == 1 ? one : many);
  text += u": " + why + u".";
  if (left.size() == 1) text += u"\n\n" + left.front().path;
  Text details;
  if (left.size() > 1)
    for (const Left& file : left) details += file.path + u"\n    " + file.why + u"\n";
  dialogs.report(text, Text(title), details);
}

}  // namespace velmora::ui
