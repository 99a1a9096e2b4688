#include "tags/busy_file.h"

namespace velmora::tags {

bool BusyFile::waitUntilFree(const Text& path) {
  if (!FileBusy(path)) return true;
  bool waiting = true;
  while (waiting && FileBusy(path)) {
    statusLabel_.setText(u"File is busy, please wait ...");
    desktop_.pumpEvents();
    waiting = !(givenUp && givenUp());
    if (waiting) desktop_.sleep(1000);
  }
  statusLabel_.setText({});
  return waiting;
}

}  // namespace velmora::tags
