#pragma once

#include "platform/dialogs.h"
#include "platform/files.h"
#include "player/hand_over.h"

namespace velmora::review {

enum class MoveResult {
  Moved = 0,
  Abort = 1,   ///< the user ends the whole command
  Ignored = 2  ///< the user passes over this file, which stays where it is
};

/// The move of one file, with its failure dialog. It knows neither table nor journal.
class FileMover {
 public:
  FileMover(platform::Files& files, platform::Dialogs& dialogs, player::FileHolder& player)
      : files_(files), dialogs_(dialogs), player_(player) {}

  /// Moves a file to the full path `target`, and puts blanks before the last four characters of the new name
  /// for as long as another file has it. The preview player lets go of the file meanwhile and then goes on.
  /// `movedTo`, when given, receives the path that the file got.
  MoveResult move(const Text& path, Text target, Text* movedTo = nullptr);

 private:
  Text moveToFreeName(const Text& path, Text target);

  platform::Files& files_;
  platform::Dialogs& dialogs_;
  player::FileHolder& player_;
};

}  // namespace velmora::review
