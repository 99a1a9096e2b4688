#pragma once

#include <csignal>
#include <sys/resource.h>

#include "platform/file_error.h"

namespace velmora::test {

/// Number of the FileError that `act` throws; 0 when it succeeds.
template <typename Act>
int errorNumber(Act act) {
  try {
    act();
  } catch (const platform::FileError& error) {
    return error.number;
  }
  return 0;
}

/// For its life no file of this process grows beyond `bytes`: a disk that gets full in the middle of a write.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit lowered = before_;
    lowered.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &lowered);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_ = {};
  void (*handler_)(int) = SIG_DFL;
};

}  // namespace velmora::test
