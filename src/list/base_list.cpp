#include "list/base_list.h"

#include <utility>

#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::list {

void BaseList::refresh(const Text& root, TextView caption) {
  parts_.progress.setText(caption);
  std::vector<Text> found;
  FolderScan scan(parts_, FolderScan::Mode::BaseRefresh);
  scan.onMusic = [&found](FoundFile file) { found.push_back(std::move(file.path)); };
  try {
    scan.Pretrazi(root);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return;
  }
  if (parts_.table.Stop) return;
  parts_.table.bazaniz = std::move(found);
  data_.writeList(u"bazaniz.txt", parts_.table.bazaniz);
}

}  // namespace velmora::list
