#pragma once

#include <optional>

#include "platform/files.h"

namespace velmora::core {

/// The file velmora.changing: there from before the first change of a command until the columns tell of it.
/// It holds numbers, each with its leading blank; the last is how many rows of the Music Base end nizdes.txt.
/// Nothing here throws: without the mark a kill may leave a row read that is not, and nothing worse.
class ChangeMark {
 public:
  ChangeMark(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

  bool exists() const { return files_.fileExists(path_); }
  /// The number that was set last; nothing without one.
  std::optional<int> tail() const;
  void set(int tail);
  void remove();

 private:
  platform::Files& files_;
  Text path_;
};

}  // namespace velmora::core
