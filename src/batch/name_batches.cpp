#include "batch/name_batches.h"

#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "names/grammar.h"
#include "tags/open_song.h"

namespace velmora::batch {

namespace {

Text trimmed(TextView text) {
  return Text(core::trim(text));
}

}  // namespace

bool NameBatches::renameRow(int row, const Text& name) {
  const rows::RenameResult result = parts_.renamer.rename(row, name, true);
  parts_.artists.DodajAutora(parts_.table.track(row).pevac.text());
  return result != rows::RenameResult::Abort;
}

void NameBatches::fixSyntax() {
  parts_.frame.run(u"Fix Syntax ...", parts_.frame.selectedRows(), [this](int row) {
    return renameRow(row, parts_.fixer.fixedName(names::ImeFajla(parts_.table, row)));
  });
}

void NameBatches::removeString() {
  const std::vector<int> rows = parts_.frame.selectedRows();
  if (rows.empty()) return;
  // Cancel removes nothing, and the names are fixed all the same.
  const Text removed =
      parts_.dialogs
          .input(u"Input string to remove from selected files:", u"Remove String", parts_.form1.Text1.text())
          .value_or(Text());
  parts_.frame.run(u"Remove String ...", rows, [this, &removed](int row) {
    const Text left = core::replaceAll(names::ImeFajla(parts_.table, row), removed, {});
    return renameRow(row, parts_.fixer.fixedName(left));
  });
}

void NameBatches::removeTrackNumber() {
  parts_.frame.run(u"Removing Track Number ...", parts_.frame.selectedRows(), [this](int row) {
    return removeNumber(row, {3, 2, 1}, &tags::FieldValues::track);
  });
}

void NameBatches::removeYearNumber() {
  parts_.frame.run(u"Removing Year Number ...", parts_.frame.selectedRows(),
                   [this](int row) { return removeNumber(row, {4}, &tags::FieldValues::year); });
}

bool NameBatches::removeNumber(int row, std::initializer_list<int> lengths, TagField into) {
  const Text name = names::ImeFajla(parts_.table, row);
  names::RemovedNumber removed;
  for (const int length : lengths) {
    removed = names::SkiniBroj(name, length);
    if (!removed.digits.empty()) break;
  }
  if (removed.digits.empty()) return true;
  const Text left = parts_.fixer.fixedName(removed.name);
  if (left != name) {
    const rows::RenameResult result = parts_.renamer.rename(row, left, true);
    parts_.artists.DodajAutora(parts_.table.track(row).pevac.text());
    if (result != rows::RenameResult::Done) return result != rows::RenameResult::Abort;
  }
  return !parts_.options.fix10.checked() || insertNumber(row, removed.digits, into);
}

bool NameBatches::insertNumber(int row, const Text& digits, TagField into) {
  const core::Track& track = parts_.table.track(row);
  // The dash that is stored next may cut the artist's own name in two, which the tags must not follow.
  tags::FieldValues values{.title = trimmed(track.pesma.text()), .artist = trimmed(track.pevac.text())};
  values.*into = digits;
  findFirstDash(row);
  parts_.tagCache.read(track.nizdes.text(), row);
  if (!track.imaid3v1.isTrue() && !track.imaid3v2.isTrue()) return true;
  const ui::TagPanel& panel = parts_.form1.tags;
  tags::OpenSong song(parts_.files, track.nizdes.text());
  return parts_.tagWriter.write(song, row, values,
                                {panel.writeID3v1.checked(), panel.writeID3v2.checked()}) !=
         tags::UpdateResult::Abort;
}

void NameBatches::findFirstDash(int row) {
  const core::Track& track = parts_.table.track(row);
  const Text artist = track.pevac.text();
  const int dash = core::position(names::ImeFajla(parts_.table, row), u"-");
  parts_.table.track(row).crtapos = core::number(std::int64_t{dash});
  names::PevacIPesma(parts_.table, row);
  if (track.pevac.text() == artist) return;
  parts_.artists.DodajAutora(track.pevac.text());
  parts_.artists.IzbaciAutora(artist);
}

void NameBatches::replaceArtistTitle() {
  parts_.frame.run(u"Replace artist - title ...", parts_.frame.selectedRows(), [this](int row) {
    const core::Track& track = parts_.table.track(row);
    const names::SyntaxFixer& fixer = parts_.fixer;
    return renameRow(row, fixer.Filter(track.pesma.text(), fixer.Filautora()) + u" - " +
                              fixer.Filter(track.pevac.text(), fixer.Filpesme()));
  });
}

void NameBatches::fromTags() {
  const ui::TagPanel& panel = parts_.form1.tags;
  // The choice holds for all: a row that lacks this tag must not change it for the rows behind it.
  const bool first = panel.viewID3v1.chosen() && !parts_.panel.onlyFirstThere();
  parts_.frame.run(u"Update Filenames From ID3 Tags ...", parts_.frame.selectedRows(),
                   [this, first](int row) {
                     const Text name = nameFromTag(row, first);
                     return name == u" - " || renameRow(row, name);
                   });
}

Text NameBatches::nameFromTag(int row, bool preferFirst) {
  const core::Track& track = parts_.table.track(row);
  parts_.tagCache.read(track.nizdes.text(), row);
  const bool second = track.imaid3v2.isTrue();
  const bool first = track.imaid3v1.isTrue() && (preferFirst || !second);
  if (!first && !second) return u" - ";
  const core::Element& artist = first ? track.pevacID3v1 : track.pevacID3v2;
  const core::Element& title = first ? track.pesmaid3v1 : track.pesmaid3v2;
  return trimmed(names::OcistiIme(artist.text())) + u" - " + trimmed(names::OcistiIme(title.text()));
}

void NameBatches::rename() {
  const std::vector<int> rows = parts_.frame.selectedRows();
  if (rows.size() <= 1) {
    // The name box belongs to the current row, which the panel shows.
    const int row = parts_.table.currentRow;
    if (rows.empty() || !parts_.panel.shows(row)) return;
    return parts_.frame.run(u"Renaming ...", {row}, [this](int only) {
      const rows::RenameResult result = parts_.renamer.PromeniIme(only, true);
      parts_.artists.DodajAutora(parts_.table.track(only).pevac.text());
      return result != rows::RenameResult::Abort;
    });
  }
  parts_.frame.run(u"Renaming ...", rows, [this](int row) {
    const core::Track& track = parts_.table.track(row);
    // A name without an artist part has no dash to set right.
    if (core::value(track.crtapos.text()) == 0) return true;
    return renameRow(row, trimmed(track.pevac.text()) + u" - " + trimmed(track.pesma.text()));
  });
}

void NameBatches::renameFiles() {
  ui::ListBox& songs = parts_.form1.List2;
  const std::vector<int> lines = songs.selectedIndexes();
  std::size_t next = 0;
  const Text artist = trimmed(parts_.form1.Text8.text());
  const Text typed = trimmed(parts_.form1.Text5.text());
  parts_.frame.run(u"Rename ...", parts_.frame.selectedSongs(), [&](int row) {
    while (next < lines.size() && songs.ItemData(lines[next]) != row) ++next;
    const bool ownTitle = lines.size() > 1 && next < lines.size();
    const Text title = ownTitle ? trimmed(songs.List(lines[next])) : typed;
    const rows::RenameResult result =
        parts_.renamer.rename(row, artist.empty() ? title : artist + u" - " + title, true);
    if (next < lines.size()) songs.setList(lines[next], parts_.table.track(row).pesma.text());
    return result != rows::RenameResult::Abort;
  });
}

}  // namespace velmora::batch
