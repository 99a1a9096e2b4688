#pragma once

#include <functional>
#include <vector>

#include "platform/text.h"

namespace velmora::system {

/// Mount points of file systems that hold the user's files, sorted and distinct: those that lie on a device,
/// on another machine or in the user's own space, and not what the system shows of itself as files. Empty
/// when the list of mounts cannot be read.
std::vector<Text> mountPoints();
/// The same out of the text of a list of mounts, one per line: device, mount point and type, divided by
/// blanks, with blanks inside a name as "\040". (Source: the manual page fstab(5).) Those that are not
/// `readable` are left out; those on another machine are not asked, which might never answer.
std::vector<Bytes> mountPointsIn(BytesView mounts, const std::function<bool(const Bytes& point)>& readable);

}  // namespace velmora::system
