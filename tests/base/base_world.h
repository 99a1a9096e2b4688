#pragma once

#include "app/wiring.h"
#include "tests/support/house_world.h"
#include "tests/support/tree_snapshot.h"

namespace velmora::test {

/// A Music Base, and its window with the rooms behind it.
struct BaseWorld : HouseWorld {
  app::BaseRoom& room = house.baseRoom;
  ui::Form3& form3 = windows.form3;
  base::LastPosition& positions = room.positions;
  base::YearFilter& years = room.years;
  base::BaseLists& lists = room.lists;
  base::Folders& folders = room.folders;
  base::NewFolders& newFolders = room.newFolders;

  BaseWorld() {
    table.aktivniprozor = core::WindowAtWork::MusicBase;
    folder.mkdir(u"base");
    settings.set(u"DirZaBazu", folder.path(u"base"));
    app::wireForm3(house);
    years.load(2026);
    lists.readRoot();
  }

  /// Makes files below the base; their content is their first name. A name that ends in "/" is a folder.
  void make(const Texts& names) {
    for (const Text& name : names) {
      if (name.ends_with(u'/'))
        folder.mkdir(u"base/" + name.substr(0, name.size() - 1));
      else
        folder.write(u"base/" + name, core::toBytes(name));
    }
  }
  /// The same, and the genres are listed.
  void show(const Texts& names) {
    make(names);
    lists.IzlistajBazu();
  }
  /// Answers the question of a command.
  void answer(Text text, Text title, platform::Answer given = platform::Answer::Ok) {
    dialogs.expect(std::move(text), std::move(title), given);
  }
  /// No command is left open: windows can be used and clicks get through.
  void expectAtRest() const {
    EXPECT_TRUE(form1.enabled() && windows.form2.enabled() && form3.enabled());
    EXPECT_FALSE(progress.shown());
    EXPECT_EQ(table.puniliste, 0);
    EXPECT_EQ(table.aktivniprozor, core::WindowAtWork::MusicBase);
  }
  /// A path below the base.
  Text at(TextView name) const { return folder.path(u"base/" + Text(name)); }
  Bytes content(TextView name) const { return folder.read(u"base/" + Text(name)); }
  bool there(TextView name) const { return folder.exists(u"base/" + Text(name)); }
  TreeSnapshot snapshot() const { return TreeSnapshot::of(folder.path(u"base")); }
};

}  // namespace velmora::test
