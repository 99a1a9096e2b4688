#pragma once

#include "platform/desktop.h"
#include "platform/files.h"
#include "player/hand_over.h"

namespace velmora::tags {

/// Removes the leading ID3v2 tag, by a copy beside the file with ".new" behind its name that then takes its
/// place. A file without one stays as it is. Throws FileError; the file is then whole.
void SkiniID3v2(platform::Files& files, platform::Desktop& desktop, player::FileHolder& player,
                const Text& path);
/// Removes the last 128 bytes the same way, with ".mp3" behind the name. The caller knows that there is a
/// tag.
void SkiniID3v1(platform::Files& files, platform::Desktop& desktop, player::FileHolder& player,
                const Text& path);

}  // namespace velmora::tags
