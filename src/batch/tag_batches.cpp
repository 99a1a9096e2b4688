#include "batch/tag_batches.h"

#include "core/text.h"

namespace velmora::batch {

namespace {

constexpr int artistListView = 3;

}  // namespace

void TagBatches::fromNames() {
  const bool songs = parts_.table.vrsta == artistListView;
  const tags::OwnValues ownValues(parts_.form1);
  parts_.frame.run(u"Update ID3 Tags From Filename ...",
                   songs ? parts_.frame.selectedSongs() : parts_.frame.selectedRows(), [this](int row) {
                     const core::Track& track = parts_.table.track(row);
                     ui::TagPanel& panel = parts_.form1.tags;
                     tags::OpenSong song(parts_.files, track.nizdes.text());
                     parts_.panel.info(song, row);
                     parts_.eachTagWriter.write(song, panel.writeID3v1.checked(), panel.writeID3v2.checked(),
                                                [&panel, &track] {
                                                  panel.artist.setText(core::trim(track.pevac.text()));
                                                  panel.title.setText(core::trim(track.pesma.text()));
                                                });
                     return true;
                   });
}

void TagBatches::update() {
  const bool songs = parts_.table.vrsta == artistListView;
  const std::vector<int> rows = songs ? parts_.frame.selectedSongs() : parts_.frame.selectedRows();
  if (rows.empty()) return;
  ui::Button& button = parts_.form1.update;
  button.setEnabled(false);
  if (rows.size() < 2 || songs) {
    // The tag boxes belong to the current row, which the panel shows.
    const int row = parts_.table.currentRow;
    if (parts_.panel.shows(row))
      parts_.frame.run(u"Update ID3 Tags ...", {row}, [this](int) {
        parts_.tagWriter.UpdateTags();
        return true;
      });
  } else {
    parts_.frame.run(u"Update ID3 Tags ...", rows,
                     [this, first = parts_.form1.tags.viewID3v1.chosen()](int row) {
                       updateOneOfSeveral(row, first);
                       return true;
                     });
  }
  button.setEnabled(true);
}

void TagBatches::updateOneOfSeveral(int row, bool first) {
  ui::TagPanel& panel = parts_.form1.tags;
  {
    const tags::KeptWriteMarks marks(panel);
    // The file before may have had the other tag alone.
    ui::OptionButton& wanted = first ? panel.viewID3v1 : panel.viewID3v2;
    if (!wanted.chosen()) wanted.setChosen(true);
    parts_.fields.blankUnticked();
    parts_.panel.info(parts_.table.path(row), row);
    // Blank boxes would be written over the one tag that the file has.
    if (!first && panel.viewID3v1.enabled() && !panel.viewID3v2.enabled()) {
      panel.viewID3v1.setChosen(true);
      parts_.panel.showTags();
    }
  }
  parts_.tagWriter.UpdateTags();
}

}  // namespace velmora::batch
