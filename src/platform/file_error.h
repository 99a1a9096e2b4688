#pragma once

#include <exception>

#include "platform/text.h"

namespace velmora::platform {

/// What a file operation throws when it fails. The numbers are the classical ones, since dialogs show them.
struct FileError : std::exception {
  static constexpr int deviceError = 57;
  static constexpr int fileNotFound = 53;
  static constexpr int fileExists = 58;
  static constexpr int diskFull = 61;
  static constexpr int permissionDenied = 70;
  static constexpr int pathAccess = 75;
  static constexpr int pathNotFound = 76;

  FileError(int errorNumber, Text errorDescription);
  /// With the description that belongs to the number, such as "File not found".
  explicit FileError(int errorNumber);

  const char* what() const noexcept override { return "file error"; }

  int number;
  Text description;
  Text source;  ///< class that passed the failure on, such as "velmora.cMP3ID3v1"; empty from the services
};

}  // namespace velmora::platform
