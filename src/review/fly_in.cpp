#include "review/fly_in.h"

namespace velmora::review {

Text flyInFrame(TextView text, int gap) {
  Text frame;
  for (const char16_t letter : text) {
    frame += letter;
    if (gap > 0) frame.append(static_cast<std::size_t>(gap--), u' ');
  }
  return frame;
}

}  // namespace velmora::review
