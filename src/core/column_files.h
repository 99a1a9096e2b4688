#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::core {

/// The files of the folder Data by their names, whatever they hold. Names compare without regard to case.
/// Nothing here throws; what cannot be read or written is never lost (see own_files.h).
class ColumnFiles {
 public:
  struct Content {
    Text fileName;
    Bytes bytes;  ///< none: the file goes
  };

  /// The folder is made at the first write and no earlier.
  ColumnFiles(platform::Files& files, Text folder) : files_(files), folder_(std::move(folder)) {}

  /// Full path of a file, in the spelling that it has on disk where it exists.
  Text path(TextView fileName) const;
  bool exists(TextView fileName) const { return files_.fileExists(path(fileName)); }
  /// The content; nothing where the file is missing or cannot be read.
  std::optional<Bytes> read(TextView fileName);
  /// Writes all contents beside their files, then calls `beforeSwap`, and where that answers true puts them
  /// in their places. A disk without room for all of them, or an answer of false, leaves every file as it
  /// was. Returns whether all have arrived. What holds the content already is not written again.
  bool write(const std::vector<Content>& contents, const std::function<bool()>& beforeSwap = {});
  /// Removes a file; one that could not be read is moved aside.
  void remove(TextView fileName);
  /// Whether a file is another one than was last read or written here. False where neither has happened.
  bool changedByOthers(TextView fileName) const;

 private:
  struct Known {
    platform::FileStamp stamp;
    std::size_t hash = 0;
  };
  struct Pending {
    Text path;
    Text beside;  // empty for a file that goes
    std::size_t hash = 0;
  };

  bool holds(const Text& path, BytesView bytes) const;
  bool prepare(const std::vector<Content>& contents, std::vector<Pending>& pending);
  bool putInPlace(const Pending& pending);
  void discard(const std::vector<Pending>& pending);
  void remember(const Text& path, std::size_t hash);

  platform::Files& files_;
  Text folder_;
  std::map<Text, Known> known_;  // by full path
  std::set<Text> unreadable_;    // full paths
};

}  // namespace velmora::core
