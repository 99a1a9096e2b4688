#include "app/enable_commands.h"
#include "app/house.h"

namespace velmora::app {

namespace {

void enableBase(const House& house, ui::Form3& form3) {
  const auto enable = [](ui::ColumnCommands& commands, const ui::ListBox& list, bool hasParent) {
    commands.newFolder.setEnabled(hasParent);
    commands.ren.setEnabled(list.SelCount() > 0);
    commands.del.setEnabled(list.SelCount() > 0);
  };
  enable(form3.genres, form3.List1, true);
  enable(form3.artists, form3.List2, form3.List1.SelCount() > 0);
  enable(form3.albums, form3.List3, form3.List2.SelCount() > 0);
  enable(form3.titles, form3.List8, false);
  form3.showNewMusic.setEnabled(house.table.brojfajlova() > 0 || house.windows.form2.visible());
}

void enableNewMusic(const House& house, ui::Form2& form2) {
  const bool hasRows = house.table.brojfajlova() > 0;
  form2.scanTags.setEnabled(hasRows);
  form2.moveGenre.setEnabled(
      hasRows && (form2.genreByTag.chosen() ? form2.List1.SelCount() > 0 : !form2.Dir1.path().empty()));
  form2.moveArtist.setEnabled(form2.List2.SelCount() > 0);
  form2.moveAlbum.setEnabled((form2.albumByTag.chosen() ? form2.List3 : form2.List8).SelCount() > 0);
  form2.moveTitle.setEnabled(form2.List4.SelCount() > 0);
}

}  // namespace

void enableBaseCommands(House& house) {
  enableBase(house, house.windows.form3);
  enableNewMusic(house, house.windows.form2);
}

}  // namespace velmora::app
