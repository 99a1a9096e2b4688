#pragma once

#include <cstdint>

#include "platform/files.h"
#include "platform/text.h"

namespace velmora::core {

/// Settings.ini: one quoted text per line that holds the key in capitals, two blanks and the value.
///
/// Nothing is cached, so what another program wrote is seen at once. Keys match by prefix and the last
/// matching line wins; no key may be the beginning of another. No failure is reported.
class Settings {
 public:
  /// `path` is the full path of Settings.ini.
  Settings(platform::Files& files, Text path);

  /// The value as it stands, or "" when the key or the file is missing.
  Text get(TextView key) const;
  /// Replaces the key's lines, or appends one.
  void set(TextView key, TextView value);
  /// Stores a number with its leading blank; a Boolean as "True" or "False".
  void setNumber(TextView key, std::int64_t value);
  void setBoolean(TextView key, bool value);
  /// Whether the file is there at all: without it the journal is not read.
  bool exists() const;

 private:
  platform::Files& files_;
  Text path_;
};

}  // namespace velmora::core
