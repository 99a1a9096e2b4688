#pragma once

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/hand_over.h"

namespace velmora::rows {

/// What a rename came to; Abort ends the batch that called it.
enum class RenameResult { Done = 0, Abort = 1, Ignore = 2 };

/// Gives a file the path `newPath`, with a dialog for failures. Neither table nor journal know of it; the
/// preview player lets go of the file meanwhile and then goes on.
RenameResult RenameNoList(platform::Files& files, platform::Dialogs& dialogs, platform::FileHolder& player,
                          const Text& path, const Text& newPath);

/// The dialog of both renames, under the title "Rename" with Abort, Retry and Ignore. Done stands for Retry.
RenameResult askAboutRename(platform::Dialogs& dialogs, const Text& text);

}  // namespace velmora::rows
