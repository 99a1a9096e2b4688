#pragma once

#include "platform/text.h"

namespace velmora::system {

/// Native bytes of a path; throws FileError where they hold a zero byte, which system calls would take for
/// the end of a shorter path.
Bytes nativePath(const Text& path);

/// The folder that a native path lies in, without a separator at its end: "/" for "/a", "." for a bare name.
Bytes parentOf(const Bytes& path);

/// Throws the FileError that stands for the system's error `code`, such as ENOSPC. `path` is what the
/// operation was about: a missing file is told from a missing folder above it.
[[noreturn]] void throwFileError(int code, const Bytes& path);
/// The same for `errno`.
[[noreturn]] void throwErrno(const Bytes& path);

}  // namespace velmora::system
