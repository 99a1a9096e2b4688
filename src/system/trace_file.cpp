#include "system/trace_file.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace velmora::system {

TraceFile::TraceFile(const std::string& path)
    : descriptor_(::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644)) {}

TraceFile::~TraceFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void TraceFile::line(std::string_view text) noexcept {
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin_;
  std::array<char, 32> seconds;
  std::snprintf(seconds.data(), seconds.size(), "%11.6f ", elapsed.count());
  try {
    const std::string whole = seconds.data() + std::string(text) + '\n';
    if (::write(descriptor_, whole.data(), whole.size()) < 0) return;
  } catch (const std::exception&) {
    // No memory for the line: it is left out.
  }
}

}  // namespace velmora::system
