#pragma once

#include <string_view>
#include <vector>

#include "platform/text.h"

/// Entry functions that take any bytes. Each stands in a file `<name>_fuzz.cpp` and has its seeds in
/// `corpus/<name>/`. A fuzzer is made of one of these files; the test binary holds them all and runs every
/// seed, so that what a fuzzer has found once stays found.
namespace velmora::fuzz {

struct Target {
  std::string_view name;
  void (*run)(BytesView bytes);
};

/// The targets that are linked into this program.
std::vector<Target>& targets();

/// Ends the program with a message when `holds` is false: what a fuzzer and a test both take for a failure.
void require(bool holds, const char* message);

struct Registration {
  Registration(std::string_view name, void (*run)(BytesView)) { targets().push_back({name, run}); }
};

}  // namespace velmora::fuzz

/// Defines the entry function of a target: VELMORA_FUZZ_TARGET(records) { ... use `bytes` ... }
#define VELMORA_FUZZ_TARGET(targetName)                                                                \
  static void targetName##Target(velmora::BytesView bytes);                                            \
  static const velmora::fuzz::Registration targetName##Registration(#targetName, &targetName##Target); \
  static void targetName##Target(velmora::BytesView bytes)
