#include "newmusic/new_music_undo.h"

#include "base/active_window.h"
#include "base/busy.h"
#include "core/number_text.h"
#include "newmusic/music_undo_group.h"
#include "ui/quiet_lists.h"

namespace velmora::newmusic {

void NewMusicUndo::undoLastOperation() {
  const Text caption = u"Undoing ...";
  ui::Form2& form2 = parts_.windows.form2;
  const base::ActiveWindow atWork(parts_.table, core::WindowAtWork::NewMusic);
  form2.statusLabel.setText(caption);
  {
    const base::Busy busy(parts_.windows, parts_.progress, caption);
    const ui::QuietLists quietly(parts_.table);
    reached_.reset();
    // Artists that come back need not be looked for here; all is listed anew in the end.
    form2.List2.Clear();
    {
      const rows::RowKeeper::Batch rows(parts_.rows);
      parts_.replay.replayUndo(journal::kind::newMusic);
    }
    parts_.settings.set(u"velicinasfiles", core::number(parts_.table.velicinasfiles));
    if (reached_)
      parts_.snapshot.restore(*reached_);
    else
      parts_.snapshot.listAnew();
  }
  form2.statusLabel.setText({});
  parts_.summary.moze();
  showState();
}

}  // namespace velmora::newmusic
