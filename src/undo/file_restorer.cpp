#include "undo/file_restorer.h"

#include <utility>

#include "core/paths.h"

namespace velmora::undo {

using rows::MoveResult;

void FileRestorer::begin() {
  last_.reset();
  deletedIsBack_ = true;
}

UndoOutcome FileRestorer::bringBack(const journal::DeletedFile& deleted, const Text& inTrash) {
  const Text& path = deleted.path;
  lastDeleted_ = path;
  last_ = Last{path, {}};
  deletedIsBack_ = false;
  parts_.songs.isAt(path, {});
  bool there = false;
  parts_.errors.attempt(inTrash, [&] {
    there = parts_.files.fileExists(inTrash) && parts_.files.size(inTrash) == deleted.size;
  });
  if (there) {
    Text got;
    const MoveResult result = parts_.mover.bringBack(parts_.trash, inTrash, path, &got);
    deletedIsBack_ = result == MoveResult::Moved;
    return ended(result, std::move(got));
  }
  // It never went, or an undo that was cut short brought it back.
  deletedIsBack_ = !parts_.files.fileExists(inTrash) && isSong(path, deleted.identity, deleted.size);
  if (deletedIsBack_)
    isBackAt(path);
  else
    sayNotInTrash();
  return UndoOutcome::Done;
}

UndoOutcome FileRestorer::moveBack(const Text& oldPath, const journal::MovedFile& moved) {
  const Text place = parts_.songs.now(moved.path);
  parts_.songs.forget(moved.path);
  parts_.songs.isAt(oldPath, {});
  last_ = Last{oldPath, {}};
  if (place.empty()) return UndoOutcome::Done;
  if (isHome(oldPath, place, moved)) {
    isBackAt(oldPath);
    return UndoOutcome::Done;
  }
  if (parts_.files.fileExists(place) && !isSong(place, moved.identity, moved.size)) {
    parts_.dialogs.message(u"Canot move back. File " + place + u" is not the one that was moved there.",
                           u"Undo", platform::Buttons::Ok, platform::Icon::Critical);
    return UndoOutcome::Done;
  }
  const auto move = [&](const Text& to) {
    parts_.files.makeFolder(Text(core::paths::folderPart(to)));
    parts_.files.move(place, to);
  };
  Text got;
  const MoveResult result = parts_.mover.moveBy(move, place, oldPath, &got);
  return ended(result, std::move(got));
}

void FileRestorer::restoreRow(int number, const std::optional<journal::RowSnapshot>& snapshot) {
  const std::optional<Last> last = std::exchange(last_, std::nullopt);
  const bool known = last && (!snapshot || last->wanted == snapshot->path);
  Text path;
  if (known)
    path = last->got;
  else if (snapshot)
    path = parts_.songs.now(snapshot->path);
  const int row = number > 0 ? parts_.songs.numberNow(number) : parts_.table.workingRows() + 1;
  bool back = false;
  if (!path.empty())
    back = snapshot ? parts_.rows.restoreRow(row, *snapshot, path) : parts_.rows.addRow(row, path);
  // When the row went there was no file, so nobody knows what lies there now.
  if (back && !known && parts_.table.path(row) == path) parts_.table.track(row).procitan = false;
  if (number == 0) return;
  if (back)
    parts_.songs.restored(number);
  else
    parts_.songs.lost(number);
}

void FileRestorer::sayNotInTrash() {
  parts_.dialogs.message(u"Canot Undelete. File " + lastDeleted_ + u" is not in recycle bin.", u"Undo",
                         platform::Buttons::Ok, platform::Icon::Critical);
}

/// Whether a file is the one of a record: by its identity, or, as a way across volumes gives it a new one, by
/// its size. Records of older versions tell no identity.
bool FileRestorer::isSong(const Text& path, const Text& identity, std::optional<std::uint64_t> size) {
  if (!parts_.files.fileExists(path)) return false;
  if (identity.empty() || parts_.files.identity(path) == identity) return true;
  bool same = false;
  parts_.errors.attempt(path, [&] { same = parts_.files.size(path) == size; });
  return same;
}

/// Whether the file lies at its old place: it never went, or an undo that was cut short brought it back. A
/// move to another volume that was cut short may have left a copy at the new one.
bool FileRestorer::isHome(const Text& oldPath, const Text& place, const journal::MovedFile& moved) {
  if (!parts_.files.fileExists(place)) return isSong(oldPath, moved.identity, moved.size);
  return !moved.identity.empty() && parts_.files.identity(oldPath) == moved.identity &&
         parts_.files.identity(place) != moved.identity;
}

UndoOutcome FileRestorer::ended(MoveResult result, Text got) {
  if (result == MoveResult::Moved) isBackAt(std::move(got));
  return result == MoveResult::Abort ? UndoOutcome::Abort : UndoOutcome::Done;
}

void FileRestorer::isBackAt(Text place) {
  parts_.songs.isAt(last_->wanted, place);
  last_->got = std::move(place);
}

}  // namespace velmora::undo
