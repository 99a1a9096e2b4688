#include "core/records.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "core/utf8.h"

namespace velmora::core::records {

namespace {

constexpr BytesView lineEnd = "\r\n";
constexpr BytesView trueMark = "#TRUE#";
constexpr BytesView falseMark = "#FALSE#";

/// Cuts what was added behind `from` where a line break follows a quote. The quote ends the text on reading,
/// and the rest of its line is passed over; but behind a line break the rest would be a record of its own,
/// which would shift all rows below.
void cutUncarried(Bytes& out, std::size_t from) {
  const std::size_t quote = out.find('"', from);
  if (quote == Bytes::npos) return;
  const std::size_t lineBreak = out.find_first_of(lineEnd, quote);
  if (lineBreak != Bytes::npos) out.resize(lineBreak);
}

}  // namespace

void write(Bytes& out, const Element& element) {
  if (element.isText()) {
    writeText(out, element.text());
    return;
  }
  if (element.isBoolean()) out += element.isTrue() ? trueMark : falseMark;
  out += lineEnd;
}

void writeNothing(Bytes& out, std::size_t count) {
  std::size_t at = out.size();
  out.resize(at + count * lineEnd.size());
  for (; at < out.size(); at += lineEnd.size()) lineEnd.copy(out.data() + at, lineEnd.size());
}

void writeText(Bytes& out, TextView text) {
  out += '"';
  const std::size_t from = out.size();
  utf8::append(out, text);
  cutUncarried(out, from);
  out += '"';
  out += lineEnd;
}

Reader::Reader(BytesView bytes) : bytes_(bytes) {}

std::optional<Element> Reader::next() {
  torn_ = false;
  if (at_ >= bytes_.size()) return std::nullopt;
  const std::size_t start = bytes_.find_first_not_of(' ', at_);
  if (start == BytesView::npos) {
    at_ = bytes_.size();
    return Element();
  }
  at_ = start;
  return bytes_[at_] == '"' ? quoted() : unquoted();
}

Element Reader::quoted() {
  const std::size_t from = at_ + 1;
  const std::size_t quote = bytes_.find('"', from);
  if (quote == BytesView::npos) {
    torn_ = true;
    at_ = bytes_.size();
    return fromBytes(bytes_.substr(from));
  }
  // What stands between the quote and the line end can only be the rest of a text with a quote inside.
  at_ = std::min(bytes_.find_first_of(lineEnd, quote), bytes_.size());
  endLine();
  return fromBytes(bytes_.substr(from, quote - from));
}

Element Reader::unquoted() {
  const std::size_t from = at_;
  at_ = std::min(bytes_.find_first_of(",\r\n", from), bytes_.size());
  const BytesView field = bytes_.substr(from, at_ - from);
  if (at_ < bytes_.size() && bytes_[at_] == ',') {
    ++at_;
  } else {
    endLine();
  }
  if (field.empty()) return {};
  if (field == trueMark) return true;
  if (field == falseMark) return false;
  return fromBytes(field);
}

void Reader::endLine() {
  if (at_ < bytes_.size() && bytes_[at_] == '\r') ++at_;
  if (at_ < bytes_.size() && bytes_[at_] == '\n') ++at_;
}

std::vector<Element> readAll(BytesView bytes) {
  std::vector<Element> elements;
  Reader reader(bytes);
  while (auto element = reader.next())
    if (!reader.torn()) elements.push_back(std::move(*element));
  return elements;
}

std::vector<Text> readTexts(BytesView bytes) {
  std::vector<Text> texts;
  Reader reader(bytes);
  while (const auto element = reader.next())
    if (!reader.torn()) texts.push_back(element->text());
  return texts;
}

}  // namespace velmora::core::records
