#pragma once

#include "base/base_lists.h"
#include "core/settings.h"
#include "core/track_table.h"
#include "newmusic/new_music_lists.h"
#include "ui/windows.h"

namespace velmora::newmusic {

/// What the New Music Window and the Music Base Window show at one moment, as one text of 26 sections, each
/// ended by ":": the payload of a "biv" record. docs/formats.md gives the sections.
class WindowSnapshot {
 public:
  struct Parts {
    core::TrackTable& table;
    core::Settings& settings;
    ui::Windows& windows;
    base::BaseLists& base;
    NewMusicLists& lists;
  };
  explicit WindowSnapshot(const Parts& parts) : parts_(parts) {}

  /// The snapshot. Where the genre column goes by folder, the folder is stored under `form2dir`. No record
  /// can carry more than 999 characters: what is too long leaves the longest selections out, those that are
  /// not put back first.
  Text windowStateSnapshot();
  /// Lists both windows anew and puts back what a snapshot tells. Any text is read; what is no row is passed
  /// over.
  void restore(TextView snapshot);
  /// Lists both windows anew with nothing selected.
  void listAnew();

 private:
  using Sections = std::vector<std::vector<int>>;
  void restoreOptions(const Sections& sections);
  void restoreBase(const Sections& sections);
  void restoreNewMusic(const Sections& sections);
  void restoreTops(const Sections& sections);

  Parts parts_;
};

}  // namespace velmora::newmusic
