#include "base/last_position.h"

#include <algorithm>
#include <utility>

#include "core/records.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::base {

namespace {

constexpr char16_t keyEnd = u'\\';

bool matches(TextView record, TextView key) {
  return record.size() > key.size() && record[key.size()] == keyEnd && record.starts_with(key);
}

}  // namespace

void LastPosition::SavePos(TextView key, TextView value) {
  if (key.empty() || !read()) return;
  Text record(key);
  record.append(1, keyEnd).append(value);
  bool found = false;
  bool differs = false;
  for (Text& old : records_) {
    if (!matches(old, key)) continue;
    found = true;
    differs = differs || old != record;
    old = record;
  }
  if (!found) records_.push_back(std::move(record));
  if (!found || differs) write();
}

Text LastPosition::LoadPos(TextView key) const {
  if (key.empty()) return {};
  read();
  const auto last = std::find_if(records_.rbegin(), records_.rend(),
                                 [key](const Text& record) { return matches(record, key); });
  return last == records_.rend() ? Text() : last->substr(key.size() + 1);
}

/// Returns false when there are records that cannot be read, which must not be written over.
bool LastPosition::read() const {
  if (looked_) return true;
  try {
    const std::uint64_t bytes = files_.size(path_);
    if (bytes != bytes_) records_ = core::records::readTexts(files_.readAll(path_));
    bytes_ = bytes;
    looked_ = looks_ > 0;
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    records_.clear();
    bytes_.reset();
    return !files_.fileExists(path_);
  }
}

void LastPosition::write() {
  Bytes content;
  for (const Text& record : records_) core::records::writeText(content, record);
  try {
    files_.writeAll(path_, content);
    bytes_ = content.size();
    looked_ = looks_ > 0;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    bytes_.reset();
    looked_ = false;
  }
}

}  // namespace velmora::base
