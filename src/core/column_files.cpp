#include "core/column_files.h"

#include <exception>
#include <string_view>
#include <utility>

#include "core/own_files.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::core {

namespace {

std::size_t hashOf(BytesView bytes) {
  return std::hash<BytesView>()(bytes);
}

/// Whether a file could not be replaced because of what stands in its place: a file that may not be written,
/// or none at all.
bool standsInTheWay(const platform::FileError& error) {
  return error.number == platform::FileError::permissionDenied ||
         error.number == platform::FileError::pathAccess;
}

}  // namespace

Text ColumnFiles::path(TextView fileName) const {
  Text exact = paths::join(folder_, fileName);
  if (files_.fileExists(exact) || !files_.folderExists(folder_)) return exact;
  try {
    for (const platform::FolderEntry& entry : files_.list(folder_).entries)
      if (entry.kind == platform::EntryKind::File && equalNoCase(entry.name, fileName))
        return paths::join(folder_, entry.name);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A folder that cannot be listed may still let its files be read.
  }
  return exact;
}

std::optional<Bytes> ColumnFiles::read(TextView fileName) {
  const Text file = path(fileName);
  const platform::FileStamp stamp = files_.stamp(file);
  known_[file] = {stamp, 0};
  unreadable_.erase(file);
  if (stamp == platform::FileStamp{}) return std::nullopt;
  try {
    Bytes content = readOwn(files_, file);
    known_[file].hash = hashOf(content);
    return content;
  } catch (const std::exception& error) {
    platform::caughtSilently(error);
    unreadable_.insert(file);
    return std::nullopt;
  }
}

bool ColumnFiles::write(const std::vector<Content>& contents, const std::function<bool()>& beforeSwap) {
  std::vector<Pending> pending;
  if (!prepare(contents, pending) || (beforeSwap && !beforeSwap())) {
    discard(pending);
    return false;
  }
  bool all = true;
  for (const Pending& file : pending) all = putInPlace(file) && all;
  return all;
}

bool ColumnFiles::prepare(const std::vector<Content>& contents, std::vector<Pending>& pending) {
  try {
    for (const Content& content : contents) {
      Text file = path(content.fileName);
      if (content.bytes.empty()) {
        pending.push_back({std::move(file), {}, 0});
        continue;
      }
      if (holds(file, content.bytes)) continue;
      files_.makeFolder(folder_);
      pending.push_back({file, files_.writeBeside(file, content.bytes), hashOf(content.bytes)});
    }
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

bool ColumnFiles::putInPlace(const Pending& pending) {
  if (pending.beside.empty()) {
    remove(paths::fileName(pending.path));
    return !files_.fileExists(pending.path);
  }
  try {
    if (unreadable_.erase(pending.path) > 0) moveAside(files_, pending.path);
    try {
      files_.replace(pending.beside, pending.path);
    } catch (const platform::FileError& obstacle) {
      if (!standsInTheWay(obstacle)) throw;
      const Text kept = moveAside(files_, pending.path);
      try {
        files_.replace(pending.beside, pending.path);
      } catch (const platform::FileError&) {
        files_.move(kept, pending.path);
        throw;
      }
    }
    remember(pending.path, pending.hash);
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    discard({pending});
    return false;
  }
}

void ColumnFiles::discard(const std::vector<Pending>& pending) {
  for (const Pending& file : pending) {
    try {
      if (!file.beside.empty()) files_.remove(file.beside);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // The next save writes over it.
    }
  }
}

void ColumnFiles::remove(TextView fileName) {
  const Text file = path(fileName);
  try {
    if (unreadable_.erase(file) > 0)
      moveAside(files_, file);
    else if (files_.fileExists(file))
      files_.remove(file);
    remember(file, 0);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // It stays; nothing more can be done about it.
  }
}

bool ColumnFiles::changedByOthers(TextView fileName) const {
  const Text file = path(fileName);
  const auto known = known_.find(file);
  return known != known_.end() && known->second.stamp != files_.stamp(file);
}

bool ColumnFiles::holds(const Text& path, BytesView bytes) const {
  const auto known = known_.find(path);
  return known != known_.end() && known->second.stamp.bytes == bytes.size() &&
         known->second.hash == hashOf(bytes) && known->second.stamp == files_.stamp(path);
}

void ColumnFiles::remember(const Text& path, std::size_t hash) {
  known_[path] = {files_.stamp(path), hash};
}

}  // namespace velmora::core
