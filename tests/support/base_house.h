#pragma once

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "tests/support/headless_velmora.h"
#include "tests/support/other_volume.h"
#include "tests/support/tree_snapshot.h"
#include "tests/support/walk.h"

namespace velmora::test {

/// New music beside a Music Base, on one volume or on two, with both windows open, and a user who selects
/// anything in them and presses any of their buttons.
class BaseHouse {
 public:
  /// Where the machine has one volume only, the new music is told to lie on another.
  explicit BaseHouse(bool twoVolumes);

  /// Makes songs and a base, both with names that clash, that differ in capitals alone and that are odd.
  void start(int songs = 10);
  /// More new music, under the names of the first; ten at most.
  void addSongs(int songs = 10);

  /// Selects the row of this text alone, where there is one.
  static void click(ui::ListBox& list, TextView text);
  /// Selects one row or two; nothing in an empty list.
  void pick(ui::ListBox& list, Dice& random);
  void pickAnything(Dice& random);
  /// The user goes to the base and presses a button.
  void pressInBase(ui::Button& button);
  /// The same in the New Music Window, which comes back when it was closed.
  void pressInNewMusic(ui::Button& button);
  /// MOVE of any column, Name of any, or Undo Last Operation.
  void moveNameOrUndo(Dice& random);
  /// New, Ren or Del of any column, under a name that may be there already.
  void changeBase(Dice& random);
  void undoAll();

  ui::Form2& form2() { return program.windows().form2; }
  ui::Form3& form3() { return program.form3(); }
  const Text& music() const { return music_; }
  Text base() const { return program.folder.path(u"base"); }
  /// Paths by content of all files in the new music, the base and the trash, such as "base/Pop/x.mp3".
  /// Copies that were not finished do not count.
  using Places = std::map<Bytes, std::set<std::string>>;
  Places places() const;
  /// The contents, as often as they are there.
  std::multiset<Bytes> contents() const;
  /// No command is left open.
  void expectAtRest();

  HeadlessVelmora program;
  int songFrames = 1;

 private:
  OtherVolume other_;
  Text music_;
  int songs_ = 0;  // made so far
};

}  // namespace velmora::test
