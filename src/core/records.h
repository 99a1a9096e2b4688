#pragma once

#include <optional>
#include <vector>

#include "core/element.h"
#include "platform/text.h"

/// The sequential records of column files, settings, journal and tips: one quoted text, #TRUE#, #FALSE# or an
/// empty line per line, each ended by CR LF, as UTF-8. docs/formats.md gives them byte by byte.
namespace velmora::core::records {

/// Adds one record with its line end to `out`.
void write(Bytes& out, const Element& element);
/// Adds `count` records that hold nothing.
void writeNothing(Bytes& out, std::size_t count);
/// Adds one quoted text with its line end to `out`. A double quote inside ends the text on reading; a text
/// with a line break behind that quote is cut at the break.
void writeText(Bytes& out, TextView text);

/// Reads records one after the other out of `bytes`, which must outlive the reader. Reads any bytes: a text
/// runs to its closing quote, or to the end where that is missing, and the rest of the quote's line is passed
/// over; an unquoted field runs to the next comma or line end; a line end may be CR LF, LF or CR.
class Reader {
 public:
  explicit Reader(BytesView bytes);
  /// The next record, or nothing at the end.
  std::optional<Element> next();
  /// Whether the last record read was a quoted text whose closing quote is missing: a torn tail.
  bool torn() const { return torn_; }

 private:
  Element quoted();
  Element unquoted();
  void endLine();

  BytesView bytes_;
  std::size_t at_ = 0;
  bool torn_ = false;
};

/// All records as elements; all records as texts. A torn tail is left out: half a path or number is worse
/// than none.
std::vector<Element> readAll(BytesView bytes);
std::vector<Text> readTexts(BytesView bytes);

}  // namespace velmora::core::records
