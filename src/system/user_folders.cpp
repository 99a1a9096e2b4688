#include "system/user_folders.h"

#include <filesystem>
#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

#include "core/text.h"

namespace velmora::system {

namespace {

Bytes home() {
  const char* variable = ::getenv("HOME");
  if (variable && *variable) return variable;
  const passwd* user = ::getpwuid(::getuid());
  return user ? user->pw_dir : "/";
}

}  // namespace

Text dataHome() {
  const char* variable = ::getenv("XDG_DATA_HOME");
  // A relative path is to be taken as not set.
  return core::fromBytes(variable && *variable == '/' ? Bytes(variable) : home() + "/.local/share");
}

Text executableFolder() {
  std::error_code failure;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
  return core::fromBytes(program.parent_path().native());
}

}  // namespace velmora::system
