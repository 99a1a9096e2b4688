#pragma once

namespace velmora::undo {

/// What taking back one record came to.
enum class UndoOutcome {
  Done,
  Abort,  ///< the user ends the whole undo here
};

}  // namespace velmora::undo
