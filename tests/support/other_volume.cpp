#include "tests/support/other_volume.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora::test {

OtherVolume::OtherVolume() {
  const auto usual = std::filesystem::temp_directory_path();
  for (const char* candidate : {"/dev/shm", "/var/tmp", "/run"}) {
    struct stat here;
    struct stat there;
    if (::stat(usual.c_str(), &here) != 0 || ::stat(candidate, &there) != 0) continue;
    if (here.st_dev == there.st_dev || ::access(candidate, W_OK) != 0) continue;
    folder_ = std::make_unique<TempFolder>(candidate);
    return;
  }
}

}  // namespace velmora::test
