#include "list/folder_scan.h"

#include <algorithm>
#include <utility>

#include "core/natural_order.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::list {

namespace paths = core::paths;
using platform::EntryKind;

namespace {

constexpr std::int64_t textBeat = 16;  // milliseconds: no eye sees the text change faster

/// The extensions as a file's last three characters are compared with them. Blanks, capitals and what stands
/// up to a dot, as in "*.MP3", are the user's way to write them.
std::vector<Text> enabledExtensions(const ui::Form5& form5) {
  std::vector<Text> enabled;
  for (const auto& extension : form5.extensions) {
    if (!extension.check.checked()) continue;
    const Text text = core::lower(core::trim(extension.text.text()));
    enabled.push_back(text.substr(text.rfind(u'.') + 1));  // npos + 1 is 0
  }
  return enabled;
}

bool comesBefore(const platform::FolderEntry& left, const platform::FolderEntry& right) {
  return core::naturalLess(left.name, right.name);
}

}  // namespace

FolderScan::FolderScan(const Parts& parts, Mode mode)
    : parts_(parts), mode_(mode), extensions_(enabledExtensions(parts.form5)) {}

void FolderScan::Pretrazi(const Text& folder) {
  Text real = parts_.files.realPath(folder);
  if (real == folder) real.clear();
  walk({folder, std::move(real)});
  while (!linked_.empty()) {
    const std::vector<Folder> linked = std::exchange(linked_, {});
    for (const Folder& behind : linked) walkOn(behind);
  }
  showFound();
}

void FolderScan::walk(const Folder& folder) {
  if (parts_.table.Stop) return;
  for (const Folder& subfolder : takeFiles(folder)) walkOn(subfolder);
}

void FolderScan::walkOn(const Folder& folder) {
  try {
    walk(folder);
  } catch (const platform::FileError& error) {
    // A folder that cannot be read leaves the rest of the tree to be found.
    unreadable_.add(folder.path, error.description);
  }
}

std::vector<FolderScan::Folder> FolderScan::takeFiles(const Folder& folder) {
  platform::FolderListing listing = parts_.files.list(folder.path);
  std::vector<Folder> subfolders;
  if (!walked_.insert(listing.id).second) return subfolders;
  std::ranges::sort(listing.entries, comesBefore);
  for (const platform::FolderEntry& entry : listing.entries) {
    if (parts_.table.Stop) return {};
    if (entry.kind == EntryKind::Other) continue;
    if (!paths::fitsRecord(entry.name)) {
      ++leftOut_;
      afterEntry();
      continue;
    }
    Text path = paths::join(folder.path, entry.name);
    Text real;
    if (entry.link)
      real = parts_.files.realPath(path);
    else if (!folder.real.empty())
      real = paths::join(folder.real, entry.name);
    if (entry.kind == EntryKind::File)
      takeFile({std::move(path), std::move(real), entry.link});
    else
      (entry.link ? linked_ : subfolders).push_back({std::move(path), std::move(real)});
    afterEntry();
  }
  return subfolders;
}

void FolderScan::takeFile(FoundFile file) {
  const bool music = mode_ == Mode::BaseRefresh ||
                     std::ranges::find(extensions_, paths::lastThree(file.path)) != extensions_.end();
  ++(music ? music_ : other_);
  const auto& taker = music ? onMusic : onOther;
  if (taker) taker(std::move(file));
}

void FolderScan::afterEntry() {
  // A look at the clock for each entry would be felt in a large tree.
  constexpr std::int64_t entriesPerLook = 16;
  if (entries_++ % entriesPerLook == 0) {
    const std::int64_t now = parts_.desktop.clockMilliseconds();
    if (!shownAt_ || now - *shownAt_ >= textBeat) {
      shownAt_ = now;
      showFound();
    }
  }
  parts_.desktop.pumpEvents();
}

void FolderScan::showFound() {
  const Text found = core::plain(music_);
  parts_.progress.setText(mode_ == Mode::BaseRefresh
                              ? u"Refresh Music Base List (found " + found + u" music files)."
                              : u"Found " + found + u" music and " + core::plain(other_) + u" other files.");
}

std::vector<Text> artistFolders(const FolderScan::Parts& parts, const Text& base) {
  std::vector<Text> artists;
  const auto subfolders = [&parts](const Text& folder) {
    std::vector<Text> names;
    try {
      platform::FolderListing listing = parts.files.list(folder);
      for (platform::FolderEntry& entry : listing.entries) {
        if (parts.table.Stop) break;
        if (entry.kind == EntryKind::Folder && paths::fitsRecord(entry.name))
          names.push_back(std::move(entry.name));
        parts.desktop.pumpEvents();
      }
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // The other genres are found all the same.
    }
    std::ranges::sort(names, core::naturalLess);
    return names;
  };
  for (const Text& genre : subfolders(base))
    std::ranges::move(subfolders(paths::join(base, genre)), std::back_inserter(artists));
  return artists;
}

}  // namespace velmora::list
