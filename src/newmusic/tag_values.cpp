#include "newmusic/tag_values.h"

#include "core/text.h"

namespace velmora::newmusic {

namespace {

using core::Track;

TextView tagValue(const Track& track, core::Column first, core::Column second) {
  TextView value;
  if (track.imaid3v1.isTrue()) value = (track.*first).text();
  if (track.imaid3v2.isTrue()) value = (track.*second).text();
  return core::trim(value).empty() ? TextView() : value;
}

}  // namespace

TextView TagGenre(const core::TrackTable& table, int row) {
  return tagValue(table.track(row), &Track::vrstaid3v1, &Track::vrstaid3v2);
}

TextView TagAlbum(const core::TrackTable& table, int row) {
  return tagValue(table.track(row), &Track::albumid3v1, &Track::albumid3v2);
}

TextView TagYear(const core::TrackTable& table, int row) {
  return tagValue(table.track(row), &Track::godinaid3v1, &Track::godinaid3v2);
}

Text TagAlbumYear(const core::TrackTable& table, int row) {
  const Text whole = Text(core::trim(TagAlbum(table, row))) + u"  " + Text(TagYear(table, row));
  return Text(core::trim(whole));
}

}  // namespace velmora::newmusic
