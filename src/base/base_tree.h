#pragma once

#include <vector>

#include "platform/files.h"
#include "platform/text.h"

/// The Music Base on disk: root, genre folders, artist folders, album-year folders, files.
namespace velmora::base {

/// The row that stands for an artist's files outside of any album folder.
inline constexpr TextView withoutFolder = u"-<< Without Folder >>-";

/// The name without trailing blanks and with one separator at its end. A name that holds `withoutFolder`, or
/// nothing, gives nothing, so that it drops out of a path.
Text AppendPath(TextView name);
/// The year that a folder's name or path ends in: the number that its last four characters begin with, read
/// from their left; 0 when there is none.
int FolderYear(TextView name);
/// A typed name with a blank for each character that no name may hold.
Text cleanName(TextView typed);
/// The same as a folder can bear it, trimmed. Empty when nothing is left, and for the names that lead out of
/// a folder.
Text folderName(TextView typed);

/// The names in one folder, in the order of the file system.
struct Contents {
  std::vector<Text> folders;
  std::vector<Text> files;
};
/// What cannot be read gives what was found so far, without a word. Left out are names that no record can
/// carry, and a folder named like `withoutFolder`, whose path nothing could tell from its parent's.
Contents contentsOf(platform::Files& files, const Text& folder);
/// Names of the folders directly in `folder`; of the files directly in it.
std::vector<Text> foldersIn(platform::Files& files, const Text& folder);
std::vector<Text> filesIn(platform::Files& files, const Text& folder);

}  // namespace velmora::base
