#include "tags/busy_file.h"

namespace velmora::tags {

bool BusyFile::waitUntilFree(const Text& path) {
  return wait([&] { return FileBusy(path); });
}

bool BusyFile::waitUntilFree(OpenSong& song) {
  return wait([&] { return song.busy(); });
}

bool BusyFile::wait(const std::function<bool()>& busy) {
  if (!busy()) return true;
  bool waiting = true;
  do {
    statusLabel_.setText(u"File is busy, please wait ...");
    desktop_.pumpEvents();
    waiting = !(givenUp && givenUp());
    if (waiting) desktop_.sleep(1000);
  } while (waiting && busy());
  statusLabel_.setText({});
  return waiting;
}

}  // namespace velmora::tags
