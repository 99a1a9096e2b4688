#include "platform/trace.h"

#include <string>

namespace velmora::platform {

namespace {

Trace* current = nullptr;

std::string_view fileName(std::string_view path) {
  return path.substr(path.find_last_of('/') + 1);
}

}  // namespace

Trace* currentTrace() noexcept {
  return current;
}

void setTrace(Trace* trace) noexcept {
  current = trace;
}

std::string inWords(const std::exception& error) {
  const auto* failure = dynamic_cast<const FileError*>(&error);
  if (!failure) return error.what();
  std::string words = std::to_string(failure->number) + ' ';
  for (const char16_t character : failure->description)
    words += character < 0x80 ? static_cast<char>(character) : '?';
  return words;
}

void caughtSilently(const std::exception& error, const char* file, int line) noexcept {
  if (!current) return;
  try {
    current->line("caught " + inWords(error) + " at " + std::string(fileName(file)) + ':' +
                  std::to_string(line));
  } catch (const std::exception&) {
    // A trace that lacks a line is better than a program that ends for it.
  }
}

}  // namespace velmora::platform
