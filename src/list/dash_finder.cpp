#include "list/dash_finder.h"

#include "core/paths.h"
#include "core/text.h"
#include "names/grammar.h"

namespace velmora::list {

DashFinder::DashFinder(core::TrackTable& table, const rows::ArtistBook& artists, tags::TagCache& tags)
    : table_(table), artists_(artists), tags_(tags) {}

void DashFinder::find(int row) {
  if (!table_.hasRow(row)) return;
  const TextView name = core::paths::bareName(table_.path(row));
  const bool inBase = row > table_.brojfajlova();
  const int start = inBase ? names::dashStart(name, artists_.FolderAutor(row)) : 1;
  int dash = core::position(name, u"-", start);
  if (dash > 0 && start == 1) {
    const int second = core::position(name, u"-", dash + 1);
    if (second > 0 && artistInTags(row, core::left(name, second - 1))) dash = second;
  }
  // "Track 01 - Song" names no artist.
  if (dash > 0 && core::startsWithNoCase(name, u"track")) dash = 0;
  names::setDash(table_, row, dash);
}

bool DashFinder::artistInTags(int row, TextView artist) {
  tags_.read(table_.path(row), row);
  const core::Track& track = table_.track(row);
  const TextView wanted = core::trim(artist);
  return core::equalNoCase(wanted, core::trim(track.pevacID3v1.text())) ||
         core::equalNoCase(wanted, core::trim(track.pevacID3v2.text()));
}

}  // namespace velmora::list
