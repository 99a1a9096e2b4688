#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::base {

/// LastPosition.dat beside the program: per key the row last used, as quoted records of the key, a backslash
/// and the value. A key matches a record only when a backslash follows it there, and the last match counts.
///
/// The records are kept in memory and read again when the file has another size than the one last seen.
class LastPosition {
 public:
  LastPosition(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

  /// Replaces the records of the key or appends one. An empty key is not kept. Fails silently.
  void SavePos(TextView key, TextView value);
  /// The value of the last record of the key; empty when there is none.
  Text LoadPos(TextView key) const;

  /// For the length of one click: the file is looked at once, however many positions the click asks for.
  class OneLook {
   public:
    explicit OneLook(LastPosition& positions) : positions_(positions) { ++positions_.looks_; }
    ~OneLook() {
      if (--positions_.looks_ == 0) positions_.looked_ = false;
    }
    OneLook(const OneLook&) = delete;
    OneLook& operator=(const OneLook&) = delete;

   private:
    LastPosition& positions_;
  };

 private:
  bool read() const;
  void write();

  platform::Files& files_;
  Text path_;
  mutable std::vector<Text> records_;
  mutable std::optional<std::uint64_t> bytes_;  // size of the file that the records were read from
  int looks_ = 0;                               // scopes that are open
  mutable bool looked_ = false;                 // within the outermost of them
};

}  // namespace velmora::base
