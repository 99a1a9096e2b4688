#include "batch/tag_batches.h"

#include "core/text.h"

namespace velmora::batch {

void TagBatches::fromNames() {
  const bool songs = parts_.table.vrsta == core::Review::ArtistList;
  parts_.frame.run(u"Update ID3 Tags From Filename ...",
                   songs ? parts_.frame.selectedSongs() : parts_.frame.selectedRows(), [this](int row) {
                     const core::Track& track = parts_.table.track(row);
                     return write(row, {.title = Text(core::trim(track.pesma.text())),
                                        .artist = Text(core::trim(track.pevac.text()))});
                   });
}

void TagBatches::update() {
  const bool songs = parts_.table.vrsta == core::Review::ArtistList;
  const std::vector<int> rows = songs ? parts_.frame.selectedSongs() : parts_.frame.selectedRows();
  if (rows.empty()) return;
  ui::Button& button = parts_.form1.update;
  button.setEnabled(false);
  if (rows.size() < 2 || songs) {
    // The tag boxes belong to the current row, which the panel shows.
    const int row = parts_.table.currentRow;
    if (parts_.panel.shows(row))
      parts_.frame.run(u"Update ID3 Tags ...", {row},
                       [this](int) { return parts_.tagWriter.UpdateTags() != tags::UpdateResult::Abort; });
  } else {
    parts_.frame.run(u"Update ID3 Tags ...", rows,
                     [this, values = parts_.fields.shared()](int row) { return write(row, values); });
  }
  button.setEnabled(true);
}

bool TagBatches::write(int row, const tags::FieldValues& values) {
  const ui::TagPanel& panel = parts_.form1.tags;
  tags::OpenSong song(parts_.files, parts_.table.path(row));
  return parts_.tagWriter.write(song, row, values,
                                {panel.writeID3v1.checked(), panel.writeID3v2.checked()}) !=
         tags::UpdateResult::Abort;
}

}  // namespace velmora::batch
