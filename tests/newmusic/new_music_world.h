#pragma once

#include <algorithm>

#include "core/paths.h"
#include "names/grammar.h"
#include "tests/base/base_world.h"
#include "ui/quiet_lists.h"

namespace velmora::test {

/// What the tags of a song in the table say; as if they had been read from an ID3v2 tag.
struct NewTags {
  Text genre = {};
  Text album = {};
  Text year = {};
};

/// The New Music Window beside a Music Base, and the rooms behind it.
struct NewMusicWorld : BaseWorld {
  ui::Form2& form2 = windows.form2;
  newmusic::MoveSummary& summary = room.summary;
  newmusic::NewMusicLists& music = room.newMusic;
  newmusic::MoveCommands& moves = room.moves;
  newmusic::NewMusicUndo& undo = room.undo;
  int closed = 0;  ///< how often the New Music Window was asked to close

  NewMusicWorld() {
    table.aktivniprozor = core::WindowAtWork::NewMusic;
    app::wireForm2(house);
    journal.onMarker = [this](std::string_view) { undo.showState(); };
    summary.onAllMoved = [this] { ++closed; };
    settings.set(u"novidir", folder.path(u"new"));
    undo.showState();
  }

  /// A row for a file of this path, whether it is there or not.
  int addRow(const Text& path, const NewTags& tags) {
    table.appendPath(path);
    table.resizeColumns();
    const int row = table.rows();
    table.setBrojfajlova(row);
    names::setDash(table, row, names::dashAfterRename(core::paths::bareName(path), {}));
    core::Track& track = table.track(row);
    track.procitan = true;
    track.imaid3v2 = true;
    track.vrstaid3v2 = tags.genre;
    track.albumid3v2 = tags.album;
    track.godinaid3v2 = tags.year;
    form1.List4.AddItem(path);
    const Text& artist = track.pevac.text();
    if (std::ranges::find(table.autori, artist) == table.autori.end()) table.autori.push_back(artist);
    return row;
  }
  /// A song of new music, on the disk and in the table; its content is its name.
  Text song(TextView name, const NewTags& tags = {}) {
    const Text path = folder.write(u"new/" + Text(name) + u".mp3", core::toBytes(name));
    addRow(path, tags);
    table.velicinasfiles += static_cast<double>(disk.size(path));
    return path;
  }
  /// Both windows list what there is.
  void openBoth() {
    lists.IzlistajBazu();
    const ui::QuietLists quietly(table);
    music.IzlistajVrste();
  }
  /// Kinds of the journal's records, oldest first.
  Names kinds() const {
    Names kinds;
    for (const Text& record : journal.readRecords()) kinds.push_back(core::toBytes(record.substr(0, 3)));
    return kinds;
  }
};

}  // namespace velmora::test
