#include "rows/file_mover.h"

#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/undo_journal.h"
#include "platform/file_error.h"

namespace velmora::rows {

namespace {

/// The path with a blank before the last four characters of its name.
Text withBlank(TextView path) {
  constexpr int extension = 4;
  const TextView name = core::paths::fileName(path);
  return Text(core::paths::folderPart(path)) + Text(core::dropRight(name, extension)) + u' ' +
         Text(core::right(name, extension));
}

}  // namespace

MoveResult FileMover::move(const Text& path, const Text& target, Text* movedTo) {
  return moveBy([&](const Text& to) { files_.move(path, to); }, path, target, movedTo);
}

MoveResult FileMover::bringBack(platform::Trash& trash, const Text& trashPath, const Text& target,
                                Text* movedTo) {
  return moveBy([&](const Text& to) { trash.bringBack(trashPath, to); }, trashPath, target, movedTo);
}

MoveResult FileMover::moveBy(const Move& moveOnce, const Text& path, const Text& target, Text* movedTo) {
  platform::FileHandOver handOver(player_, path);
  while (true) {
    try {
      Text reached = moveToFreeName(moveOnce, path, target);
      handOver.renamed(reached);
      if (movedTo) *movedTo = std::move(reached);
      return MoveResult::Moved;
    } catch (const journal::NotRecorded&) {
      throw;
    } catch (const platform::FileError& error) {
      const Text text = u"Error #" + core::plain(std::int64_t{error.number}) + u" while moving { " + path +
                        u" } occurred: " + error.description;
      switch (failures_.ask(text, u"Move File", path, error.description)) {
        case platform::Answer::Retry:
          break;
        case platform::Answer::Abort:
          return MoveResult::Abort;
        default:
          return MoveResult::Ignored;
      }
    }
  }
}

/// Returns the path that the file got. A file that lies at its target already is left alone.
Text FileMover::moveToFreeName(const Move& moveOnce, const Text& path, Text target) {
  while (target != path) {
    try {
      moveOnce(target);
      break;
    } catch (const platform::FileError& error) {
      // Without a file there, the name of a folder on the way is taken, and no other name would help.
      const bool taken = files_.fileExists(target) || files_.folderExists(target);
      if (error.number != platform::FileError::fileExists || !taken) throw;
      target = withBlank(target);
    }
  }
  return target;
}

}  // namespace velmora::rows
