// Stands between libFuzzer and the one target of a fuzzer.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  for (const velmora::fuzz::Target& target : velmora::fuzz::targets())
    target.run({reinterpret_cast<const char*>(data), size});
  return 0;
}
