#pragma once

#include <gtest/gtest.h>

#include "app/house.h"
#include "core/number_text.h"
#include "platform/file_error.h"
#include "system/posix_files.h"
#include "tests/support/fake_media_player.h"
#include "tests/support/fault_files.h"
#include "tests/support/list_reader.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

namespace velmora::test {

/// A trash that is a folder beside the music, and that refuses one path.
struct FolderTrash final : platform::Trash {
  FolderTrash(platform::Files& realFiles, const TempFolder& tempFolder)
      : files(realFiles), folder(tempFolder) {}
  Text send(const Text& path, const Announce& announce) override {
    if (path == refused) throw platform::FileError(platform::FileError::permissionDenied);
    folder.mkdir(u"trash");
    Text there = folder.path(u"trash/" + core::plain(std::int64_t(sent.size())));
    if (announce) announce(there);
    files.move(path, there);
    sent.push_back(path);
    return there;
  }
  void bringBack(const Text& trashPath, const Text& target) override { files.move(trashPath, target); }

  platform::Files& files;
  const TempFolder& folder;
  Text refused;
  Texts sent;
};

/// Every room of the program, built as the program builds them and open to the test, over real files in a
/// folder of their own and with a scripted user. No control is wired, and nothing starts by itself.
struct HouseWorld : testing::Test, ListReader {
  TempFolder folder;
  system::PosixFiles disk;
  FaultFiles files{disk};  ///< what the rooms and the trash see of the disk
  FolderTrash trash{files, folder};
  ScriptedDialogs dialogs;
  ScriptedDesktop desktop;
  FakeMediaPlayer media;
  app::House house{{.files = files, .trash = trash, .dialogs = dialogs, .desktop = desktop, .media = media},
                   {.program = folder.path(), .shipped = folder.path(u"shipped")}};
  ui::Windows& windows = house.windows;
  ui::Form1& form1 = windows.form1;
  core::TrackTable& table = house.table;
  core::Settings& settings = house.settings;
  core::DataFolder& data = house.data;
  ui::Progress& progress = house.progress;
  journal::UndoJournal& journal = house.journal;
};

}  // namespace velmora::test
