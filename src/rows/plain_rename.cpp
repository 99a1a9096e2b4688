#include "rows/plain_rename.h"

#include "core/number_text.h"

namespace velmora::rows {

RenameResult RenameNoList(platform::Files& files, ui::Failures& failures, platform::FileHolder& player,
                          const Text& path, const Text& newPath) {
  if (path == newPath) return RenameResult::Done;
  platform::FileHandOver handOver(player, path);
  for (;;) {
    try {
      files.move(path, newPath);
      handOver.renamed(newPath);
      return RenameResult::Done;
    } catch (const platform::FileError& error) {
      const RenameResult answer = askAboutRename(
          failures,
          u"Error while renaming file " + path + u" #" + core::plain(std::int64_t{error.number}) +
              u" occurred: " + error.description + u"      Wath i do ?",
          path, error);
      if (answer != RenameResult::Done) return answer;
    }
  }
}

RenameResult askAboutRename(ui::Failures& failures, const Text& text, TextView path,
                            const platform::FileError& error) {
  switch (failures.ask(text, u"Rename", path, error.description)) {
    case platform::Answer::Abort:
      return RenameResult::Abort;
    case platform::Answer::Retry:
      return RenameResult::Done;
    default:
      return RenameResult::Ignore;
  }
}

}  // namespace velmora::rows
