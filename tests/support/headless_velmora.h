#pragma once

#include <memory>
#include <string>

#include "app/velmora.h"
#include "core/settings.h"
#include "system/desktop_trash.h"
#include "system/posix_files.h"
#include "tests/support/fake_media_player.h"
#include "tests/support/fault_files.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

namespace velmora::test {

/// The whole program without a display: its state, the music and the trash lie in a folder of their own, the
/// file system is the real one, and user and dialogs are scripts. Nothing starts by itself.
class HeadlessVelmora {
 public:
  /// The Tip of the Day is switched off, so that a start waits for nobody.
  HeadlessVelmora();
  ~HeadlessVelmora();

  TempFolder folder;
  system::PosixFiles files;
  FaultFiles faults{files};  ///< what the program and its trash see of the file system
  system::DesktopTrash trash;
  ScriptedDialogs dialogs;
  ScriptedDesktop desktop;
  FakeMediaPlayer media;
  core::Settings settings;  ///< the program's own, read and written afresh at each call
  int ends = 0;             ///< how often the program said that it has ended

  /// Folders under `folder`.
  Text programFolder() const { return folder.path(u"program"); }
  Text musicFolder() const { return folder.path(u"music"); }

  /// A file below the music folder; returns its full path.
  Text song(TextView name, BytesView bytes = "no audio, but a file") const;

  void start();
  /// Ends the program as the system would, and starts it again on the same state.
  void restart();
  /// Forgets the program without an end of its own, as a kill does: nothing that it knows is saved.
  void forget() { build(); }
  /// Starts, and brings up the Processing Window when another one is in front.
  void startInProcessingWindow();
  /// The same, and adds the music folder's folder "in" to the list.
  void startWithMusic();

  /// The user picks `path` for Add Folder.
  void addFolder(const Text& path);

  /// Which of the main windows are in sight: "processing", "base", "base, new music".
  std::string shown();

  app::Velmora& app() { return *app_; }
  ui::Windows& windows() { return app_->windows(); }
  ui::Form1& form1() { return windows().form1; }
  ui::Form3& form3() { return windows().form3; }
  core::TrackTable& table() { return app_->table(); }

 private:
  void build();

  std::unique_ptr<app::Velmora> app_;
};

}  // namespace velmora::test
