#pragma once

#include <functional>
#include <vector>

#include "base/folder_walk.h"
#include "base/folders.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "ui/failures.h"

namespace velmora::base {

/// The file moves of one Ren command: first collected, then done one by one. An object lives for one command;
/// at its end what is left in holding folders has gone back to where it came from.
class FolderMoves {
 public:
  struct Parts {
    platform::Files& files;
    ui::Failures& failures;
    platform::FileHolder& player;
    Folders& folders;
  };
  explicit FolderMoves(const Parts& parts) : parts_(parts), walk_(parts.files, FolderWalk::Links::AreFiles) {}
  ~FolderMoves() { giveBack(); }
  FolderMoves(const FolderMoves&) = delete;
  FolderMoves& operator=(const FolderMoves&) = delete;

  /// Raised before a file or folder is moved, for the external player that may play it.
  std::function<void(const Text& path)> onMoving;

  struct Move {
    Text from;
    Text to;
    Text known;  ///< path of the file before the command, by which a player knows it
  };
  const std::vector<Move>& moves() const { return moves_; }

  /// Adds the moves that bring all files of `source` to `target`, and makes the target's folders. A link
  /// counts as a file, wherever it leads. Subfolders are left out where the target lies inside the source.
  /// Where the two differ in capitals alone, the source becomes a holding folder first, so that no file would
  /// move onto itself. Returns true when the command has to stop, after a message.
  bool CollectRename(TextView source, TextView target);
  /// Moves one file, which never overwrites another; a failure asks. The player that holds the file goes on.
  /// Returns true when the user chose Abort.
  bool MoveFile(const Move& move);

 private:
  struct Holding {
    Text folder;
    Text origin;
  };
  void collect(const Text& source, const Text& target, const Text& known);
  Text toHolding(const Text& source, const Text& target);
  void giveBack();

  Parts parts_;
  FolderWalk walk_;
  std::vector<Move> moves_;
  std::vector<Holding> holdings_;
};

}  // namespace velmora::base
