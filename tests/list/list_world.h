#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include "list/artist_completion.h"
#include "list/list_maker.h"
#include "list/list_views.h"
#include "list/other_files.h"
#include "platform/file_error.h"
#include "system/posix_files.h"
#include "tests/support/fault_files.h"
#include "tests/support/mp3_maker.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"
#include "ui/option_store.h"

namespace velmora::test {

using Texts = std::vector<Text>;

/// A trash that is a list, and that refuses one path.
struct ListTrash final : platform::Trash {
  explicit ListTrash(platform::Files& realFiles) : files(realFiles) {}
  Text send(const Text& path) override {
    if (path == refused) throw platform::FileError(platform::FileError::permissionDenied);
    files.size(path);
    files.remove(path);
    sent.push_back(path);
    return path;
  }
  void bringBack(const Text&, const Text&) override {}

  platform::Files& files;
  Text refused;
  Texts sent;
};

/// A player that holds one path until it is closed.
struct HeldByPlayer final : player::FileHolder {
  bool holds(const Text& path) const override { return path == held; }
  void release() override {}
  void giveBack(const Text& path) override { held = path; }
  void close() override { held.clear(); }

  Text held;
};

/// The list commands over real files in a folder of their own, with a scripted user. Music lies under
/// "music", the base under "base".
struct ListWorld : testing::Test {
  TempFolder folder;
  system::PosixFiles disk;
  FaultFiles files{disk};
  ListTrash trash{files};
  HeldByPlayer player;
  ScriptedDialogs dialogs;
  ScriptedDesktop desktop;
  ui::Windows windows;
  core::TrackTable table;
  core::Settings settings{files, folder.path(u"Settings.ini")};
  core::DataFolder data{files, settings, folder.path()};
  ui::OptionStore options{settings, windows};
  ui::Progress progress{table, windows, desktop};
  list::ClosingStep closing{table, windows, progress, desktop};
  tags::TagCache cache{table, files};
  tags::FilePanel panel{table, files, cache, windows.form1};
  review::UndoJournal journal{files, settings, folder.path(u"UndoData.txt")};
  review::ArtistBook artists{table, data, windows.form1};
  names::DashFinder dashes{table, artists, cache};
  list::ListMaker maker{{.table = table,
                         .settings = settings,
                         .data = data,
                         .files = files,
                         .dialogs = dialogs,
                         .desktop = desktop,
                         .windows = windows,
                         .progress = progress,
                         .closing = closing,
                         .journal = journal,
                         .artists = artists,
                         .dashes = dashes,
                         .panel = panel}};
  list::ListViews views{{.table = table,
                         .data = data,
                         .files = files,
                         .dialogs = dialogs,
                         .windows = windows,
                         .progress = progress,
                         .closing = closing,
                         .panel = panel}};
  list::OtherFiles other{{.table = table,
                          .settings = settings,
                          .data = data,
                          .files = files,
                          .trash = trash,
                          .dialogs = dialogs,
                          .player = player,
                          .windows = windows,
                          .progress = progress,
                          .closing = closing}};
  list::ArtistCompletion completion{table, windows.form1};
  ui::Form1& form1 = windows.form1;

  ListWorld() {
    table.aktivniprozor = 1;
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
  int rowOf(const Text& path) const {
    for (int row = 1; row <= table.rows(); ++row)
      if (table.path(row) == path) return row;
    return 0;
  }
  Text partsOf(const Text& path) const {
    const core::Track& track = table.track(rowOf(path));
    return track.pevac.text() + u"|" + track.pesma.text();
  }
  static Texts rowsOf(const ui::ListBox& list) {
    Texts rows;
    for (int i = 0; i < list.ListCount(); ++i) rows.push_back(list.List(i));
    return rows;
  }
  /// No command is left open: windows can be used and clicks get through.
  void expectAtRest() const {
    EXPECT_TRUE(form1.enabled());
    EXPECT_TRUE(windows.form8.enabled());
    EXPECT_FALSE(windows.dialog1.visible());
    EXPECT_FALSE(progress.shown());
    EXPECT_EQ(table.puniliste, 0);
  }
};

}  // namespace velmora::test
