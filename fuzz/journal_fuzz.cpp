#include <vector>

#include "core/text.h"
#include "fuzz/target.h"
#include "journal/journal_lines.h"
#include "journal/selection_snapshot.h"
#include "journal/undo_journal.h"
#include "journal/undo_record.h"
#include "tests/support/memory_file.h"

namespace journal = velmora::journal;
using velmora::Bytes;
using velmora::BytesView;
using velmora::Text;
using velmora::fuzz::require;

namespace {

/// Both ways through the file must see the same records.
void readBothWays(BytesView bytes) {
  std::vector<Bytes> forwards;
  for (const BytesView record : journal::journal_lines::split(bytes)) forwards.emplace_back(record);
  velmora::test::MemoryFile file{Bytes(bytes)};
  std::vector<Bytes> backwards;
  std::uint64_t last = bytes.size();
  journal::journal_lines::visitFromEnd(file, [&](BytesView record, std::uint64_t offset) {
    require(offset < last, "records come from the end to the start");
    last = offset;
    backwards.emplace(backwards.begin(), record);
    return true;
  });
  require(forwards == backwards, "both ways through the journal see the same records");
}

/// What a parser gives back must write the text that it was given, but for how numbers are spelled.
void takeApart(const Text& line) {
  const journal::UndoRecord record = journal::parseUndoRecord(line);
  require(record.kind.size() <= 3, "a kind has three letters");
  if (!record.data) return;
  if (const auto deleted = journal::parseDeletedFile(record.data->first))
    require(!deleted->path.empty(), "a deleted file has a path");
  if (const auto payload = journal::parseRenamePayload(record.data->rest))
    require(payload->row >= 1 && !payload->path.empty(), "a rename has a row and a path");
  if (const auto row = journal::parseRow(record.data->first)) require(*row >= 1, "rows count from 1");
  if (const auto snapshot = journal::parseRowSnapshot(record.data->rest))
    require(!snapshot->path.empty(), "a row has a path");
  velmora::ui::Form1 form1;
  for (int row = 0; row < 3; ++row) form1.List4.AddItem(u"row");
  journal::restoreSelection(form1, record.data->first, [] { return true; });
}

}  // namespace

VELMORA_FUZZ_TARGET(journal) {
  readBothWays(bytes);
  for (const BytesView record : journal::journal_lines::split(bytes))
    takeApart(velmora::core::fromBytes(record));
}
