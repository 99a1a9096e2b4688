#include "system/traced_disk.h"

namespace velmora::system {

TracedDisk::TracedDisk(platform::Files& disk, const std::string& traceFile) : disk_(disk) {
  if (traceFile.empty()) return;
  trace_ = std::make_unique<TraceFile>(traceFile);
  traced_ = std::make_unique<TracedFiles>(disk_, *trace_);
  platform::setTrace(trace_.get());
}

TracedDisk::~TracedDisk() {
  if (trace_) platform::setTrace(nullptr);
}

}  // namespace velmora::system
