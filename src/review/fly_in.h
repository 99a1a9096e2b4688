#pragma once

#include "platform/text.h"

namespace velmora::review {

/// A line of text flies in over so many frames, with the gap falling from 50 to 0.
constexpr int flyInFrames = 51;

/// One frame: each letter is followed by as many blanks as the gap, which falls by one for each letter and
/// never below 0.
Text flyInFrame(TextView text, int gap);

}  // namespace velmora::review
