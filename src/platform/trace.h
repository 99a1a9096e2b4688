#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "platform/file_error.h"

namespace velmora::platform {

/// Receives what bugs are hunted with: one line for each operation on the disk, each command, and each error
/// that is caught without a word.
class Trace {
 public:
  virtual ~Trace() = default;
  /// `text` without a line end. Never throws.
  virtual void line(std::string_view text) noexcept = 0;
};

/// Where the trace goes; null unless one was asked for, which is the usual case. Set once at the start of the
/// program and by tests. It is shared by the whole process, since an error may be caught in any room.
Trace* currentTrace() noexcept;
void setTrace(Trace* trace) noexcept;

/// Number and description of a FileError, such as "61 Disk full"; what() of any other error.
std::string inWords(const std::exception& error);

/// Called where an error is caught and the user is not told of it. Leaves a line with the place of the call
/// in the trace, if there is one.
void caughtSilently(const std::exception& error, const char* file = __builtin_FILE(),
                    int line = __builtin_LINE()) noexcept;

}  // namespace velmora::platform
