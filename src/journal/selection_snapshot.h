#pragma once

#include <functional>

#include "platform/text.h"
#include "ui/form1.h"

namespace velmora::journal {

/// Selected rows and top rows of the artist list, its song list and the file list as one text of six
/// sections, each ended by ":": the payload of a "bi1" record.
Text selectionSnapshot(const ui::Form1& form1);

/// Puts back what a snapshot tells, in lists that are enabled. Any text is read; what is no index is passed
/// over. `outOfRange` is asked at each index of the artist or song list that lies beyond it: it answers
/// whether to go on. (The file list leaves such indexes out without a word.)
void restoreSelection(ui::Form1& form1, TextView snapshot, const std::function<bool()>& outOfRange);

}  // namespace velmora::journal
