#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/base_lists.h"
#include "base/file_commands.h"
#include "base/folder_commands.h"
#include "base/folders.h"
#include "base/new_folders.h"
#include "base/trash_files.h"
#include "core/number_text.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "system/posix_files.h"
#include "tests/support/fault_files.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"
#include "tests/support/tree_snapshot.h"
#include "ui/progress.h"
#include "ui/windows.h"

namespace velmora::test {

using Names = std::vector<std::string>;

/// A trash that is a folder beside the base, and that refuses one path.
struct FolderTrash final : platform::Trash {
  FolderTrash(platform::Files& realFiles, const TempFolder& tempFolder)
      : files(realFiles), folder(tempFolder) {}
  Text send(const Text& path) override {
    if (path == refused) throw platform::FileError(platform::FileError::permissionDenied);
    folder.mkdir(u"trash");
    Text there = folder.path(u"trash/" + core::plain(std::int64_t(sent.size())));
    files.move(path, there);
    sent.push_back(path);
    return there;
  }
  void bringBack(const Text& trashPath, const Text& target) override { files.move(trashPath, target); }

  platform::Files& files;
  const TempFolder& folder;
  Text refused;
  std::vector<Text> sent;
};

/// A player that holds one file, and is told what becomes of it.
struct HeldFile final : player::FileHolder {
  bool holds(const Text& path) const override { return !path.empty() && path == held; }
  void release() override { held.clear(); }
  void giveBack(const Text& path) override { held = path; }
  void close() override { held.clear(); }

  Text held;
};

/// A Music Base on the real disk, and the rooms that browse and change it, wired as the program wires them.
struct BaseWorld : testing::Test {
  TempFolder folder;
  system::PosixFiles disk;
  FaultFiles files{disk};
  ScriptedDialogs dialogs;
  ScriptedDesktop desktop;
  ui::Windows windows;
  core::TrackTable table;
  core::Settings settings{disk, folder.path(u"Settings.ini")};
  review::UndoJournal journal{disk, settings, folder.path(u"UndoData.txt")};
  ui::Progress progress{table, windows, desktop};
  ui::Form3& form3 = windows.form3;
  base::LastPosition positions{disk, folder.path(u"LastPosition.dat")};
  base::YearFilter years{settings, form3};
  base::BaseLists lists{{.table = table,
                         .settings = settings,
                         .files = files,
                         .desktop = desktop,
                         .form3 = form3,
                         .positions = positions,
                         .years = years}};
  base::Folders folders{{.table = table, .files = files, .journal = journal}};
  base::NewFolders newFolders{
      {.table = table, .dialogs = dialogs, .form3 = form3, .lists = lists, .folders = folders}};
  FolderTrash trash{files, folder};
  HeldFile player;
  base::TrashFiles trashFiles{
      {.table = table, .files = files, .trash = trash, .player = player, .progress = progress}};
  base::FileCommands fileCommands{{.table = table,
                                   .files = files,
                                   .dialogs = dialogs,
                                   .player = player,
                                   .windows = windows,
                                   .progress = progress,
                                   .lists = lists,
                                   .trash = trashFiles}};
  base::FolderCommands folderCommands{{.table = table,
                                       .files = files,
                                       .dialogs = dialogs,
                                       .player = player,
                                       .windows = windows,
                                       .progress = progress,
                                       .lists = lists,
                                       .folders = folders,
                                       .trash = trashFiles,
                                       .fileCommands = fileCommands}};
  std::vector<Text> played;

  BaseWorld() {
    table.aktivniprozor = 3;
    folder.mkdir(u"base");
    settings.set(u"DirZaBazu", folder.path(u"base"));
    form3.List1.onClick = [this] { lists.List1Click(); };
    form3.List2.onClick = [this] { lists.List2Click(); };
    form3.List3.onClick = [this] { lists.List3Click(); };
    form3.List8.onClick = [this] { lists.List8Click(); };
    form3.List3.onMouseUp = [this] { lists.List3MouseUp(); };
    form3.List8.onDoubleClick = [this] { lists.List8DoubleClick(); };
    lists.onPlay = [this](const Text& path) { played.push_back(path); };
    years.load(2026);
    lists.readRoot();
  }

  /// Makes files below the base; their content is their first name. A name that ends in "/" is a folder.
  void make(const std::vector<Text>& names) {
    for (const Text& name : names) {
      if (name.ends_with(u'/'))
        folder.mkdir(u"base/" + name.substr(0, name.size() - 1));
      else
        folder.write(u"base/" + name, core::toBytes(name));
    }
  }
  /// The same, and the genres are listed.
  void show(const std::vector<Text>& names) {
    make(names);
    lists.IzlistajBazu();
  }
  static int find(const ui::ListBox& list, TextView text) {
    for (int index = 0; index < list.ListCount(); ++index)
      if (list.List(index) == text) return index;
    ADD_FAILURE() << "no row " << core::toBytes(text);
    return -1;
  }
  /// The user clicks these rows, the last of them last.
  static void click(ui::ListBox& list, const std::vector<Text>& rows) {
    std::vector<int> indexes;
    for (const Text& row : rows) indexes.push_back(find(list, row));
    list.select(indexes, indexes.back());
  }
  static Names rows(const ui::ListBox& list) {
    Names names;
    for (int index = 0; index < list.ListCount(); ++index) names.push_back(core::toBytes(list.List(index)));
    return names;
  }
  static Names chosen(const ui::ListBox& list) {
    Names names;
    for (const int index : list.selectedIndexes()) names.push_back(core::toBytes(list.List(index)));
    return names;
  }
  /// Answers the question of a command.
  void answer(Text text, Text title, platform::Answer given = platform::Answer::Ok) {
    dialogs.expect(std::move(text), std::move(title), given);
  }
  /// No command is left open: windows can be used and clicks get through.
  void expectAtRest() const {
    EXPECT_TRUE(windows.form1.enabled() && windows.form2.enabled() && windows.form3.enabled());
    EXPECT_FALSE(progress.shown());
    EXPECT_EQ(table.puniliste, 0);
    EXPECT_EQ(table.aktivniprozor, 3);
  }
  /// A path below the base.
  Text at(TextView name) const { return folder.path(u"base/" + Text(name)); }
  Bytes content(TextView name) const { return folder.read(u"base/" + Text(name)); }
  bool there(TextView name) const { return folder.exists(u"base/" + Text(name)); }
  TreeSnapshot snapshot() const { return TreeSnapshot::of(folder.path(u"base")); }
};

}  // namespace velmora::test
