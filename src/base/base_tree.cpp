#include "base/base_tree.h"

#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "names/grammar.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::base {

namespace paths = core::paths;

namespace {

constexpr int yearLength = 4;

}  // namespace

Text AppendPath(TextView name) {
  const TextView cut = core::trimRight(name);
  if (cut.empty() || cut.find(withoutFolder) != TextView::npos) return {};
  return paths::withSeparator(cut);
}

int FolderYear(TextView name) {
  return core::length(name) < yearLength ? 0 : core::intValue(core::right(name, yearLength));
}

Text cleanName(TextView typed) {
  Text name = names::OcistiIme(typed);
  for (char16_t& character : name)
    if (character < u' ') character = u' ';
  return name;
}

Text folderName(TextView typed) {
  const Text name = cleanName(typed);
  const TextView trimmed = core::trim(name);
  return trimmed == u"." || trimmed == u".." ? Text() : Text(trimmed);
}

Contents contentsOf(platform::Files& files, const Text& folder) {
  Contents contents;
  try {
    for (platform::FolderEntry& entry : files.list(folder).entries) {
      if (!paths::fitsRecord(entry.name)) continue;
      if (entry.kind == platform::EntryKind::File)
        contents.files.push_back(std::move(entry.name));
      else if (entry.kind == platform::EntryKind::Folder && entry.name != withoutFolder)
        contents.folders.push_back(std::move(entry.name));
    }
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A folder that has gone meanwhile has nothing to show.
  }
  return contents;
}

std::vector<Text> foldersIn(platform::Files& files, const Text& folder) {
  return contentsOf(files, folder).folders;
}

std::vector<Text> filesIn(platform::Files& files, const Text& folder) {
  return contentsOf(files, folder).files;
}

}  // namespace velmora::base
