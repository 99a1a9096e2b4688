#pragma once

#include <chrono>
#include <string>

#include "platform/trace.h"

namespace velmora::system {

/// The trace as lines of a file, each behind the seconds since this object was made. A line is written at
/// once, so that a crash loses none; lines that cannot be written are left out.
class TraceFile final : public platform::Trace {
 public:
  /// Adds to the file `path`, a native path, and makes it where it is missing.
  explicit TraceFile(const std::string& path);
  ~TraceFile() override;
  TraceFile(const TraceFile&) = delete;
  TraceFile& operator=(const TraceFile&) = delete;

  void line(std::string_view text) noexcept override;

 private:
  int descriptor_;
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

}  // namespace velmora::system
