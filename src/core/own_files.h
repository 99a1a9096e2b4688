#pragma once

#include "platform/files.h"

/// What all files of the program's own have in common: one that cannot be read is never taken for one that is
/// not there, and never lost.
namespace velmora::core {

/// The whole content, less a byte-order mark that an editor has put in front. Asks a second time where the
/// first fails, since a disk may falter once. Throws FileError.
Bytes readOwn(platform::Files& files, const Text& path);

/// Gives a file that cannot be read or written another name in its folder, such as "nizdes.txt.kept", so that
/// a new one can take its place. Returns its new path. Throws FileError when that fails.
Text moveAside(platform::Files& files, const Text& path);

}  // namespace velmora::core
