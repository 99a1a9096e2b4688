#include "list/folder_scan.h"

#include <algorithm>
#include <utility>

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

std::vector<Text> enabledExtensions(const ui::Form5& form5) {
  std::vector<Text> enabled;
  for (const auto& extension : form5.extensions)
    if (extension.check.checked()) enabled.push_back(extension.text.text());
  return enabled;
}

}  // namespace

FolderScan::FolderScan(const Parts& parts, Mode mode)
    : parts_(parts), mode_(mode), extensions_(enabledExtensions(parts.form5)) {}

void FolderScan::Pretrazi(const Text& folder) {
  walk(folder);
  showFound();
}

void FolderScan::walk(const Text& folder) {
  if (parts_.table.Stop || onListAlready(folder)) return;
  for (const Text& subfolder : takeFiles(folder)) {
    try {
      walk(subfolder);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // A folder that cannot be read leaves the rest of the tree to be found.
    }
  }
}

bool FolderScan::onListAlready(TextView folder) const {
  const std::vector<Text>& added = parts_.table.bazepesama;
  const std::size_t earlier =
      std::min(added.size(), static_cast<std::size_t>(std::max(parts_.table.brojbaza - 1, 0)));
  return std::any_of(
      added.begin(), added.begin() + static_cast<std::ptrdiff_t>(earlier),
      [folder](const Text& entry) { return !entry.empty() && folder.find(entry) != TextView::npos; });
}

std::vector<Text> FolderScan::takeFiles(const Text& folder) {
  const platform::FolderListing listing = parts_.files.list(folder);
  std::vector<Text> subfolders;
  if (!walked_.insert(listing.id).second) return subfolders;
  for (const platform::FolderEntry& entry : listing.entries) {
    if (parts_.table.Stop) return {};
    if (entry.kind == EntryKind::Other) continue;
    if (!paths::fitsRecord(entry.name))
      ++leftOut_;
    else if (entry.kind == EntryKind::Folder)
      subfolders.push_back(paths::join(folder, entry.name));
    else
      takeFile(entry.name, paths::join(folder, entry.name));
    afterEntry();
  }
  return subfolders;
}

void FolderScan::takeFile(TextView name, Text path) {
  const bool music = mode_ == Mode::BaseRefresh ||
                     std::ranges::find(extensions_, paths::lastThree(name)) != extensions_.end();
  ++(music ? music_ : other_);
  const auto& taker = music ? onMusic : onOther;
  if (taker) taker(std::move(path));
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
    return names;
  };
  for (const Text& genre : subfolders(base))
    std::ranges::move(subfolders(paths::join(base, genre)), std::back_inserter(artists));
  return artists;
}

}  // namespace velmora::list
