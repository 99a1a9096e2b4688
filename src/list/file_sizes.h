#pragma once

#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/trace.h"

namespace velmora::list {

/// Length of a file in bytes; a file that cannot be read counts nothing.
inline double bytesOf(platform::Files& files, const Text& path) {
  try {
    return static_cast<double>(files.size(path));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return 0;
  }
}

}  // namespace velmora::list
