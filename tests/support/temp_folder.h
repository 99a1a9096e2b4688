#pragma once

#include "platform/text.h"

namespace velmora::test {

/// A folder of its own for one test, under the system's folder for such, removed with all it holds at the
/// end.
class TempFolder {
 public:
  TempFolder();
  /// A folder under another one than the system's.
  explicit TempFolder(BytesView parent);
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// Full path, without a separator at its end.
  const Text& path() const { return path_; }
  /// Full path of a name in the folder; the name may lead through folders.
  Text path(TextView name) const;
  /// The same as the native bytes that system calls take.
  Bytes native(TextView name) const;

  /// Makes a file with these bytes, and the folders above it, and returns its full path.
  Text write(TextView name, BytesView bytes) const;
  /// The whole content of a file; a missing one fails the test.
  Bytes read(TextView name) const;
  /// Makes a folder, and the folders above it, and returns its full path.
  Text mkdir(TextView name) const;
  /// Whether there is anything of that name, a dangling link included.
  bool exists(TextView name) const;
  /// Removes a file, or a folder with all it holds.
  void removeAll(TextView name) const;

 private:
  Text path_;
};

}  // namespace velmora::test
