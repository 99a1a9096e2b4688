#pragma once

#include <functional>

#include "platform/files.h"
#include "platform/hand_over.h"
#include "platform/trash.h"
#include "ui/failures.h"

namespace velmora::rows {

enum class MoveResult {
  Moved = 0,
  Abort = 1,   ///< the user ends the whole command
  Ignored = 2  ///< the user passes over this file, which stays where it is
};

/// The move of one file, with its failure dialog. It knows neither table nor journal.
class FileMover {
 public:
  FileMover(platform::Files& files, ui::Failures& failures, platform::FileHolder& player)
      : files_(files), failures_(failures), player_(player) {}

  /// Moves a file to the full path `target`, and puts blanks before the last four characters of the new name
  /// for as long as another file has it. The preview player lets go of the file meanwhile and then goes on.
  /// `movedTo`, when given, receives the path that the file got.
  MoveResult move(const Text& path, const Text& target, Text* movedTo = nullptr);
  /// The same for a file that lies in the trash under `trashPath`.
  MoveResult bringBack(platform::Trash& trash, const Text& trashPath, const Text& target,
                       Text* movedTo = nullptr);
  /// The same with a move of the caller's own, which is called for each name that is tried. A NotRecorded of
  /// it passes through.
  using Move = std::function<void(const Text& to)>;
  MoveResult moveBy(const Move& moveOnce, const Text& path, const Text& target, Text* movedTo);

 private:
  Text moveToFreeName(const Move& moveOnce, const Text& path, Text target);

  platform::Files& files_;
  ui::Failures& failures_;
  platform::FileHolder& player_;
};

}  // namespace velmora::rows
