#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "platform/text.h"

namespace velmora::platform {

enum class EntryKind {
  File,    ///< a regular file, or a link to one
  Folder,  ///< a folder, or a link to one
  Other,   ///< a pipe, socket, device or dangling link: never opened, never listed
};

struct FolderEntry {
  Text name;
  EntryKind kind;
  bool link = false;  ///< the entry itself is a symbolic link, to what `kind` tells
};

/// Tells two folders apart whatever the paths that lead to them, so that a walk can notice a circle of links.
struct FolderId {
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  auto operator<=>(const FolderId&) const = default;
};

/// Tells one state of a file from every other: a file that is written, or another one in its place, has a new
/// stamp. All zero for what is not there.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  std::uint64_t bytes = 0;
  std::int64_t written = 0;  ///< nanoseconds
  bool operator==(const FileStamp&) const = default;
};

struct FolderListing {
  FolderId id;
  /// In the order of the file system, without "." and "..".
  std::vector<FolderEntry> entries;
};

/// One open file; destruction closes it. All operations throw FileError.
class OpenFile {
 public:
  virtual ~OpenFile() = default;
  /// Length in bytes at the moment of the call.
  virtual std::uint64_t size() = 0;
  /// Fills `into` from `offset` (0-based) and returns the bytes read: fewer than asked for only at the end.
  virtual std::size_t readAt(std::uint64_t offset, std::span<char> into) = 0;
  /// Writes all of `bytes` at `offset`, growing the file where needed.
  virtual void writeAt(std::uint64_t offset, BytesView bytes) = 0;
  /// Takes the file's end away, so that `bytes` are left; never makes it longer. Of a song, only a tag that
  /// stands there.
  virtual void cutTo(std::uint64_t bytes) = 0;
  /// Brings what was written to the disk.
  virtual void flush() = 0;
  /// Keeps other programs off the file until it is closed. False when one of them holds it. Never throws.
  virtual bool lockAlone() { return true; }
  virtual FileStamp stamp() { return {}; }
};

enum class OpenMode { Read, ReadWrite };

/// What the program asks of the file system. Paths are full paths in the machine's own shape.
/// Every operation throws FileError when it fails, save where its comment says otherwise.
class Files {
 public:
  virtual ~Files() = default;

  virtual FolderListing list(const Text& folder) = 0;
  /// False also for a folder and for what cannot be looked at. Never throws.
  virtual bool fileExists(const Text& path) = 0;
  /// Never throws.
  virtual bool folderExists(const Text& path) = 0;
  /// Length of a file in bytes.
  virtual std::uint64_t size(const Text& path) = 0;
  /// That of the file that this path leads to; all zero when there is none. Never throws.
  virtual FileStamp stamp(const Text& /*path*/) { return {}; }
  /// The path with all links followed; the path itself where it leads nowhere. Never throws.
  virtual Text realPath(const Text& path) { return path; }

  /// Opens a regular file that exists; a pipe or device is refused unopened with pathAccess.
  virtual std::unique_ptr<OpenFile> open(const Text& path, OpenMode mode) = 0;
  /// Creates a file that must not exist yet (fileExists otherwise) and opens it for reading and writing.
  virtual std::unique_ptr<OpenFile> create(const Text& path) = 0;
  /// The whole content.
  virtual Bytes readAll(const Text& path) = 0;
  /// Writes `bytes` beside a file of the program's own, begins to bring them to the disk, and returns where
  /// they are, for `replace` to put them into the place of `path`. The name depends on `path` alone, so that
  /// what a kill leaves is written over by the next save.
  virtual Text writeBeside(const Text& path, BytesView bytes) {
    Text beside = path + u".new";
    create(beside)->writeAt(0, bytes);
    return beside;
  }
  /// Makes `bytes` the whole content of a file of the program's own (never of a song), creating it if
  /// missing: written beside it, brought to the disk and put in its place in one step.
  virtual void writeAll(const Text& path, BytesView bytes) = 0;
  /// Adds `bytes` behind the content and flushes them to the system, creating the file if missing.
  virtual void append(const Text& path, BytesView bytes) = 0;

  /// Makes the folder and the missing ones above it. A folder that exists is no failure.
  virtual void makeFolder(const Text& path) = 0;
  /// Gives a file a new path. Never overwrites: fileExists when the target name is taken by another file,
  /// even where two spellings in capitals lead to it. Moves across volumes by a checked copy.
  virtual void move(const Text& from, const Text& to) = 0;
  /// The same for a folder with all it holds, within a volume or across.
  virtual void moveFolder(const Text& from, const Text& to) = 0;
  /// Brings the finished file `from` to the disk and puts it in the place of `to` in one step, with the mode,
  /// owner and extended attributes of `to`; both lie in one folder. A link `to` is followed: its target is
  /// what gets replaced.
  virtual void replace(const Text& from, const Text& to) = 0;
  /// Deletes a file of the program's own. Songs go to the Trash instead.
  virtual void remove(const Text& path) = 0;
  /// Deletes a folder that must be empty.
  virtual void removeEmptyFolder(const Text& path) = 0;
  /// Takes read-only and its like off a file, so that its owner can write it.
  virtual void clearAttributes(const Text& path) = 0;

  /// A text that a file keeps wherever it goes on its volume, and that no other file there bears, not even
  /// one that is made when this one is gone. Empty where the system does not tell. Never throws.
  virtual Text identity(const Text& path) {
    static_cast<void>(path);
    return {};
  }
  /// What a move to another volume calls once the copy is whole and before the source goes; nothing to call
  /// with nullptr. It may throw: the move then fails with that, and the source stays.
  virtual void beforeRemoval(std::function<void()> call) { static_cast<void>(call); }

  /// True when another program holds the file, so that an exclusive lock cannot be had. A file that is
  /// missing or may not be opened is not busy. Never throws.
  virtual bool busy(const Text& path) = 0;
  /// The volume that a path lies on: its mount point.
  virtual Text volumeOf(const Text& path) = 0;
  /// Bytes that the user may still write on the volume of `path`.
  virtual std::uint64_t freeBytes(const Text& path) = 0;
  /// Mount points of the volumes that hold files, sorted; empty where the system does not tell. Never throws.
  virtual std::vector<Text> volumes() { return {}; }
};

}  // namespace velmora::platform
