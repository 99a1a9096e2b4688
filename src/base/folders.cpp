#include "base/folders.h"

#include <algorithm>
#include <optional>

#include "base/base_tree.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/pending_record.h"
#include "platform/file_error.h"

namespace velmora::base {

using platform::FileError;

namespace {}  // namespace

bool Folders::PostojiDir(TextView path) {
  const Text folder(core::paths::withoutSeparator(path));
  if (parts_.files.folderExists(folder)) return true;
  // A base whose disk is not there must not be begun anew in its place.
  if (!parts_.files.folderExists(Text(core::paths::folderPart(folder))))
    throw FileError(FileError::pathNotFound);
  std::optional<journal::PendingRecord> record;
  if (parts_.table.aktivniprozor == core::WindowAtWork::NewMusic)
    record.emplace(parts_.journal, journal::kind::folderMade, core::trim(folder), TextView());
  parts_.files.makeFolder(folder);
  if (record) record->keep();
  return false;
}

void Folders::EnsureFolder(TextView path) {
  parts_.files.makeFolder(Text(core::paths::withoutSeparator(path)));
}

void Folders::RemoveEmptyTree(TextView path) {
  std::set<platform::FolderId> walked;
  removeEmpty(Text(core::paths::withoutSeparator(path)), walked);
}

void Folders::removeEmpty(const Text& folder, std::set<platform::FolderId>& walked) {
  if (!parts_.files.folderExists(folder)) return;
  const platform::FolderListing listing = parts_.files.list(folder);
  const bool holdsFile = std::ranges::any_of(listing.entries, [](const platform::FolderEntry& entry) {
    return entry.kind != platform::EntryKind::Folder || entry.link;
  });
  if (holdsFile || !walked.insert(listing.id).second) return;
  for (const platform::FolderEntry& entry : listing.entries)
    removeEmpty(core::paths::join(folder, entry.name), walked);
  try {
    parts_.files.removeEmptyFolder(folder);
  } catch (const FileError& error) {
    // It is not empty, or a link, which is no folder of its own.
    if (error.number != FileError::pathAccess && error.number != FileError::pathNotFound) throw;
  }
}

}  // namespace velmora::base
