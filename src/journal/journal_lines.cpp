#include "journal/journal_lines.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace velmora::journal::journal_lines {

namespace {

constexpr std::uint64_t blockBytes = 65536;
// What stands between two records, as far as it tells them apart: a line may end with LF alone.
constexpr BytesView boundary = "\n\"";

/// The text between the quotes of one chunk, line end included; nothing when the chunk is torn. Rubbish
/// behind the record is left out.
std::optional<BytesView> recordOf(BytesView chunk) {
  if (const std::size_t end = chunk.rfind("\"\r\n"); end != BytesView::npos && end > 0)
    chunk = chunk.substr(0, end + 1);
  while (!chunk.empty() && (chunk.back() == '\n' || chunk.back() == '\r')) chunk.remove_suffix(1);
  if (chunk.size() < 2 || chunk.front() != '"' || chunk.back() != '"') return std::nullopt;
  return chunk.substr(1, chunk.size() - 2);
}

}  // namespace

std::vector<BytesView> split(BytesView bytes) {
  std::vector<BytesView> records;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const std::size_t next = bytes.find(boundary, begin);
    const std::size_t end = next == BytesView::npos ? bytes.size() : next + 1;
    if (const auto record = recordOf(bytes.substr(begin, end - begin))) records.push_back(*record);
    begin = end;
  }
  return records;
}

void visitFromEnd(platform::OpenFile& file,
                  const std::function<bool(BytesView record, std::uint64_t offset)>& visit) {
  std::uint64_t offset = file.size();  // of the first byte in `held`
  Bytes held;                          // bytes not handed out yet
  std::size_t searchEnd = 0;           // no boundary begins in `held` at or behind this place
  while (true) {
    const std::size_t at = searchEnd == 0 ? Bytes::npos : held.rfind(boundary, searchEnd - 1);
    if (at == Bytes::npos && offset > 0) {
      Bytes block(std::min(offset, std::max<std::uint64_t>(blockBytes, held.size())), '\0');
      offset -= block.size();
      block.resize(file.readAt(offset, block));
      searchEnd = block.size();  // a boundary may begin in the last byte of the block
      held.insert(0, block);
      continue;
    }
    const std::size_t begin = at == Bytes::npos ? 0 : at + 1;
    const auto record = recordOf(BytesView(held).substr(begin));
    if (record && !visit(*record, offset + begin)) return;
    if (at == Bytes::npos) return;
    held.resize(begin);
    searchEnd = at;
  }
}

}  // namespace velmora::journal::journal_lines
