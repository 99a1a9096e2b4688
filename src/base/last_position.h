#pragma once

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::base {

/// LastPosition.dat beside the program: per key the row last used, as quoted records of the key, a backslash
/// and the value.
class LastPosition {
 public:
  LastPosition(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

  /// Replaces the record of the key or appends one. Fails silently.
  void SavePos(TextView key, TextView value);
  /// The value of the last record of the key; empty when there is none.
  Text LoadPos(TextView key) const;

 private:
  platform::Files& files_;
  Text path_;
};

}  // namespace velmora::base
