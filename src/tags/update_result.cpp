#include "tags/update_result.h"

#include "core/number_text.h"

namespace velmora::tags {

UpdateResult updateWithDialog(const UpdateContext& context, TextView version, OpenSong& song,
                              const std::function<void()>& write) {
  for (bool retried = false;; retried = true) {
    try {
      write();
      return UpdateResult::Done;
    } catch (const platform::FileError& error) {
      song.close();
      const Text text = u"Error while Update ID3 " + Text(version) + u" " +
                        context.table.path(context.table.currentRow) + u" #" +
                        core::number(std::int64_t{error.number}) + u" occurred:" + error.description;
      const auto answer = context.failures.ask(
          text, u"Update ID3 tag", context.table.path(context.table.currentRow), error.description);
      if (answer == platform::Answer::Abort) return UpdateResult::Abort;
      if (answer != platform::Answer::Retry) return retried ? UpdateResult::Done : UpdateResult::Ignore;
    }
  }
}

platform::FileError notAValidMP3File(const Text& path) {
  constexpr int number = static_cast<int>(0x80041001);
  return {number, path + u" is not a valid MP3 file."};
}

}  // namespace velmora::tags
