#pragma once

namespace velmora::review {

/// What taking back one record came to.
enum class UndoOutcome {
  Done,
  Abort,  ///< the user ends the whole undo here
};

}  // namespace velmora::review
