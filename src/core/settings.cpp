#include "core/settings.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "core/number_text.h"
#include "core/own_files.h"
#include "core/records.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::core {

namespace {

constexpr TextView gap = u"  ";  // between key and value

}  // namespace

Settings::Settings(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

Settings::Records Settings::read() const {
  if (held_) return *held_;
  if (!files_.fileExists(path_) && !files_.folderExists(path_)) return {};
  return records::readAll(readOwn(files_, path_));
}

Text Settings::get(TextView key) const {
  const Text wanted = upper(key);
  Text value;
  try {
    for (const Element& record : read()) {
      const TextView line = record.text();
      // A line that ends before the gap does has an empty value.
      if (line.starts_with(wanted)) value = line.substr(std::min(line.size(), wanted.size() + gap.size()));
    }
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A file that cannot be read counts as missing.
  }
  return value;
}

bool Settings::set(TextView key, TextView value) {
  const Text wanted = upper(key);
  Text line = wanted;
  line.append(gap).append(value);
  try {
    Records records;
    try {
      records = read();
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      moveAside(files_, path_);
    }
    const auto ofKey = [&wanted](const Element& record) {
      return record.isText() && record.text().starts_with(wanted);
    };
    const bool found = std::ranges::any_of(records, ofKey);
    const bool same = found && std::ranges::all_of(records, [&](const Element& record) {
                        return !ofKey(record) || record.text() == line;
                      });
    if (same) return true;
    for (Element& record : records)
      if (ofKey(record)) record = Element(line);
    if (!found) records.emplace_back(std::move(line));
    if (together_ == 0) return store(records);
    held_ = std::move(records);
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

bool Settings::store(const Records& records) {
  Bytes content;
  for (const Element& record : records) records::write(content, record);
  try {
    files_.writeAll(path_, content);
    return true;
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return false;
  }
}

bool Settings::setNumber(TextView key, std::int64_t value) {
  return set(key, number(value));
}

bool Settings::setBoolean(TextView key, bool value) {
  return set(key, value ? u"True" : u"False");
}

bool Settings::exists() const {
  return held_ || files_.fileExists(path_);
}

Settings::Together::Together(Settings& settings) : settings_(settings) {
  ++settings_.together_;
}

Settings::Together::~Together() {
  if (--settings_.together_ > 0) return;
  try {
    if (const auto records = std::exchange(settings_.held_, std::nullopt)) settings_.store(*records);
  } catch (const std::exception& error) {
    platform::caughtSilently(error);
    // As with any set that fails, the options last until the program ends.
  }
}

}  // namespace velmora::core
