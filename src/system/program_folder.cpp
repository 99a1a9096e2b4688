#include "system/program_folder.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <stdlib.h>
#include <sys/file.h>
#include <unistd.h>

#include "core/paths.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"
#include "system/descriptor.h"
#include "system/posix_files.h"
#include "system/user_folders.h"

namespace velmora::system {

namespace paths = core::paths;

namespace {

Text chosenFolder() {
  const char* wanted = ::getenv("VELMORA_HOME");
  if (wanted && *wanted) {
    std::error_code failure;
    return core::fromBytes(std::filesystem::absolute(wanted, failure).native());
  }
  const Text beside = executableFolder();
  PosixFiles files;
  for (const TextView mark : {u"Settings.ini", u"portable"})
    if (files.fileExists(paths::join(beside, mark))) return beside;
  return paths::join(dataHome(), u"velmora");
}

}  // namespace

Text programFolder() {
  Text folder = chosenFolder();
  try {
    PosixFiles().makeFolder(folder);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // Nothing will be kept, which canKeepFiles tells.
  }
  return folder;
}

bool canKeepFiles(const Text& folder) {
  return PosixFiles().folderExists(folder) && ::access(core::toBytes(folder).c_str(), W_OK | X_OK) == 0;
}

Text shippedFolder() {
  PosixFiles files;
  const auto program = std::filesystem::path(core::toBytes(executableFolder()));
  const Text installed = core::fromBytes((program.parent_path() / "share" / "velmora").native());
  if (files.folderExists(installed)) return installed;
  // A build tree lies within the source tree.
  for (auto folder = program; folder != folder.parent_path(); folder = folder.parent_path()) {
    const Text resources = core::fromBytes((folder / "resources").native());
    if (files.fileExists(paths::join(resources, u"private.wav"))) return resources;
  }
  return installed;
}

InstanceLock::InstanceLock(const Text& programFolder) {
  const Bytes file = core::toBytes(paths::join(programFolder, u"velmora.lock"));
  descriptor_ = untilDone([&] { return ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600); });
  // Where no lock can be made, as on a read-only disk, the program must still start.
  another_ = descriptor_ >= 0 && ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace velmora::system
