#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_set>
#include <vector>

#include "core/track_table.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "ui/form5.h"
#include "ui/not_done.h"
#include "ui/progress.h"

namespace velmora::list {

/// A file as a scan finds it.
struct FoundFile {
  Text path;
  Text real;          ///< the path with all links followed, where that is another one; else empty
  bool link = false;  ///< the file itself is a link, to what `real` tells

  const Text& realPath() const { return real.empty() ? path : real; }
};

/// One walk over a tree of folders: hands out what it finds, each folder's files before its subfolders, both
/// in natural order. A real folder is walked once, however many links lead to it, and by its own path where
/// it lies in the tree. Subfolders that cannot be read are passed over and noted. Ends early on Stop.
class FolderScan {
 public:
  enum class Mode {
    NewMusic = 0,    ///< music and other files are told apart by the extensions that Form5 enables
    BaseRefresh = 1  ///< every file counts as music
  };
  struct Parts {
    core::TrackTable& table;
    platform::Files& files;
    platform::Desktop& desktop;
    ui::Progress& progress;
    const ui::Form5& form5;
  };
  FolderScan(const Parts& parts, Mode mode);

  std::function<void(FoundFile file)> onMusic;
  std::function<void(FoundFile file)> onOther;

  /// Walks `folder`. Throws FileError when `folder` itself cannot be read.
  void Pretrazi(const Text& folder);

  /// Entries whose names no record can carry, so that they were passed over, folders with all they hold.
  int leftOut() const { return leftOut_; }
  /// The folders that could not be read.
  const ui::NotDone& unreadable() const { return unreadable_; }

 private:
  struct FolderIdHash {
    std::size_t operator()(const platform::FolderId& id) const {
      constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15;  // the golden ratio's bits, without any pattern
      return static_cast<std::size_t>(id.node ^ (id.device * mixer));
    }
  };
  /// A folder to be walked.
  struct Folder {
    Text path;
    Text real;  // with all links followed, where that is another path; else empty
  };

  void walk(const Folder& folder);
  void walkOn(const Folder& folder);
  std::vector<Folder> takeFiles(const Folder& folder);
  void takeFile(FoundFile file);
  void afterEntry();
  void showFound();

  Parts parts_;
  Mode mode_;
  std::vector<Text> extensions_;
  std::unordered_set<platform::FolderId, FolderIdHash> walked_;
  std::vector<Folder> linked_;  // folders behind links, walked when all others are
  std::int64_t music_ = 0;
  std::int64_t other_ = 0;
  int leftOut_ = 0;
  ui::NotDone unreadable_;
  std::int64_t entries_ = 0;
  std::optional<std::int64_t> shownAt_;  // milliseconds
};

/// Names of the folders on the second level under the Music Base folder: its artists, genre by genre. What
/// cannot be read or carried is passed over.
std::vector<Text> artistFolders(const FolderScan::Parts& parts, const Text& base);

}  // namespace velmora::list
