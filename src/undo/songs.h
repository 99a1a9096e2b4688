#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "core/track_table.h"

namespace velmora::undo {

/// Finds the songs that records speak of, while changes are taken back from the newest to the oldest. A
/// record names a song by its row and path of that time; both may have another value now, where an older
/// change could not be taken back, or where the table is older than the journal.
class Songs {
 public:
  explicit Songs(const core::TrackTable& table) : table_(table) {}
  /// A replay begins: nothing is known.
  void begin();

  /// Where the song lies now that the record at hand calls `path`.
  const Text& now(const Text& path) const;
  /// From here down the records call the song `path` that lies at `place`.
  void isAt(const Text& path, const Text& place);
  /// The records from here down do not know `path` any more.
  void forget(const Text& path) { elsewhere_.erase(path); }
  /// Songs that lie elsewhere than the records from here down say: path and place.
  const std::unordered_map<Text, Text>& elsewhere() const { return elsewhere_; }

  /// The row whose song lies at `path`: the one that the record numbers `number`, else any; 0 when there is
  /// none.
  int rowAt(int number, const Text& path);
  /// The number now of a row that the record at hand numbers `number`.
  int numberNow(int number) const;
  /// A row has another path.
  void renamed(int row, const Text& path);
  /// A row came back that the record at hand numbers `number`, or did not come back.
  void restored(int number);
  void lost(int number);

 private:
  const core::TrackTable& table_;
  std::unordered_map<Text, Text> elsewhere_;
  std::vector<int> lost_;  // numbers of rows that the records have and the table lacks
  std::optional<std::unordered_map<Text, int>> rows_;  // by path; made when it is needed first
};

}  // namespace velmora::undo
