#pragma once

#include "platform/text.h"

/// The only place that knows the machine's path separator. Everything that cuts or joins a path is here.
namespace velmora::core::paths {

extern const char16_t separator;

/// The path with one separator at its end, unless it ends in one.
Text withSeparator(TextView folder);
/// The path without the separators at its end; the root keeps its own.
TextView withoutSeparator(TextView folder);
/// folder, one separator, name.
Text join(TextView folder, TextView name);
/// What stands behind the last separator: the file's name with its extension.
TextView fileName(TextView path);
/// What stands before and with the last separator; empty where there is none.
TextView folderPart(TextView path);
/// The file's name less the last 4 characters of the path, whatever they are.
TextView bareName(TextView path);
/// Whether a path is this folder or lies under it, by whole parts: "/a/Rock 2" does not lie within "/a/Rock".
bool within(TextView path, TextView folder);
/// The last three characters in lower case: the only sense in which a file has an extension here.
Text lastThree(TextView path);
/// Whether a record of ours can carry the name: it holds no double quote and no line break.
bool fitsRecord(TextView name);

}  // namespace velmora::core::paths
