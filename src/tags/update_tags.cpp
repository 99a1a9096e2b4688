#include "tags/update_tags.h"

#include <cstdint>

#include "core/number_text.h"
#include "core/paths.h"
#include "journal/pending_record.h"
#include "journal/undo_record.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"
#include "tags/put_values.h"

namespace velmora::tags {

namespace {

constexpr int pauseBelowVersion = 260;  // older systems need a moment after a file was let go
constexpr int pauseMilliseconds = 100;

/// Puts values into one of two tags; false when there is nothing to write.
template <typename Tag>
bool put(Tag& tag, bool there, const FieldValues& values, const FieldValues& ofOther) {
  return putValues(tag, there ? values : joined(values, ofOther));
}

}  // namespace

/// Both tags as the file holds them, and whether they have something new to write.
struct TagWriter::Change {
  explicit Change(platform::Files& files) : first(files), second(files) {}

  cMP3ID3v1 first;
  cMP3ID3v2 second;
  bool read = false;
  bool writeFirst = false;
  bool writeSecond = false;
  bool released = false;  // the preview player let go of the song
};

UpdateResult TagWriter::UpdateTags() {
  const int row = parts_.table.currentRow;
  if (!parts_.table.hasRow(row)) return UpdateResult::Done;
  const ui::TagPanel& panel = parts_.form1.tags;
  const bool hadID3v2 = panel.viewID3v2.enabled();
  OpenSong song(parts_.files, parts_.table.path(row));
  const UpdateResult result =
      write(song, row, parts_.panel.changed(), {panel.writeID3v1.checked(), panel.writeID3v2.checked()});
  if (result == UpdateResult::Done)
    showAgain(song, row, !hadID3v2 && parts_.table.track(row).imaid3v2.isTrue());
  return result;
}

UpdateResult TagWriter::write(OpenSong& song, int row, const FieldValues& values, WhichTags which) {
  parts_.table.currentRow = row;  // the dialogs of a failure name its path
  if (!which.id3v1 && !which.id3v2) return UpdateResult::Done;
  const platform::FileHandOver handOver(parts_.player, song.path());
  if (!makeReady(song, handOver.held())) return UpdateResult::Ignore;
  Change now(parts_.files);
  now.released = handOver.held();
  const UpdateResult result = read(song, row, now, which);
  if (!now.read) return result == UpdateResult::Done ? UpdateResult::Ignore : result;

  // Each takes from the other as it was.
  const FieldValues ofFirst = valuesOf(now.first);
  const FieldValues ofSecond = valuesOf(now.second);
  if (which.id3v1) now.writeFirst = put(now.first, now.first.HasID3v1Tag(), values, ofSecond);
  if (which.id3v2) now.writeSecond = put(now.second, now.second.HasID3v2Tag(), values, ofFirst);
  return now.writeFirst || now.writeSecond ? writeRecorded(song, row, now) : UpdateResult::Done;
}

/// Waits until the song can be written; false for one that gets no tags.
bool TagWriter::makeReady(OpenSong& song, bool released) {
  if (released && parts_.desktop.systemVersion() < pauseBelowVersion) parts_.desktop.sleep(pauseMilliseconds);
  if (!parts_.busyFile.waitUntilFree(song)) return false;
  if (core::paths::lastThree(song.path()) != u"mp3") {
    parts_.failures.leaveOut(song.path(), u"Tags are written to MP3 files alone");
    return false;
  }
  try {
    if (!song.isOpen()) parts_.files.clearAttributes(song.path());
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // What keeps the file from being written shows in the dialog of the write.
  }
  return true;
}

/// A tag that cannot be read must not be written either, since all that is in it would be lost: its failure
/// is asked about like one of the write.
UpdateResult TagWriter::read(OpenSong& song, int row, Change& change, WhichTags which) {
  return updateWithDialog({parts_.failures, parts_.table}, which.id3v1 ? u"V1" : u"V2", song, [&] {
    parts_.cache.readAnew(song.bytes(), row);
    change.first.read(song.bytes());
    change.second.read(song.bytes());
    change.read = true;
  });
}

UpdateResult TagWriter::writeRecorded(OpenSong& song, int row, Change& change) {
  const Text before = journal::rowSnapshot(parts_.table, row);
  journal::PendingRecord record(parts_.journal, journal::kind::tagsWritten, core::number(std::int64_t{row}),
                                before);
  const UpdateResult result = writeTags(song, change);
  if (saysOtherwise(song, row, before)) record.keep();
  return result;
}

UpdateResult TagWriter::writeTags(OpenSong& song, Change& change) {
  const UpdateContext context{parts_.failures, parts_.table};
  if (change.writeFirst) {
    const UpdateResult result = change.first.Update(context, song);
    if (result != UpdateResult::Done) return result;
    if (!change.released && parts_.desktop.systemVersion() < pauseBelowVersion)
      parts_.desktop.sleep(pauseMilliseconds);
  }
  return change.writeSecond ? change.second.Update(context, song) : UpdateResult::Done;
}

/// Reads the columns again. A file that tells what it told before was not changed, whatever the write says;
/// of one that cannot be read nobody knows.
bool TagWriter::saysOtherwise(OpenSong& song, int row, const Text& before) {
  try {
    parts_.cache.readAnew(song.bytesToRead(), row);
    return journal::rowSnapshot(parts_.table, row) != before;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    parts_.table.track(row).procitan = false;
    return true;
  }
}

void TagWriter::showAgain(OpenSong& song, int row, bool newID3v2) {
  ui::TagPanel& panel = parts_.form1.tags;
  const bool viewedID3v1 = panel.viewID3v1.chosen() && !newID3v2;
  parts_.panel.info(song, row);
  if (viewedID3v1 && panel.viewID3v1.enabled()) panel.viewID3v1.setChosen(true);
  if (newID3v2) panel.viewID3v2.setChosen(true);
  parts_.panel.showTags();
}

}  // namespace velmora::tags
