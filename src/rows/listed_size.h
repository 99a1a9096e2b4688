#pragma once

#include <algorithm>

#include "core/track_table.h"
#include "platform/files.h"

namespace velmora::rows {

/// Keeps the sum of sizes in step with the file of a row while something may write it: at the end of the
/// scope `velicinasfiles` has changed by as much as the file. Rows behind the working list, and files that
/// are not there, count nothing.
class ListedSize {
 public:
  ListedSize(core::TrackTable& table, platform::Files& files, int row)
      : table_(table), files_(files), row_(row), before_(bytes()) {}
  ~ListedSize() {
    const double after = bytes();
    if (before_ > 0 && after > 0)
      table_.velicinasfiles = std::max(0.0, table_.velicinasfiles + after - before_);
  }
  ListedSize(const ListedSize&) = delete;
  ListedSize& operator=(const ListedSize&) = delete;

 private:
  double bytes() const {
    return row_ <= table_.brojfajlova() ? static_cast<double>(files_.stamp(table_.path(row_)).bytes) : 0;
  }

  core::TrackTable& table_;
  platform::Files& files_;
  int row_;
  double before_;
};

}  // namespace velmora::rows
