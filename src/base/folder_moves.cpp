#include "base/folder_moves.h"

#include <utility>

#include "base/base_tree.h"
#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::base {

namespace paths = core::paths;
using platform::FileError;

namespace {

/// What a folder's name ends in while its files change the capitals of their path. Whoever finds such a
/// folder after a crash can rename it like any other.
constexpr TextView holdingSuffix = u"733727sdfs535";

}  // namespace

bool FolderMoves::CollectRename(TextView source, TextView target) {
  if (target.empty()) return false;
  const Text from = paths::withSeparator(source);
  const Text to = paths::withSeparator(target);
  if (from == to) return false;
  try {
    collect(core::equalNoCase(from, to) ? toHolding(from, to) : from, to, from);
    return false;
  } catch (const FileError& error) {
    parts_.failures.dialogs().message(
        u"Unexpected error #" + core::plain(std::int64_t{error.number}) + u" occurred: " + error.description,
        u"Rename", platform::Buttons::Ok, platform::Icon::Critical);
    return true;
  }
}

/// Returns the holding folder, into which the whole folder has turned.
Text FolderMoves::toHolding(const Text& source, const Text& target) {
  Text holding(paths::withoutSeparator(target));
  // A crash may have left one behind, which must not be mixed with this one.
  do holding += holdingSuffix;
  while (parts_.files.folderExists(holding));
  const Text origin(paths::withoutSeparator(source));
  if (onMoving) onMoving(origin);
  parts_.files.moveFolder(origin, holding);
  holdings_.push_back({holding, origin});
  return holding + paths::separator;
}

void FolderMoves::collect(const Text& source, const Text& target, const Text& known) {
  const FolderWalk::Level level = walk_.enter(source);
  parts_.folders.PostojiDir(target);
  for (const Text& name : level.files) moves_.push_back({source + name, target + name, known + name});
  if (target.starts_with(source)) return;
  for (const Text& name : level.folders) {
    const Text below = name + paths::separator;
    collect(source + below, target + below, known + below);
  }
}

bool FolderMoves::MoveFile(const Move& move) {
  if (onMoving) onMoving(move.known);
  platform::FileHandOver handOver(parts_.player, move.known);
  for (;;) {
    try {
      parts_.files.move(move.from, move.to);
      handOver.renamed(move.to);
      return false;
    } catch (const FileError& error) {
      const Text text = u"Error while moving " + move.from + u" #" + core::plain(std::int64_t{error.number}) +
                        u" occurred: " + error.description;
      switch (parts_.failures.ask(text, u"Move File", move.from, error.description)) {
        case platform::Answer::Abort:
          return true;
        case platform::Answer::Retry:
          break;
        default:
          return false;
      }
    }
  }
}

void FolderMoves::giveBack() {
  for (const Holding& holding : std::exchange(holdings_, {})) {
    try {
      parts_.folders.RemoveEmptyTree(holding.folder);
      if (parts_.files.folderExists(holding.folder)) parts_.files.moveFolder(holding.folder, holding.origin);
    } catch (const FileError& error) {
      platform::caughtSilently(error);
      // The files lie in the holding folder, which the lists show as any other.
    }
  }
}

}  // namespace velmora::base
