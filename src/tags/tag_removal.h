#pragma once

#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "tags/busy_file.h"

namespace velmora::tags {

/// What the removal of a tag needs.
struct RemovalParts {
  platform::Files& files;
  platform::Desktop& desktop;
  platform::FileHolder& player;
  BusyFile& busyFile;
};

/// Removes the leading ID3v2 tag up to its real end, by a copy beside the file with ".new" behind its name
/// that then takes its place in one step; lets events through meanwhile. A file without one stays as it is.
/// Waits while another program holds the file; false when that wait was given up. Throws FileError, also
/// where nothing of the file would be left; the file is then as it was.
bool SkiniID3v2(const RemovalParts& parts, const Text& path);
/// Cuts the ID3v1 tag off, in place; the rest as above.
bool SkiniID3v1(const RemovalParts& parts, const Text& path);

}  // namespace velmora::tags
