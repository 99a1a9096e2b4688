#pragma once

#include <memory>
#include <string>

#include "platform/files.h"
#include "system/trace_file.h"
#include "system/traced_files.h"

namespace velmora::system {

/// The disk that the program works on, and the trace that was asked for: for as long as an object of this
/// class lives, every room leaves its lines there. Without a trace it is the disk itself.
class TracedDisk {
 public:
  /// `traceFile` is the native path of the trace; empty for none.
  TracedDisk(platform::Files& disk, const std::string& traceFile);
  ~TracedDisk();
  TracedDisk(const TracedDisk&) = delete;
  TracedDisk& operator=(const TracedDisk&) = delete;

  platform::Files& files() {
    if (traced_) return *traced_;
    return disk_;
  }

 private:
  platform::Files& disk_;
  std::unique_ptr<TraceFile> trace_;
  std::unique_ptr<TracedFiles> traced_;
};

}  // namespace velmora::system
