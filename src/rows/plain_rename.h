#pragma once

#include "platform/file_error.h"
#include "platform/files.h"
#include "platform/hand_over.h"
#include "ui/failures.h"

namespace velmora::rows {

/// What a rename came to; Abort ends the batch that called it.
enum class RenameResult { Done = 0, Abort = 1, Ignore = 2 };

/// Gives a file the path `newPath`, with a dialog for failures. Neither table nor journal know of it; the
/// preview player lets go of the file meanwhile and then goes on.
RenameResult RenameNoList(platform::Files& files, ui::Failures& failures, platform::FileHolder& player,
                          const Text& path, const Text& newPath);

/// The dialog of both renames about the file `path`, under the title "Rename". Done stands for Retry.
RenameResult askAboutRename(ui::Failures& failures, const Text& text, TextView path,
                            const platform::FileError& error);

}  // namespace velmora::rows
