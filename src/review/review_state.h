#pragma once

namespace velmora::review {

/// What Check+Fix and Find Duplicates keep while they walk the list, and what the user pressed meanwhile.
struct ReviewState {
  int reviewRow = 0;           ///< row under review: the counter of the walk; 0 when none runs
  bool nextPressed = false;    ///< Next
  bool acceptPressed = false;  ///< a suggestion was taken by double click
  bool leaveReview = false;    ///< ends the walk, or its present turn
  bool goBack = false;         ///< Prev.: the walk starts again at the stop before
  bool stopPressed = false;    ///< Stop: the walk halts at the next file
  bool undoPressed = false;    ///< something was undone at a stop: the walk takes the present row again
  bool resumeReview = false;   ///< the walk goes on where the last run of the program left it
  bool stopRecorded = false;   ///< the present turn of the walk has put a stop in the journal
  bool running = false;        ///< a walk is on
  bool waiting = false;        ///< at a stop: buttons and lists may be used
};

}  // namespace velmora::review
