#pragma once

#include <exception>

#include "platform/trace.h"

namespace velmora::app {

/// Runs one step of the start or the end. Nothing may stop these two: a failure ends its own step alone, and
/// the next one runs.
template <typename Step>
void guarded(Step&& step) {
  try {
    step();
  } catch (const std::exception& error) {
    platform::caughtSilently(error);
    // Damaged files give a shorter table and windows in their design state; there is nobody to tell.
  }
}

}  // namespace velmora::app
