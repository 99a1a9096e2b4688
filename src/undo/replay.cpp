#include "undo/replay.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/text.h"
#include "journal/record_kind.h"
#include "journal/selection_snapshot.h"
#include "journal/undo_record.h"
#include "platform/file_error.h"

namespace velmora::undo {

namespace kind = journal::kind;

Replay::Inverse Replay::inverseOf(const journal::UndoRecord& record) {
  static constexpr std::array<std::pair<std::string_view, Inverse>, 13> inverses = {
      {{kind::renamed, &Replay::undoRename},
       {kind::tagsWritten, &Replay::undoTags},
       {kind::fileDeleted, &Replay::undoDelete},
       {kind::rowRemoved, &Replay::undoRemoval},
       {kind::fileMoved, &Replay::undoMove},
       {kind::folderMade, &Replay::undoMadeFolder},
       {kind::folderMoved, &Replay::undoFolderMove},
       {kind::otherFileDeleted, &Replay::undoOtherFile},
       {kind::songPlace, &Replay::learnPlace},
       {kind::selection, &Replay::restoreSelection},
       {kind::windows, &Replay::restoreWindows},
       {kind::checkFixStop, &Replay::restoreFix},
       {kind::duplicatesStop, &Replay::restoreDup}}};
  const auto* found = std::ranges::find_if(inverses, [&](const auto& of) { return record.is(of.first); });
  return found == inverses.end() ? nullptr : found->second;
}

void Replay::replayUndo(std::string_view stopKind) {
  parts_.songs.begin();
  parts_.fileRestorer.begin();
  caughtUp_ = false;
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
    tellWhereSongsAre(left);
  } catch (const UndoCancelled&) {
    // The journal keeps all its records: an undo that is tried again passes over what is done already.
  }
}

/// Returns where the journal is to be cut.
std::uint64_t Replay::takeBack(std::string_view stopKind) {
  const core::TrackTable& table = parts_.table;
  const std::uint64_t total = parts_.journal.size();
  std::uint64_t left = total;
  bool fileAhead = false;  // the last record was that of a file, whose row follows
  const rows::ArtistBook::Batch artists(parts_.artists);
  parts_.errors.attempt([&] {
    parts_.journal.visitFromNewest([&](const Text& line, std::uint64_t offset) {
      const journal::UndoRecord record = journal::parseUndoRecord(line);
      if (table.Stop && !(fileAhead && record.is(kind::rowRemoved))) return false;
      left = at_ = offset;
      UndoOutcome outcome = UndoOutcome::Done;
      parts_.errors.attempt([&] { outcome = takeBack(record); });
      if (parts_.progress.shown())
        parts_.progress.UpdateProgress((1 - static_cast<double>(left) / static_cast<double>(total)) * 100);
      fileAhead = record.is(kind::fileDeleted) || record.is(kind::fileMoved);
      return outcome != UndoOutcome::Abort && !record.is(stopKind);
    });
  });
  return left;
}

UndoOutcome Replay::takeBack(const journal::UndoRecord& record) {
  const Inverse inverse = inverseOf(record);
  if (inverse && record.data) return (this->*inverse)(*record.data);
  if (record.is(kind::rowRemoved)) parts_.fileRestorer.restoreRow(0, std::nullopt);
  return UndoOutcome::Done;
}

/// The records that are left must find their songs in the next undo too.
void Replay::tellWhereSongsAre(std::uint64_t left) {
  if (left == 0) return;
  const journal::UndoJournal::Group group(parts_.journal);
  try {
    for (const auto& [path, place] : parts_.songs.elsewhere())
      parts_.journal.appendUndoRecord(kind::songPlace, path, place);
  } catch (const journal::NotRecorded&) {
    // A song that is not found is passed over.
  }
}

/// The row of the song that the record at hand calls `path`; 0 when there is none.
int Replay::rowOf(int number, const Text& path) {
  const Text place = parts_.songs.now(path);
  const int row = parts_.songs.rowAt(number, place);
  if (row > 0 || std::exchange(caughtUp_, true)) return row;
  catchUp();
  return parts_.songs.rowAt(number, place);
}

/// A command that was killed leaves a table that is older than the journal. Its rows get the names that their
/// songs have by now, as the renames of the newest operation tell.
void Replay::catchUp() {
  struct Rename {
    Text newPath;
    journal::RenamePayload before;
  };
  std::vector<Rename> renames;  // the newest first
  parts_.journal.visitFromNewest([&](const Text& line, std::uint64_t offset) {
    const journal::UndoRecord record = journal::parseUndoRecord(line);
    if (offset < at_ && record.is(kind::renamed) && record.data)
      if (auto before = journal::parseRenamePayload(record.data->rest))
        renames.push_back({Text(record.data->first), *std::move(before)});
    return !record.is(kind::processing) && !record.is(kind::newMusic);
  });
  struct Way {
    Text from, to, identity;
  };
  std::map<int, Way> ways;  // of each row, from the path in the table
  for (auto rename = renames.rbegin(); rename != renames.rend(); ++rename) {
    const auto& [row, path, crtapos, identity] = rename->before;
    const auto way =
        ways.try_emplace(row, Way{parts_.table.path(row), parts_.table.path(row), identity}).first;
    if (way->second.to == path) way->second.to = rename->newPath;
  }
  platform::Files& files = parts_.files;
  for (const auto& [row, way] : ways) {
    if (way.from == way.to || !parts_.table.hasRow(row) || !files.fileExists(way.to)) continue;
    const bool stayed =
        files.fileExists(way.from) && (way.identity.empty() || files.identity(way.from) == way.identity);
    if (!stayed) parts_.nameRestorer.follow(row, way.to);
  }
}

UndoOutcome Replay::undoRename(const Data& data) {
  const auto before = journal::parseRenamePayload(data.rest);
  return before ? parts_.nameRestorer.restore(Text(data.first), *before) : UndoOutcome::Done;
}

UndoOutcome Replay::undoTags(const Data& data) {
  const auto number = journal::parseRow(data.first);
  const auto before = journal::parseRowSnapshot(data.rest);
  const int row = number && before ? rowOf(*number, before->path) : 0;
  return row > 0 ? parts_.tagRestorer.restore(row, *before) : UndoOutcome::Done;
}

UndoOutcome Replay::undoDelete(const Data& data) {
  const auto deleted = journal::parseDeletedFile(data.first);
  return deleted ? parts_.fileRestorer.bringBack(*deleted, Text(data.rest)) : UndoOutcome::Done;
}

UndoOutcome Replay::undoRemoval(const Data& data) {
  const auto number = journal::parseRow(data.first);
  parts_.fileRestorer.restoreRow(number.value_or(0), journal::parseRowSnapshot(data.rest));
  return UndoOutcome::Done;
}

UndoOutcome Replay::undoMove(const Data& data) {
  const auto moved = journal::parseMovedFile(data.rest);
  if (data.first.empty() || !moved) return UndoOutcome::Done;
  return parts_.fileRestorer.moveBack(Text(data.first), *moved);
}

/// A folder that holds anything stays.
UndoOutcome Replay::undoMadeFolder(const Data& data) {
  const Text folder(data.first);
  if (folder.empty() || !parts_.files.folderExists(folder)) return UndoOutcome::Done;
  parts_.errors.attempt(folder, [&] {
    try {
      if (parts_.files.list(folder).entries.empty()) parts_.files.removeEmptyFolder(folder);
    } catch (const platform::FileError& error) {
      // It is a link by now, or something came into it this moment.
      if (error.number != platform::FileError::pathAccess) throw;
    }
  });
  return UndoOutcome::Done;
}

/// A song that an earlier undo could not take to where the records from here down know it.
UndoOutcome Replay::learnPlace(const Data& data) {
  const Text path(data.first);
  if (!parts_.songs.elsewhere().contains(path)) parts_.songs.isAt(path, parts_.songs.now(Text(data.rest)));
  return UndoOutcome::Done;
}

UndoOutcome Replay::undoFolderMove(const Data& data) {
  const bool aborted = onFolderMoved && onFolderMoved(Text(data.first), Text(data.rest));
  return aborted ? UndoOutcome::Abort : UndoOutcome::Done;
}

UndoOutcome Replay::undoOtherFile(const Data& data) {
  const Text path(data.rest);
  if (onShowOtherFiles) onShowOtherFiles();
  if (!parts_.fileRestorer.deletedIsBack() || !parts_.files.fileExists(path)) {
    parts_.fileRestorer.sayNotInTrash();
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

}  // namespace velmora::undo
