#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace velmora::system {

/// Owns a file descriptor; closes it, and leaves `errno` as it was.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }

  bool valid() const { return number_ >= 0; }
  int get() const { return number_; }
  /// Gives up the descriptor without closing it.
  int release() { return std::exchange(number_, -1); }

  /// Returns 0, or the error code of a close that found what had been written lost.
  int close() {
    if (!valid()) return 0;
    const int before = errno;
    const int code = ::close(std::exchange(number_, -1)) == 0 ? 0 : errno;
    errno = before;
    return code == EINTR ? 0 : code;
  }

 private:
  int number_;
};

/// A system call once more for as long as signals cut it short.
template <typename Call>
auto untilDone(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result;
}

}  // namespace velmora::system
