#pragma once

namespace velmora::core {

/// The window whose commands act (`aktivniprozor`): the one in front, or the one that drives another.
/// `Settings.ini` holds its number.
enum class WindowAtWork {
  NotYetKnown = 0,
  Processing = 1,
  /// The base asks for no names, saves no positions, and journals the folders that it makes.
  NewMusic = 2,
  MusicBase = 3,
  /// The Music Base Window takes files away: its lists save no positions meanwhile. Never stored.
  DeletingFiles = 5
};

/// The window in front that has this number; NotYetKnown for a number that none has.
constexpr WindowAtWork windowOf(int number) {
  for (const WindowAtWork window :
       {WindowAtWork::Processing, WindowAtWork::NewMusic, WindowAtWork::MusicBase})
    if (static_cast<int>(window) == number) return window;
  return WindowAtWork::NotYetKnown;
}

}  // namespace velmora::core
