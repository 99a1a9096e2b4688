#pragma once

#include <vector>

#include "platform/files.h"
#include "platform/text.h"

/// The Music Base on disk: root, genre folders, artist folders, album-year folders, files.
namespace velmora::base {

/// The row that stands for an artist's files outside of any album folder.
inline constexpr TextView withoutFolder = u"-<< Without Folder >>-";

/// The name without trailing blanks and with one separator at its end. A name that holds `withoutFolder`
/// gives nothing, so that the row drops out of a path.
Text AppendPath(TextView name);
/// The year that a folder's name or path ends in: the number that its last four characters begin with, read
/// from their left; 0 when there is none.
int FolderYear(TextView name);

/// Names of the folders directly in `folder`, in the order of the file system. What cannot be read gives what
/// was found so far, without a word.
std::vector<Text> foldersIn(platform::Files& files, const Text& folder);
/// Names of the files directly in `folder`, in the same way. Names that no record can carry are left out.
std::vector<Text> filesIn(platform::Files& files, const Text& folder);

}  // namespace velmora::base
