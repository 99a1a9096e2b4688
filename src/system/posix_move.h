#pragma once

#include <functional>

#include "platform/text.h"

/// Moves that never overwrite and never lose a file, on native paths. All throw FileError.
namespace velmora::system {

/// Gives a file, link or folder a new path, within a volume or across. The target name must be free, save
/// for a change of capitals alone on a disk that does not tell them apart. A failure leaves the source whole
/// and nothing half done at the target. To another volume, `beforeRemoval` is called when the copy is whole,
/// before the source goes.
void moveEntry(const Bytes& from, const Bytes& to, const std::function<void()>& beforeRemoval = {});

/// Puts `from` in the place of the file that `to` is or leads to, with that file's mode, owner and
/// extended attributes.
void replaceFile(const Bytes& from, const Bytes& to);

/// Renames unless the target name is taken; returns 0 or the error code.
int renameNoReplace(const Bytes& from, const Bytes& to);
/// The same on disks that cannot rename with a check: by a second link, which fails where the name is taken.
int renameByLink(const Bytes& from, const Bytes& to);
/// The same on disks that have no links either: an empty entry of our own takes the name, and the rename then
/// replaces that.
int renameOverPlaceholder(const Bytes& from, const Bytes& to);

}  // namespace velmora::system
