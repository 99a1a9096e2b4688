#include "undo/replay.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/selection_snapshot.h"
#include "journal/undo_record.h"
#include "platform/file_error.h"

namespace velmora::undo {

Replay::Inverse Replay::inverseOf(const journal::UndoRecord& record) {
  namespace kind = journal::kind;
  static constexpr std::array<std::pair<std::string_view, Inverse>, 12> inverses = {
      {{kind::renamed, &Replay::undoRename},
       {kind::tagsWritten, &Replay::undoTags},
       {kind::fileDeleted, &Replay::undoDelete},
       {kind::rowRemoved, &Replay::undoRemoval},
       {kind::fileMoved, &Replay::undoMove},
       {kind::folderMade, &Replay::undoMadeFolder},
       {kind::folderMoved, &Replay::undoFolderMove},
       {kind::otherFileDeleted, &Replay::undoOtherFile},
       {kind::selection, &Replay::restoreSelection},
       {kind::windows, &Replay::restoreWindows},
       {kind::checkFixStop, &Replay::restoreFix},
       {kind::duplicatesStop, &Replay::restoreDup}}};
  const auto* found = std::ranges::find_if(inverses, [&](const auto& of) { return record.is(of.first); });
  return found == inverses.end() ? nullptr : found->second;
}

void Replay::replayUndo(std::string_view stopKind) {
  undeleteFailed_ = false;
  cameBack_ = {};
  if (!parts_.journal.exists()) return;
  parts_.data.beginChange();
  try {
    const std::uint64_t left = takeBack(stopKind);
    // The journal is cut last. After a kill before that, the next undo passes over the records whose changes
    // are back already. Were it cut first, a kill would leave a table with names that the songs no longer
    // bear, and no record to tell the old ones from the new.
    parts_.errors.attempt([this] { parts_.data.savenizove(parts_.table); });
    parts_.errors.attempt([this] { parts_.data.SaveID3nizove(parts_.table); });
    parts_.errors.attempt([&] { parts_.journal.cutAt(left); });
  } catch (const UndoCancelled&) {
    // The journal keeps all its records: an undo that is tried again passes over what is done already.
  }
}

/// Returns where the journal is to be cut.
std::uint64_t Replay::takeBack(std::string_view stopKind) {
  const std::uint64_t total = parts_.journal.size();
  std::uint64_t left = total;
  const rows::ArtistBook::Batch artists(parts_.artists);
  parts_.errors.attempt([&] {
    parts_.journal.visitFromNewest([&](const Text& line, std::uint64_t offset) {
      left = offset;
      const journal::UndoRecord record = journal::parseUndoRecord(line);
      const Inverse inverse = inverseOf(record);
      UndoOutcome outcome = UndoOutcome::Done;
      if (inverse && record.data) parts_.errors.attempt([&] { outcome = (this->*inverse)(*record.data); });
      if (parts_.progress.shown())
        parts_.progress.UpdateProgress((1 - static_cast<double>(left) / static_cast<double>(total)) * 100);
      return outcome != UndoOutcome::Abort && !record.is(stopKind) && !parts_.table.Stop;
    });
  });
  return left;
}

UndoOutcome Replay::undoRename(const Data& data) {
  const auto before = journal::parseRenamePayload(data.rest);
  return before ? parts_.nameRestorer.restore(Text(data.first), *before) : UndoOutcome::Done;
}

UndoOutcome Replay::undoTags(const Data& data) {
  const auto row = journal::parseRow(data.first);
  const auto before = journal::parseRowSnapshot(data.rest);
  return row && before ? parts_.tagRestorer.restore(*row, *before) : UndoOutcome::Done;
}

UndoOutcome Replay::undoDelete(const Data& data) {
  undeleteFailed_ = false;
  const auto deleted = journal::parseDeletedFile(data.first);
  if (!deleted) return UndoOutcome::Done;
  lastDeleted_ = deleted->path;
  const Text inTrash(data.rest);
  bool same = parts_.files.fileExists(inTrash);
  parts_.errors.attempt([&] { same = same && parts_.files.size(inTrash) == deleted->size; });
  if (!same) {
    // After an undo that was cut short the file may be back already.
    if (parts_.files.fileExists(deleted->path) && !parts_.files.fileExists(inTrash)) return UndoOutcome::Done;
    undeleteFailed_ = true;
    sayNotInTrash(deleted->path);
    return UndoOutcome::Done;
  }
  parts_.files.makeFolder(Text(core::paths::folderPart(deleted->path)));
  Text got;
  const rows::MoveResult result = parts_.mover.bringBack(parts_.trash, inTrash, deleted->path, &got);
  cameBack_ = {deleted->path, std::move(got)};
  return result == rows::MoveResult::Abort ? UndoOutcome::Abort : UndoOutcome::Done;
}

void Replay::sayNotInTrash(const Text& path) {
  parts_.dialogs.message(u"Canot Undelete. File " + path + u" is not in recycle bin.", u"Undo",
                         platform::Buttons::Ok, platform::Icon::Critical);
}

UndoOutcome Replay::undoRemoval(const Data& data) {
  // The row of a file that did not come back stays out: its record lies just below that of the file.
  if (std::exchange(undeleteFailed_, false)) return UndoOutcome::Done;
  const auto row = journal::parseRow(data.first);
  const auto snapshot = journal::parseRowSnapshot(data.rest);
  if (!row || !snapshot) return UndoOutcome::Done;
  const CameBack file = std::exchange(cameBack_, {});
  const bool renamed = file.wanted == snapshot->path;
  parts_.rows.restoreRow(*row, *snapshot, renamed ? file.got : snapshot->path);
  return UndoOutcome::Done;
}

UndoOutcome Replay::undoMove(const Data& data) {
  const Text oldPath(data.first);
  const Text newPath(data.rest);
  if (oldPath.empty() || newPath.empty()) return UndoOutcome::Done;
  // After an undo that was cut short the file may be back already.
  if (!parts_.files.fileExists(newPath) && parts_.files.fileExists(oldPath)) return UndoOutcome::Done;
  parts_.files.makeFolder(Text(core::paths::folderPart(oldPath)));
  Text got;
  const rows::MoveResult result = parts_.mover.move(newPath, oldPath, &got);
  cameBack_ = {oldPath, std::move(got)};
  return result == rows::MoveResult::Abort ? UndoOutcome::Abort : UndoOutcome::Done;
}

UndoOutcome Replay::undoMadeFolder(const Data& data) {
  const Text folder(data.first);
  if (!folder.empty() && parts_.files.folderExists(folder)) discardFolder(parts_.files, parts_.trash, folder);
  return UndoOutcome::Done;
}

UndoOutcome Replay::undoFolderMove(const Data& data) {
  const bool aborted = onFolderMoved && onFolderMoved(Text(data.first), Text(data.rest));
  return aborted ? UndoOutcome::Abort : UndoOutcome::Done;
}

UndoOutcome Replay::undoOtherFile(const Data& data) {
  const Text path(data.rest);
  if (onShowOtherFiles) onShowOtherFiles();
  if (undeleteFailed_ || !parts_.files.fileExists(path)) {
    sayNotInTrash(lastDeleted_);
    return UndoOutcome::Done;
  }
  std::vector<Text>& others = parts_.table.niznomusic;
  const int index = std::clamp(core::intValue(data.first), 0, static_cast<int>(others.size()));
  others.insert(others.begin() + index, path);
  parts_.form1.List4.insertItem(index, path);
  return UndoOutcome::Done;
}

UndoOutcome Replay::restoreSelection(const Data& data) {
  constexpr int invalidArrayIndex = 381;
  journal::restoreSelection(parts_.form1, data.first, [this] {
    parts_.errors.report(invalidArrayIndex, u"Invalid property array index");
    return true;
  });
  return UndoOutcome::Done;
}

UndoOutcome Replay::restoreWindows(const Data& data) {
  if (onWindowState) onWindowState(Text(data.first));
  return UndoOutcome::Done;
}

UndoOutcome Replay::restoreFix(const Data& data) {
  const auto row = journal::parseRow(data.first);
  if (row && onFix) onFix(*row);
  return UndoOutcome::Done;
}

UndoOutcome Replay::restoreDup(const Data& data) {
  const auto inner = journal::parseRow(data.first);
  const auto outer = journal::parseRow(data.rest);
  if (!inner || !outer) return UndoOutcome::Done;
  if (onDup) onDup(*inner, *outer);
  parts_.table.currentRow = *outer;
  return UndoOutcome::Done;
}

void discardFolder(platform::Files& files, platform::Trash& trash, const Text& folder) {
  if (files.list(folder).entries.empty())
    files.removeEmptyFolder(folder);
  else
    trash.send(folder);
}

}  // namespace velmora::undo
