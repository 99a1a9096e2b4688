#include "platform/file_error.h"

#include <utility>

namespace velmora::platform {

namespace {

const char16_t* describe(int number) {
  switch (number) {
    case FileError::fileNotFound:
      return u"File not found";
    case FileError::fileExists:
      return u"File already exists";
    case FileError::diskFull:
      return u"Disk full";
    case FileError::permissionDenied:
      return u"Permission denied";
    case FileError::pathAccess:
      return u"Path/File access error";
    case FileError::pathNotFound:
      return u"Path not found";
    default:
      return u"Device I/O error";
  }
}

}  // namespace

FileError::FileError(int errorNumber, Text errorDescription)
    : number(errorNumber), description(std::move(errorDescription)) {}

FileError::FileError(int errorNumber) : FileError(errorNumber, describe(errorNumber)) {}

}  // namespace velmora::platform
