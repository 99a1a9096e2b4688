#include "app/enable_commands.h"
#include "app/house.h"
#include "app/wiring.h"

namespace velmora::app {

namespace {

void wireColumns(House& house) {
  ui::Form2& form2 = house.windows.form2;
  newmusic::NewMusicLists& lists = house.baseRoom.newMusic;
  const auto click = [&house, &lists](void (newmusic::NewMusicLists::*handler)()) {
    return [&house, &lists, handler] {
      (lists.*handler)();
      enableBaseCommands(house);
    };
  };
  form2.List1.onClick = click(&newmusic::NewMusicLists::List1Click);
  form2.Dir1.onClick = click(&newmusic::NewMusicLists::Dir1Click);
  form2.Drive1.onChange = click(&newmusic::NewMusicLists::Drive1Change);
  form2.List2.onClick = click(&newmusic::NewMusicLists::List2Click);
  form2.List3.onClick = click(&newmusic::NewMusicLists::List3Click);
  form2.List8.onClick = click(&newmusic::NewMusicLists::List8Click);
  form2.List4.onClick = click(&newmusic::NewMusicLists::List4Click);
  form2.genreByTag.onClick = click(&newmusic::NewMusicLists::genresByTag);
  form2.genreByFolder.onClick = click(&newmusic::NewMusicLists::genresByFolder);
  form2.albumByTag.onClick = click(&newmusic::NewMusicLists::albumsByTag);
  form2.albumByFolder.onClick = click(&newmusic::NewMusicLists::albumsByFolder);
  house.artists.onAdded = [&lists](const Text& artist) { lists.artistAdded(artist); };
  house.artists.onRemoved = [&lists](const Text& artist) { lists.artistRemoved(artist); };
}

void wirePlaying(House& house) {
  ui::ListBox& titles = house.windows.form2.List4;
  titles.onDoubleClick = [&house, &titles] {
    if (titles.ListIndex() >= 0) house.player.playRow(titles.ItemData(titles.ListIndex()));
  };
  titles.onKey = [&titles](ui::KeyPress press) {
    if (press.key != ui::Key::Enter) return false;
    titles.doubleClick();
    return true;
  };
}

void wireMoves(House& house) {
  ui::Form2& form2 = house.windows.form2;
  ui::Form3& form3 = house.windows.form3;
  BaseRoom& room = house.baseRoom;
  form2.moveGenre.onClick = command(house, form2, "moveGenre", [&room] { room.moves.moveGenre(); });
  form2.moveArtist.onClick = command(house, form2, "moveArtist", [&room] { room.moves.moveArtist(); });
  form2.moveAlbum.onClick = command(house, form2, "moveAlbum", [&room] { room.moves.moveAlbum(); });
  form2.moveTitle.onClick = command(house, form2, "moveTitle", [&room] { room.moves.moveTitle(); });
  form2.nameGenre.onClick = command(house, form2, "nameGenre", [&room] { room.names.nameGenre(); });
  form2.nameArtist.onClick = command(house, form2, "nameArtist", [&room] { room.names.nameArtist(); });
  form2.nameAlbum.onClick = command(house, form2, "nameAlbum", [&room] { room.names.nameAlbum(); });
  form2.scanTags.onClick = command(house, form2, "scanTags", [&room] { room.tagScan.scan(); });
  form2.undoLastOperation.onClick = command(house, form2, "undoLastOperation", [&house, &room] {
    room.undo.undoLastOperation();
    showUndoState(house);
  });

  // A column that is dragged onto the same column of the base is moved there. The albums by folder go by the
  // same word as those by tag.
  const auto drops = [](ui::ListBox& target, const Text& word, ui::Button& move) {
    target.dropWord = word;
    target.onDrop = [&move, word](const Text& dragged) {
      if (dragged == word) move.click();
    };
  };
  form2.List1.dragWord = u"List1";
  form2.List2.dragWord = u"List2";
  form2.List3.dragWord = u"List8";
  form2.List8.dragWord = u"List8";
  form2.List4.dragWord = u"List4";
  drops(form3.List1, form2.List1.dragWord, form2.moveGenre);
  drops(form3.List2, form2.List2.dragWord, form2.moveArtist);
  drops(form3.List3, form2.List3.dragWord, form2.moveAlbum);
  drops(form3.List8, form2.List4.dragWord, form2.moveTitle);

  room.summary.onAllMoved = [&house] {
    house.newMusic.close();
    enableBaseCommands(house);
  };
  house.repair.replay.onWindowState = [&room](const Text& snapshot) { room.undo.windowState(snapshot); };
}

}  // namespace

void wireForm2(House& house) {
  ui::Form2& form2 = house.windows.form2;
  form2.onCloseRequest = command(house, form2, "close", [&house] { house.newMusic.close(); });
  form2.close.onClick = [&form2] { form2.closeRequest(); };
  form2.onActivate = [&house] {
    house.front.newMusicActivated();
    house.progress.restore();
  };
  wireColumns(house);
  wirePlaying(house);
  wireMoves(house);
}

}  // namespace velmora::app
