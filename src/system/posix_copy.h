#pragma once

#include <sys/stat.h>

#include "platform/text.h"
#include "system/descriptor.h"

/// Copies under names that no other program uses, for moves from one volume to another.
namespace velmora::system {

/// A name in the folder of `path` for a file or folder of our own that is still being made.
Bytes temporaryBeside(const Bytes& path);

/// Removes a file or folder that was copied here, unless the copy was finished.
class UnfinishedCopy {
 public:
  explicit UnfinishedCopy(Bytes path) : path_(std::move(path)) {}
  ~UnfinishedCopy();
  UnfinishedCopy(const UnfinishedCopy&) = delete;
  UnfinishedCopy& operator=(const UnfinishedCopy&) = delete;
  const Bytes& path() const { return path_; }
  /// From now on the copy stays.
  void keep() { path_.clear(); }

 private:
  Bytes path_;
};

/// Copies a file, a link or a folder with all it holds to the free name `to`, with times, mode and extended
/// attributes, checks the sizes and brings the content to the disk. A pipe, socket or device cannot be
/// copied. Throws FileError and may then leave a part at `to`.
void copyEntry(const Bytes& from, const Bytes& to);

/// What a symbolic link tells to lead to; empty for anything else.
Bytes linkText(const Bytes& path);

/// Removes a tree that copyEntry has copied to `copy`: just the entries that the copy has as well, so that
/// what another program has added meanwhile stays. Throws FileError.
void removeCopied(const Bytes& source, const Bytes& copy);

/// Gives an open file the extended attributes of another, access lists among them, as far as the system lets
/// us: a disk without them is no reason to fail.
void takeAttributes(int descriptor, int like);

/// Gives an open file the mode and, as far as the system lets us, the owner of another.
void takeModeAndOwner(int descriptor, const struct stat& like);

}  // namespace velmora::system
