#pragma once

#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/hand_over.h"

namespace velmora::tags {

/// Removes the leading ID3v2 tag, by a copy beside the file with ".new" behind its name that then takes its
/// place in one step; lets events through meanwhile. The tag's size is read as a synchsafe number. A file
/// without one stays as it is. Throws FileError, also where the size leaves nothing of the file; the file is
/// then as it was.
void SkiniID3v2(platform::Files& files, platform::Desktop& desktop, platform::FileHolder& player,
                const Text& path);
/// Removes the last 128 bytes the same way, with ".mp3" behind the name. The caller knows that there is a
/// tag.
void SkiniID3v1(platform::Files& files, platform::Desktop& desktop, platform::FileHolder& player,
                const Text& path);

}  // namespace velmora::tags
