#include "tags/each_tag_writer.h"

#include "core/number_text.h"
#include "tags/field_boxes.h"

namespace velmora::tags {

void EachTagWriter::write(OpenSong& song, bool toID3v1, bool toID3v2, const std::function<void()>& fill) {
  if (!toID3v1 && !toID3v2) return;
  const KeptWriteMarks marks(form1_.tags);
  const core::Track& track = table_.track(table_.currentRow);
  const bool hasBoth = track.imaid3v1.isTrue() && track.imaid3v2.isTrue();
  ui::TagPanel& panel = form1_.tags;
  if (hasBoth && toID3v1 && toID3v2 && !sameButForTitleAndArtist()) {
    writeOnce(song, panel.viewID3v1, true, false, fill);
    writeOnce(song, panel.viewID3v2, false, true, fill);
    return;
  }
  const bool viewFirst = hasBoth ? !toID3v2 : track.imaid3v1.isTrue();
  writeOnce(song, viewFirst ? panel.viewID3v1 : panel.viewID3v2, toID3v1, toID3v2, fill);
}

void EachTagWriter::writeOnce(OpenSong& song, ui::OptionButton& view, bool toID3v1, bool toID3v2,
                              const std::function<void()>& fill) {
  // The view that is not there has no values to show.
  if (view.enabled()) view.setChosen(true);
  panel_.showTags();
  form1_.tags.writeID3v1.setChecked(toID3v1);
  form1_.tags.writeID3v2.setChecked(toID3v2);
  fill();
  writer_.UpdateTags(song);
}

bool EachTagWriter::sameButForTitleAndArtist() const {
  const core::Track& track = table_.track(table_.currentRow);
  return track.albumid3v1 == track.albumid3v2 && track.godinaid3v1 == track.godinaid3v2 &&
         track.vrstaid3v1 == track.vrstaid3v2 &&
         core::value(track.brojtrakeid3v1.text()) == core::value(track.brojtrakeid3v2.text());
}

}  // namespace velmora::tags
