#include "batch/name_batches.h"

#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "names/grammar.h"
#include "tags/field_boxes.h"

namespace velmora::batch {

namespace {

Text trimmed(TextView text) {
  return Text(core::trim(text));
}

}  // namespace

bool NameBatches::renameFromBox(int row) {
  const rows::RenameResult result = parts_.renamer.PromeniIme(row, true);
  parts_.artists.DodajAutora(parts_.table.track(row).pevac.text());
  return result != rows::RenameResult::Abort;
}

void NameBatches::fixSyntax() {
  parts_.frame.run(u"Fix Syntax ...", parts_.frame.selectedRows(), [this](int row) {
    fixInBox(names::ImeFajla(parts_.table, row));
    return renameFromBox(row);
  });
}

void NameBatches::fixInBox(TextView name) {
  parts_.form1.Text1.setText(name);
  parts_.fixer.fixTextBox();
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
    fixInBox(core::replaceAll(names::ImeFajla(parts_.table, row), removed, {}));
    return renameFromBox(row);
  });
}

void NameBatches::removeTrackNumber() {
  parts_.frame.run(u"Removing Track Number ...", parts_.frame.selectedRows(), [this](int row) {
    return removeNumber(row, {3, 2, 1}, parts_.form1.tags.track);
  });
}

void NameBatches::removeYearNumber() {
  parts_.frame.run(u"Removing Year Number ...", parts_.frame.selectedRows(),
                   [this](int row) { return removeNumber(row, {4}, parts_.form1.tags.year); });
}

bool NameBatches::removeNumber(int row, std::initializer_list<int> lengths, ui::TextBox& tagBox) {
  const Text name = names::ImeFajla(parts_.table, row);
  names::RemovedNumber removed;
  for (const int length : lengths) {
    removed = names::SkiniBroj(name, length);
    if (!removed.digits.empty()) break;
  }
  if (removed.digits.empty()) return true;
  fixInBox(removed.name);
  if (parts_.form1.Text1.text() != name) {
    const rows::RenameResult result = parts_.renamer.PromeniIme(row, true);
    parts_.artists.DodajAutora(parts_.table.track(row).pevac.text());
    if (result != rows::RenameResult::Done) return result != rows::RenameResult::Abort;
  }
  if (parts_.options.fix10.checked()) insertNumber(row, removed.digits, tagBox);
  return true;
}

void NameBatches::insertNumber(int row, const Text& digits, ui::TextBox& tagBox) {
  const core::Track& track = parts_.table.track(row);
  const tags::OwnValues ownValues(parts_.form1);
  tags::OpenSong song(parts_.files, track.nizdes.text());
  parts_.panel.info(song, row);
  // The dash that is stored next may cut the artist's own name in two, which the tags must not follow.
  const Text artist = trimmed(track.pevac.text());
  const Text title = trimmed(track.pesma.text());
  findFirstDash(row);
  if (!track.imaid3v1.isTrue() && !track.imaid3v2.isTrue()) return;
  const ui::TagPanel& panel = parts_.form1.tags;
  parts_.tagWriter.write(song, panel.writeID3v1.checked(), panel.writeID3v2.checked(), [&] {
    tagBox.setText(digits);
    parts_.form1.tags.artist.setText(artist);
    parts_.form1.tags.title.setText(title);
  });
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
    parts_.panel.info(track.nizdes.text(), row);
    const names::SyntaxFixer& fixer = parts_.fixer;
    parts_.form1.Text1.setText(fixer.Filter(track.pesma.text(), fixer.Filautora()) + u" - " +
                               fixer.Filter(track.pevac.text(), fixer.Filpesme()));
    return renameFromBox(row);
  });
}

void NameBatches::fromTags() {
  parts_.frame.run(u"Update Filenames From ID3 Tags ...", parts_.frame.selectedRows(), [this](int row) {
    const Text name = nameFromTag(row);
    if (name == u" - ") return true;
    parts_.form1.Text1.setText(name);
    return renameFromBox(row);
  });
}

Text NameBatches::nameFromTag(int row) {
  ui::TagPanel& panel = parts_.form1.tags;
  const bool secondChosen = panel.viewID3v2.chosen();
  const core::Track& track = parts_.table.track(row);
  parts_.panel.info(track.nizdes.text(), row);
  if (secondChosen && panel.viewID3v2.enabled()) panel.viewID3v2.setChosen(true);
  const bool first = panel.viewID3v1.chosen() && track.imaid3v1.isTrue();
  if (!first && !track.imaid3v2.isTrue()) return u" - ";
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
    return parts_.frame.run(u"Renaming ...", {row}, [this](int only) { return renameFromBox(only); });
  }
  parts_.frame.run(u"Renaming ...", rows, [this](int row) {
    const core::Track& track = parts_.table.track(row);
    // A name without an artist part has no dash to set right.
    if (core::value(track.crtapos.text()) == 0) return true;
    parts_.form1.Text1.setText(trimmed(track.pevac.text()) + u" - " + trimmed(track.pesma.text()));
    return renameFromBox(row);
  });
}

void NameBatches::renameFiles() {
  ui::ListBox& songs = parts_.form1.List2;
  const std::vector<int> lines = songs.selectedIndexes();
  std::size_t next = 0;
  const bool several = lines.size() > 1;
  parts_.frame.run(u"Rename ...", parts_.frame.selectedSongs(), [&](int row) {
    ui::Form1& form1 = parts_.form1;
    while (next < lines.size() && songs.ItemData(lines[next]) != row) ++next;
    if (several && next < lines.size()) form1.Text5.setText(songs.List(lines[next]));
    const Text artist = trimmed(form1.Text8.text());
    const Text title = trimmed(form1.Text5.text());
    form1.Text1.setText(artist.empty() ? title : artist + u" - " + title);
    const rows::RenameResult result = parts_.renamer.PromeniIme(row, true);
    if (next < lines.size()) songs.setList(lines[next], parts_.table.track(row).pesma.text());
    return result != rows::RenameResult::Abort;
  });
}

}  // namespace velmora::batch
