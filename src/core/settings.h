#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/element.h"
#include "platform/files.h"
#include "platform/text.h"

namespace velmora::core {

/// Settings.ini: one quoted text per line that holds the key in capitals, two blanks and the value.
///
/// Nothing is cached, so what another program wrote is seen at once. Keys match by prefix and the last
/// matching line wins; no key may be the beginning of another. The file is written beside itself and swapped;
/// one that cannot be read is moved aside before the first new one takes its place.
class Settings {
 public:
  /// `path` is the full path of Settings.ini.
  Settings(platform::Files& files, Text path);

  /// The value as it stands, or "" when the key or the file is missing.
  Text get(TextView key) const;
  /// Replaces the key's lines, or appends one. False when that could not be stored: the option then lasts
  /// until the program ends.
  bool set(TextView key, TextView value);
  /// Stores a number with its leading blank; a Boolean as "True" or "False".
  bool setNumber(TextView key, std::int64_t value);
  bool setBoolean(TextView key, bool value);
  /// Whether the file is there at all: without it the journal is not read.
  bool exists() const;

  /// While an object of this class lives, the file is read once, and written once at the end: for a window
  /// that stores all its options.
  class Together {
   public:
    explicit Together(Settings& settings);
    ~Together();
    Together(const Together&) = delete;
    Together& operator=(const Together&) = delete;

   private:
    Settings& settings_;
  };

 private:
  using Records = std::vector<Element>;
  /// Throws FileError when the file is there and cannot be read.
  Records read() const;
  bool store(const Records& records);

  platform::Files& files_;
  Text path_;
  int together_ = 0;  // how many objects of that class live
  std::optional<Records> held_;
};

}  // namespace velmora::core
