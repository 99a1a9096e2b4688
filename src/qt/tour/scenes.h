#pragma once

#include <QDir>

#include "qt/tour/stage.h"
#include "ui/windows.h"

namespace velmora::qt {

/// Many empty files with the names of songs, in a folder under `music` for as long as an object lives: enough
/// for a command on them to take its time.
class Crowd {
 public:
  explicit Crowd(const QString& music);
  ~Crowd();
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;
  QString folder() const { return folder_.path(); }

 private:
  QDir folder_;
  bool made_;
};

/// From the first start to a list of new music, and through all windows.
void addFirstVisit(Stage& stage, ui::Windows& windows, const QString& music, const QString& crowd);
/// Changes names and tags of several songs, takes all of it back, and plays one.
void addRepair(Stage& stage, ui::Windows& windows);
/// With the songs that were listed and repaired into the Music Base: a genre is made, an artist and a genre
/// are moved, the base is looked over by year, an album gets its year, and the last move is taken back.
void addRoadIntoBase(Stage& stage, ui::Windows& windows);
/// The next start: everything is as it was left.
void addReturn(Stage& stage, ui::Windows& windows);

}  // namespace velmora::qt
