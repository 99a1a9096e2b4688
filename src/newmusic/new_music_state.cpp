#include "newmusic/new_music_state.h"

#include "base/state_fields.h"
#include "newmusic/click_hold.h"
#include "ui/list_state.h"
#include "ui/quiet_lists.h"

namespace velmora::newmusic {

namespace {

// The fields, in their order. An option is 1 where the column goes by tag; the genre column by folder is -2.
enum Field {
  AlbumsByTag,
  GenresByTag,
  SelectedGenres,
  SelectedArtists,
  SelectedAlbums,
  SelectedTitles,
  TopGenre,
  TopArtist,
  TopAlbum,
  TopTitle,
  fieldCount
};

constexpr int byTag = 1;
constexpr TextView byTagField = u"1:";
constexpr TextView byFolderField = u"0:";
constexpr TextView genresByFolderField = u"-2:";

int first(const std::vector<int>& field, int without) {
  return field.empty() ? without : field.front();
}

}  // namespace

Text NewMusicState::stateText() const {
  const ui::Form2& form2 = parts_.form2;
  const ui::ListBox& albums = form2.albumByTag.chosen() ? form2.List3 : form2.List8;
  Text state(form2.albumByTag.chosen() ? byTagField : byFolderField);
  state += form2.genreByTag.chosen() ? byTagField : genresByFolderField;
  for (const ui::ListBox* list : {&form2.List1, &form2.List2, &albums, &form2.List4})
    state += base::selectedField(*list);
  for (const ui::ListBox* list : {&form2.List1, &form2.List2, &albums, &form2.List4})
    state += base::topField(*list);
  return state;
}

void NewMusicState::store() {
  parts_.settings.set(u"stanje2", stateText());
  if (parts_.form2.genreByFolder.chosen()) parts_.settings.set(u"form2dis", parts_.form2.Dir1.path());
}

void NewMusicState::restore(TextView state) {
  const ui::QuietLists quietly(parts_.table);
  const ui::ListState fields = ui::readListState(state, fieldCount);
  ui::Form2& form2 = parts_.form2;
  restoreOptions(first(fields[AlbumsByTag], byTag), first(fields[GenresByTag], byTag));
  if (form2.genreByTag.chosen()) base::selectRows(form2.List1, fields[SelectedGenres]);
  base::selectRows(form2.List2, fields[SelectedArtists]);
  ui::ListBox& albums = form2.albumByTag.chosen() ? form2.List3 : form2.List8;
  base::selectRows(albums, fields[SelectedAlbums]);
  base::selectRows(form2.List4, fields[SelectedTitles]);
  form2.List1.setTopIndex(first(fields[TopGenre], 0));
  form2.List2.setTopIndex(first(fields[TopArtist], 0));
  albums.setTopIndex(first(fields[TopAlbum], 0));
  form2.List4.setTopIndex(first(fields[TopTitle], 0));
}

/// Sets the options by hand and does what choosing them would have done, since an option that was chosen
/// before raises no click.
void NewMusicState::restoreOptions(int albumsByTag, int genresByTag) {
  ui::Form2& form2 = parts_.form2;
  {
    const ClickHold hold(parts_.lists.held());
    (albumsByTag == byTag ? form2.albumByTag : form2.albumByFolder).setChosen(true);
    (genresByTag == byTag ? form2.genreByTag : form2.genreByFolder).setChosen(true);
  }
  form2.List3.setVisible(form2.albumByTag.chosen());
  form2.List8.setVisible(form2.albumByFolder.chosen());
  if (form2.genreByTag.chosen()) return parts_.lists.showGenresByTag();
  parts_.lists.showFolder(parts_.settings.get(u"form2dis"));
}

}  // namespace velmora::newmusic
