#include "rows/plain_rename.h"

#include "core/number_text.h"
#include "platform/file_error.h"

namespace velmora::rows {

RenameResult RenameNoList(platform::Files& files, platform::Dialogs& dialogs, platform::FileHolder& player,
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
          dialogs, u"Error while renaming file " + path + u" #" + core::plain(std::int64_t{error.number}) +
                       u" occurred: " + error.description + u"      Wath i do ?");
      if (answer != RenameResult::Done) return answer;
    }
  }
}

RenameResult askAboutRename(platform::Dialogs& dialogs, const Text& text) {
  switch (dialogs.message(text, u"Rename", platform::Buttons::AbortRetryIgnore, platform::Icon::Critical)) {
    case platform::Answer::Abort:
      return RenameResult::Abort;
    case platform::Answer::Retry:
      return RenameResult::Done;
    default:
      return RenameResult::Ignore;
  }
}

}  // namespace velmora::rows
