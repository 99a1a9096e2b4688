#include "newmusic/name_commands.h"

#include "base/active_window.h"
#include "core/text.h"
#include "newmusic/music_undo_group.h"

namespace velmora::newmusic {

namespace {

/// The one selected row counts as the clicked one, whatever row was clicked last.
void clickSelected(ui::ListBox& list) {
  list.setListIndex(list.selectedIndexes().front());
}

}  // namespace

void NameCommands::refuse(const Text& text) {
  parts_.dialogs.message(text, u"Create Folder", platform::Buttons::Ok, platform::Icon::Exclamation);
}

void NameCommands::nameGenre() {
  if (!parts_.newFolders.haveRoot()) return;
  const auto group = openMusicUndoGroup(parts_.journal, parts_.snapshot);
  const base::ActiveWindow atWork(parts_.table, core::WindowAtWork::NewMusic);
  form3_.Combo1.setText(form2_.Combo1.text());
  parts_.newFolders.newGenre();
}

void NameCommands::nameArtist() {
  if (form3_.List1.SelCount() != 1) return refuse(u"Select only ONE item in genre list from Base.");
  const auto group = openMusicUndoGroup(parts_.journal, parts_.snapshot);
  const base::ActiveWindow atWork(parts_.table, core::WindowAtWork::NewMusic);
  clickSelected(form3_.List1);
  form3_.Text2.setText(form2_.Text2.text());
  parts_.newFolders.newArtist();
}

void NameCommands::nameAlbum() {
  if (form3_.List1.SelCount() != 1 || form3_.List2.SelCount() != 1)
    return refuse(u"Select only ONE item in genre and artist list from Base.");
  const auto group = openMusicUndoGroup(parts_.journal, parts_.snapshot);
  const base::ActiveWindow atWork(parts_.table, core::WindowAtWork::NewMusic);
  clickSelected(form3_.List2);
  form3_.Text3.setText(Text(core::trim(form2_.Text3.text())) + u"  " + Text(core::trim(form2_.Text5.text())));
  parts_.newFolders.newAlbum();
}

}  // namespace velmora::newmusic
