#include "batch/undo_name.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "core/paths.h"
#include "journal/undo_record.h"
#include "names/grammar.h"

namespace velmora::batch {

namespace {

/// Path that each of the files had before its newest rename; the journal is read once for all of them.
std::unordered_map<Text, Text> earlierPaths(const journal::UndoJournal& journal,
                                            std::unordered_set<Text> paths) {
  std::unordered_map<Text, Text> earlier;
  journal.visitFromNewest([&](const Text& line, std::uint64_t) {
    const journal::UndoRecord record = journal::parseUndoRecord(line);
    if (!record.is(journal::kind::renamed) || !record.data || paths.erase(Text(record.data->first)) == 0)
      return true;
    if (const auto before = journal::parseRenamePayload(record.data->rest))
      earlier.emplace(record.data->first, before->path);
    return !paths.empty();
  });
  return earlier;
}

}  // namespace

bool UndoName::undoEdit() {
  ui::TextBox& box = parts_.form1.Text1;
  box.takeFocus();
  if (!box.undoEdit) return false;
  const Text before = box.text();
  box.undoEdit();
  return box.text() != before;
}

void UndoName::undoName() {
  std::vector<int> rows = parts_.frame.selectedRows();
  std::unordered_set<Text> paths;
  for (const int row : rows) paths.insert(parts_.table.path(row));
  const auto earlier = earlierPaths(parts_.journal, std::move(paths));
  std::erase_if(rows, [&](int row) { return !earlier.contains(parts_.table.path(row)); });
  parts_.frame.run(u"Renaming ...", rows, [this, &earlier](int row) {
    const Text& path = earlier.at(parts_.table.path(row));
    const rows::RenameResult result = parts_.renamer.rename(row, Text(core::paths::bareName(path)), true);
    parts_.artists.DodajAutora(parts_.table.track(row).pevac.text());
    return result != rows::RenameResult::Abort;
  });
}

}  // namespace velmora::batch
