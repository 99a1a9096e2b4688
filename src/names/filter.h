#pragma once

#include "platform/text.h"

namespace velmora::names {

/// What a filter run does to capitals. The numbers are the modes as the options store them.
enum class Capitals {
  Keep = 0,
  EveryUpper = 1,       ///< "EVERY UPPER"
  OnlyFirstUpper = 2,   ///< "Only first upper"
  FirstUpperOfWord = 3  ///< "First Upper Of Word"
};

/// Options that both parts of a name share.
struct FilterRules {
  bool spaceInParentheses = false;  ///< "( word )" rather than "(word)"
  bool djUpper = false;             ///< "DJ" always in capitals
  bool featLower = false;           ///< "feat" always in small letters
};

/// Normalises the artist part or the title part of a name. Runs a fixed set of rules on its characters again
/// and again until the text stands still, at most ten times.
Text Filter(TextView text, Capitals capitals, const FilterRules& rules);

}  // namespace velmora::names
