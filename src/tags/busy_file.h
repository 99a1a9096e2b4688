#pragma once

#include <functional>

#include "platform/desktop.h"
#include "platform/files.h"
#include "tags/open_song.h"
#include "ui/controls.h"

namespace velmora::tags {

/// Waits until no other program holds a file.
class BusyFile {
 public:
  BusyFile(platform::Files& files, platform::Desktop& desktop, ui::Label& statusLabel)
      : files_(files), desktop_(desktop), statusLabel_(statusLabel) {}

  /// Ends the wait when it answers true: Stop was pressed in a command that can be stopped, or the program is
  /// closing. A `Stop` left over from an earlier command must not count.
  std::function<bool()> givenUp;

  bool FileBusy(const Text& path) const { return files_.busy(path); }
  /// Shows "File is busy, please wait ..." while the file is held and tests it once a second, letting events
  /// through. Returns false when the wait was given up. The label is emptied after a wait.
  bool waitUntilFree(const Text& path);
  /// The same, and leaves the song open, so that no other program can take it meanwhile.
  bool waitUntilFree(OpenSong& song);

 private:
  bool wait(const std::function<bool()>& busy);

  platform::Files& files_;
  platform::Desktop& desktop_;
  ui::Label& statusLabel_;
};

}  // namespace velmora::tags
