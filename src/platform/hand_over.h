#pragma once

#include <utility>

#include "platform/text.h"

namespace velmora::platform {

/// What a command that changes a file needs of the player that may hold it: to let go, and to go on
/// afterwards.
class FileHolder {
 public:
  virtual ~FileHolder() = default;
  /// Whether the player has this file open, playing or not.
  virtual bool holds(const Text& path) const = 0;
  /// Remembers position and state, and makes the player let go of its file.
  virtual void release() = 0;
  /// Points the player to `path` again, at the remembered position, playing when it played before.
  virtual void giveBack(const Text& path) = 0;
  /// Empties the player: it holds no file.
  virtual void close() = 0;
};

/// While there is no player: holds nothing.
class NoFileHolder final : public FileHolder {
 public:
  bool holds(const Text&) const override { return false; }
  void release() override {}
  void giveBack(const Text&) override {}
  void close() override {}
};

/// Releases a file for as long as an object of this class lives, when the player holds it.
class FileHandOver {
 public:
  FileHandOver(FileHolder& holder, Text path) : holder_(holder), path_(std::move(path)) {
    held_ = holder_.holds(path_);
    if (held_) holder_.release();
  }
  ~FileHandOver() {
    if (held_) holder_.giveBack(path_);
  }
  FileHandOver(const FileHandOver&) = delete;
  FileHandOver& operator=(const FileHandOver&) = delete;

  bool held() const { return held_; }
  /// The file has another path from now on.
  void renamed(Text path) { path_ = std::move(path); }

 private:
  FileHolder& holder_;
  Text path_;
  bool held_ = false;
};

}  // namespace velmora::platform
