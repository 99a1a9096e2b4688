#include "system/desktop_trash.h"

#include <array>
#include <cerrno>
#include <ctime>
#include <memory>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "system/posix_error.h"
#include "system/user_folders.h"

namespace velmora::system {

namespace paths = core::paths;
using platform::FileError;

namespace {

constexpr TextView filesFolder = u"files";
constexpr TextView infoFolder = u"info";
constexpr TextView infoEnding = u".trashinfo";
constexpr int mostTries = 100'000;        // names that are taken, for one file
constexpr std::size_t longestName = 255;  // bytes
constexpr std::size_t roomForNumber = 8;  // bytes

enum class Links { Refused, Followed };

/// Makes one folder that only the user may enter; a folder of the user's that is there already will do.
bool makePrivateFolder(const Text& folder, Links links = Links::Refused) {
  const Bytes path = core::toBytes(folder);
  struct stat status;
  const auto look = [&] { return (links == Links::Followed ? ::stat : ::lstat)(path.c_str(), &status) == 0; };
  // It is there as a rule, and to look costs less than to try.
  if (!look()) {
    if (::mkdir(path.c_str(), 0700) == 0) return true;
    if (errno != EEXIST || !look()) return false;
  }
  return S_ISDIR(status.st_mode) && status.st_uid == ::getuid();
}

/// Whether a folder that all users share is safe to use: no link, and nobody removes what others put there.
bool isSharedTrash(const Text& folder) {
  struct stat status;
  return ::lstat(core::toBytes(folder).c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         (status.st_mode & S_ISVTX);
}

bool makeInside(const Text& trash) {
  return makePrivateFolder(paths::join(trash, filesFolder)) &&
         makePrivateFolder(paths::join(trash, infoFolder));
}

bool isPlain(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
         BytesView("/-_.~").find(byte) != BytesView::npos;
}

Bytes percentEncoded(BytesView path) {
  constexpr BytesView digits = "0123456789ABCDEF";
  Bytes out;
  for (const char byte : path) {
    const auto code = static_cast<unsigned char>(byte);
    if (isPlain(byte)) {
      out += byte;
    } else {
      out += {'%', digits[code >> 4], digits[code & 15]};
    }
  }
  return out;
}

Bytes localTime(std::time_t now) {
  std::tm local = {};
  ::localtime_r(&now, &local);
  std::array<char, 32> text;
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local)};
}

/// The path with all links above the file resolved.
Text resolvedAbove(const Text& path) {
  const Bytes folder = core::toBytes(paths::folderPart(path));
  const std::unique_ptr<char, decltype(&::free)> found(::realpath(folder.c_str(), nullptr), &::free);
  return found ? paths::join(core::fromBytes(found.get()), paths::fileName(path)) : path;
}

/// The path as an info file tells it.
Bytes toldPath(const Text& path, const Text& origin) {
  if (origin.empty()) return percentEncoded(core::toBytes(path));
  const Text start = paths::withSeparator(origin);
  const Text full = path.starts_with(start) ? path : resolvedAbove(path);
  const TextView told = full.starts_with(start) ? TextView(full).substr(start.size()) : TextView(full);
  return percentEncoded(core::toBytes(told));
}

/// The name for the n-th file of one name: "a.mp3", "a.2.mp3", "a.3.mp3". A name that leaves no room for its
/// info file's ending is cut in front of its extension.
Text trashName(TextView name, int number) {
  const std::size_t dot = name.rfind(u'.');
  const bool hasExtension = dot != TextView::npos && dot > 0 && name.size() - dot <= 8;
  const TextView extension = hasExtension ? name.substr(dot) : TextView();
  Text start(core::dropRight(name, core::length(extension)));
  const std::size_t room = longestName - infoEnding.size() - roomForNumber - core::toBytes(extension).size();
  while (core::toBytes(start).size() > room) {
    const bool pair = start.size() > 1 && (start[start.size() - 2] & 0xFC00) == 0xD800;
    start.resize(start.size() - (pair ? 2 : 1));
  }
  if (number > 1) start.append(u".").append(core::plain(std::int64_t{number}));
  return start.append(extension);
}

}  // namespace

DesktopTrash::DesktopTrash(platform::Files& files, Text homeTrash)
    : files_(files), homeTrash_(std::move(homeTrash)) {}

Text DesktopTrash::defaultHomeTrash() {
  return paths::join(dataHome(), u"Trash");
}

std::optional<DesktopTrash::Place> DesktopTrash::volumePlace(const Text& volume) {
  const Text user = core::plain(std::int64_t{::getuid()});
  const Text shared = paths::join(volume, u".Trash");
  for (const Text& folder :
       {isSharedTrash(shared) ? paths::join(shared, user) : Text(), paths::join(volume, u".Trash-" + user)})
    if (!folder.empty() && makePrivateFolder(folder) && makeInside(folder)) return Place{folder, volume};
  return std::nullopt;
}

DesktopTrash::Place DesktopTrash::placeFor(TextView folder, dev_t device, std::time_t now) {
  if (found_.folder != folder || found_.device != device || found_.second != now) {
    found_ = {};
    Text volume = files_.volumeOf(Text(folder));
    if (volume == files_.volumeOf(homeTrash_)) volume.clear();
    found_ = {Text(folder), device, now, std::move(volume)};
  }
  if (!found_.volume.empty()) {
    if (auto place = volumePlace(found_.volume)) return *std::move(place);
  }
  if (!makePrivateFolder(homeTrash_, Links::Followed)) {
    files_.makeFolder(Text(core::dropRight(paths::folderPart(homeTrash_), 1)));
    if (!makePrivateFolder(homeTrash_, Links::Followed)) throw FileError(FileError::permissionDenied);
  }
  if (!makeInside(homeTrash_)) throw FileError(FileError::permissionDenied);
  return {homeTrash_, {}};
}

Text DesktopTrash::send(const Text& path, const Announce& announce) {
  struct stat status;
  const Bytes native = nativePath(path);
  if (::lstat(native.c_str(), &status) != 0) throwErrno(native);
  const std::time_t now = std::time(nullptr);
  const Place place = placeFor(paths::folderPart(path), status.st_dev, now);
  const Bytes info =
      "[Trash Info]\nPath=" + toldPath(path, place.origin) + "\nDeletionDate=" + localTime(now) + "\n";

  const TextView name = paths::fileName(path);
  int& nextNumber = nextNumber_.try_emplace(paths::join(place.folder, name), 2).first->second;
  for (int tries = 0; tries < mostTries; ++tries) {
    const Text free = trashName(name, tries == 0 ? 1 : nextNumber++);
    const Text infoFile = paths::join(paths::join(place.folder, infoFolder), free).append(infoEnding);
    std::unique_ptr<platform::OpenFile> file;
    try {
      file = files_.create(infoFile);
    } catch (const FileError& error) {
      if (error.number == FileError::fileExists) continue;
      throw;
    }
    Text target = paths::join(paths::join(place.folder, filesFolder), free);
    try {
      file->writeAt(0, info);
      file.reset();
      if (announce) announce(target);
      files_.move(path, target);
      return target;
    } catch (const FileError& error) {
      file.reset();
      // A folder that went to another volume may lie here whole, with something left of it at its old place.
      if (error.number != FileError::fileExists && ::lstat(core::toBytes(target).c_str(), &status) == 0)
        throw;
      dropInfo(infoFile);
      // A file without an info file may lie there, from a program that was cut off.
      if (error.number != FileError::fileExists) throw;
    }
  }
  throw FileError(FileError::fileExists);
}

void DesktopTrash::dropInfo(const Text& infoFile) {
  try {
    files_.remove(infoFile);
  } catch (const FileError& error) {
    platform::caughtSilently(error);
    // An info file without its file is passed over by every desktop.
  }
}

void DesktopTrash::bringBack(const Text& trashPath, const Text& target) {
  std::vector<Text> made;  // deepest first
  Text folder(core::dropRight(paths::folderPart(target), 1));
  for (Text above = folder; !above.empty() && !files_.folderExists(above);
       above = core::dropRight(paths::folderPart(above), 1))
    made.push_back(above);
  try {
    if (!made.empty()) files_.makeFolder(folder);
    files_.move(trashPath, target);
  } catch (const FileError&) {
    for (const Text& empty : made) {
      try {
        files_.removeEmptyFolder(empty);
      } catch (const FileError& error) {
        platform::caughtSilently(error);
        break;
      }
    }
    throw;
  }
  const TextView trash = core::dropRight(paths::folderPart(trashPath), 1);
  if (paths::fileName(trash) != filesFolder) return;
  const Text info = paths::join(paths::folderPart(trash), infoFolder);
  dropInfo(paths::join(info, paths::fileName(trashPath)).append(infoEnding));
}

}  // namespace velmora::system
