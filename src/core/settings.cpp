#include "core/settings.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/records.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::core {

namespace {

constexpr TextView gap = u"  ";  // between key and value

}  // namespace

Settings::Settings(platform::Files& files, Text path) : files_(files), path_(std::move(path)) {}

Text Settings::get(TextView key) const {
  const Text wanted = upper(key);
  Text value;
  try {
    for (const Element& record : records::readAll(files_.readAll(path_))) {
      const TextView line = record.text();
      // A line that ends before the gap does has an empty value.
      if (line.starts_with(wanted)) value = line.substr(std::min(line.size(), wanted.size() + gap.size()));
    }
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // A missing file is the first start; an unreadable one counts as missing.
  }
  return value;
}

void Settings::set(TextView key, TextView value) {
  const Text wanted = upper(key);
  Text line = wanted;
  line.append(gap).append(value);
  try {
    Bytes content;
    bool found = false;
    if (exists()) {
      for (const Element& record : records::readAll(files_.readAll(path_))) {
        if (record.isText() && record.text().starts_with(wanted)) {
          records::writeText(content, line);
          found = true;
        } else {
          records::write(content, record);
        }
      }
    }
    if (!found) records::writeText(content, line);
    files_.writeAll(path_, content);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The option lasts until the program ends; nothing else is lost.
  }
}

void Settings::setNumber(TextView key, std::int64_t value) {
  set(key, number(value));
}

void Settings::setBoolean(TextView key, bool value) {
  set(key, value ? u"True" : u"False");
}

bool Settings::exists() const {
  return files_.fileExists(path_);
}

}  // namespace velmora::core
