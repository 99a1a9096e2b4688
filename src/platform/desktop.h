#pragma once

#include <cstdint>

#include "platform/text.h"

namespace velmora::platform {

/// A part of the screen in twips (1/1440 inch).
struct ScreenRoom {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// The desktop session that the program runs in.
class Desktop {
 public:
  virtual ~Desktop() = default;
  /// Handles what the user and the system did meanwhile, and returns. May do nothing until a frame (16 ms)
  /// has passed since the last call, so long loops can call it for each row.
  virtual void pumpEvents() = 0;
  /// Waits until something happens and handles it; the body of every modal wait.
  virtual void waitForEvents() = 0;
  virtual void sleep(int milliseconds) = 0;
  /// Time that never goes back, in milliseconds.
  virtual std::int64_t clockMilliseconds() = 0;
  /// The year of today in the user's time zone.
  virtual int currentYear() = 0;
  /// The screen of the main window, less what the desktop keeps for itself; no height when it is not known.
  virtual ScreenRoom screenRoom() = 0;
  /// Whether the user asked the desktop for less motion: nothing flies or fades then.
  virtual bool lessMotion() = 0;
  /// A number in [0, 1) that differs from start to start.
  virtual double random() = 0;
  /// Whether another copy of this program uses the same program folder.
  virtual bool anotherInstanceRunning() = 0;
  /// Version code of the system; below 260 the file system needs a pause after a file was let go.
  virtual int systemVersion() = 0;
  /// Opens a file or page with the program that the user chose for its kind. No failure is reported.
  virtual void openWithDefaultProgram(const Text& pathOrPage) = 0;
};

}  // namespace velmora::platform
