#pragma once

#include <algorithm>

#include "tests/support/house_world.h"
#include "tests/support/mp3_maker.h"

namespace velmora::test {

/// The list commands and the controls of the Processing Window that they stand behind. Music lies under
/// "music", the base under "base".
struct ListWorld : HouseWorld {
  list::ListMaker& maker = house.listMaker;
  list::ListViews& views = house.listViews;
  list::OtherFiles& other = house.otherFiles;
  list::ArtistCompletion& completion = house.completion;

  ListWorld() {
    table.aktivniprozor = core::WindowAtWork::Processing;
    form1.List4.onClick = [this] { views.List4Click(); };
    form1.List1.onClick = [this] { views.List1Click(); };
    form1.List3.onClick = [this] { completion.List3Click(); };
    form1.Text1.onChange = [this] { completion.boxChanged(); };
    form1.muzickiFajlovi.onClick = [this] { views.showMusicFiles(); };
    form1.ostali.onClick = [this] { views.showOtherFiles(); };
  }

  Text song(TextView name, const SongTags& tags = {}) {
    return folder.write(name, mpegFrames(2) + id3v1Tag(tags));
  }
  void add(TextView name) {
    form1.folderTree.setPath(folder.path(name));
    maker.add();
  }
  void useBase() {
    settings.set(u"DirZaBazu", folder.path(u"base"));
    windows.form5.refreshOldMusicList.setChecked(true);
  }
  /// Paths of the working list; of the tail behind it. Sorted, since folders are listed in no fixed order.
  Texts working() const { return paths(1, table.brojfajlova()); }
  Texts tail() const { return paths(table.brojfajlova() + 1, table.rows()); }
  Texts paths(int first, int last) const {
    Texts found;
    for (int row = first; row <= last; ++row) found.push_back(table.path(row));
    return sorted(found);
  }
  static Texts sorted(Texts texts) {
    std::ranges::sort(texts);
    return texts;
  }
  Text partsOf(const Text& path) const {
    for (int row = 1; row <= table.rows(); ++row)
      if (table.path(row) == path)
        return table.track(row).pevac.text() + u"|" + table.track(row).pesma.text();
    return {};
  }
  /// No command is left open: windows can be used and clicks get through.
  void expectAtRest() const {
    EXPECT_TRUE(form1.enabled() && windows.form8.enabled());
    EXPECT_FALSE(windows.dialog1.visible() || progress.shown());
    EXPECT_EQ(table.puniliste, 0);
  }
};

}  // namespace velmora::test
