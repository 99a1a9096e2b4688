#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/track_table.h"
#include "platform/text.h"

/// The records of the undo journal taken apart again. A record is three letters of kind, and for data records
/// L(first), a blank and the rest, where L(x) is the length of x and x (see lengthPrefixed); docs/formats.md
/// has them all. The readers here take any text; what is damaged anywhere gives nothing at all.
namespace velmora::journal {

/// One line of the journal. The kind is the first three letters, whatever follows.
struct UndoRecord {
  TextView kind;
  /// Nothing for a marker, and for a data record that is damaged.
  struct Data {
    TextView first;
    TextView rest;
  };
  std::optional<Data> data;

  /// Whether it is of this kind, one of those in record_kind.h.
  bool is(std::string_view other) const;
};
/// The parts of `line`, which they point into.
UndoRecord parseUndoRecord(TextView line);

/// Takes L(x) fields off the front of a text, one after the other.
class FieldReader {
 public:
  explicit FieldReader(TextView text) : left_(text) {}
  /// The next field; nothing when the digits or the length are not as they should be, and ever after.
  std::optional<TextView> next();
  /// What no field has taken.
  TextView left() const { return left_; }

 private:
  TextView left_;
};

/// A row number as records hold it, with its leading blank; nothing unless it is one from 1 up.
std::optional<int> parseRow(TextView text);

/// Rest of a "ren" record: what the file and its row were before.
struct RenamePayload {
  int row;
  Text path;
  Text crtapos;
  Text identity;  ///< that of the file (Files::identity); empty in records of older versions
};
/// L(row) L(path) L(dash position) of a row as it is now, and L(identity) of its file.
Text renamePayload(const core::TrackTable& table, int row, TextView identity);
std::optional<RenamePayload> parseRenamePayload(TextView text);

/// `first` of a "del" record.
struct DeletedFile {
  std::uint64_t size;  ///< bytes
  Text path;
  Text identity;  ///< of the file ahead of its way to the trash; empty in records of older versions
};
Text deletedFile(std::uint64_t size, TextView path, TextView identity);
std::optional<DeletedFile> parseDeletedFile(TextView text);

/// Rest of a "mov" record.
struct MovedFile {
  Text path;                          ///< the new one
  Text identity;                      ///< of the file ahead of the move; empty in records of older versions
  std::optional<std::uint64_t> size;  ///< bytes; nothing in records of older versions
};
Text movedFile(TextView path, TextView identity, std::uint64_t size);
std::optional<MovedFile> parseMovedFile(TextView text);

/// The text of rowSnapshot taken apart.
struct RowSnapshot {
  bool procitan;
  bool imaid3v1;
  bool imaid3v2;
  /// In the order of snapshotColumns().
  std::array<Text, 12> tags;
  Text path;
  Text crtapos;
  int brojfajlova;
};
/// The twelve tag columns that a row snapshot holds, in its order; the path and the dash position follow
/// them.
const std::array<core::Column, 12>& snapshotColumns();
/// Three flags and fifteen L(x) fields: the tag columns, path and dash position of a row, and the count of
/// rows of the working list.
Text rowSnapshot(const core::TrackTable& table, int row);
std::optional<RowSnapshot> parseRowSnapshot(TextView text);

}  // namespace velmora::journal
