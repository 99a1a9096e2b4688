#include "core/change_mark.h"

#include <algorithm>
#include <cstdint>

#include "core/number_text.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::core {

std::optional<int> ChangeMark::tail() const {
  try {
    const Text numbers = fromBytes(files_.readAll(path_));
    const std::size_t last = numbers.rfind(u' ');
    if (last != Text::npos && last + 1 < numbers.size())
      return std::max(intValue(TextView(numbers).substr(last)), 0);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // No mark, as after every change that has ended.
  }
  return std::nullopt;
}

/// Added and not written anew: that needs no wait for the disk. What tells of a change that the disk has lost
/// may be lost with it.
void ChangeMark::set(int tail) {
  if (exists() && this->tail() == tail) return;
  try {
    files_.append(path_, toBytes(number(std::int64_t{tail})));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // See above.
  }
}

void ChangeMark::remove() {
  try {
    if (exists()) files_.remove(path_);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The next start reads tags that it could have taken from the columns.
  }
}

}  // namespace velmora::core
