#include "list/other_files.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "list/other_rows.h"
#include "platform/file_error.h"
#include "rows/file_mover.h"
#include "ui/display_limit.h"
#include "ui/failures.h"
#include "ui/view_choice.h"

namespace velmora::list {

using platform::Buttons;
using platform::Icon;

namespace {

/// Disables a window for as long as an object of this class lives.
class HeldWindow {
 public:
  explicit HeldWindow(ui::Window& window) : window_(window) { window_.setEnabled(false); }
  ~HeldWindow() { window_.setEnabled(true); }
  HeldWindow(const HeldWindow&) = delete;
  HeldWindow& operator=(const HeldWindow&) = delete;

 private:
  ui::Window& window_;
};

}  // namespace

void OtherFiles::open() {
  if (ui::overLimit(static_cast<int>(parts_.table.niznomusic.size())))
    parts_.dialogs.message(
        u"There is to many files. Program can display only 32737 files on list. When process these files, "
        u"make list again to display other files.",
        u"Make List", Buttons::Ok, Icon::Information);
  parts_.windows.form8.list.fill(shownOtherFiles(parts_.table));
  parts_.windows.form8.show();
}

void OtherFiles::deleteSelected() {
  if (busy() || parts_.windows.form8.list.SelCount() == 0) return;
  walkSelected(u"Deleting ...", [this](const Text& path) { return sendToTrash(path); });
}

void OtherFiles::moveSelected() {
  if (busy() || parts_.windows.form8.list.SelCount() == 0) return;
  const auto folder = parts_.dialogs.pickFolder(u"Select folder where you want to move selected files.",
                                                parts_.settings.get(u"novidir"));
  if (!folder) return;
  ui::Failures failures(parts_.dialogs);
  rows::FileMover mover(parts_.files, failures, parts_.player);
  const Text target = parts_.files.realPath(*folder);
  const auto move = [&](const Text& path) {
    // What lies there already stays there, and in the list.
    const Text from(core::paths::withoutSeparator(core::paths::folderPart(path)));
    if (from == *folder || parts_.files.realPath(from) == target) return Outcome{false, true};
    const auto result = mover.move(path, core::paths::join(*folder, core::paths::fileName(path)));
    return Outcome{result == rows::MoveResult::Moved, result != rows::MoveResult::Abort};
  };
  failures.during({u"Move To", u"file was not moved", u"files were not moved"},
                  static_cast<std::size_t>(parts_.windows.form8.list.SelCount()),
                  [&] { walkSelected(u"Moving ...", move); });
}

void OtherFiles::walkSelected(const Text& caption, const std::function<Outcome(const Text& path)>& treat) {
  ui::Form8& form8 = parts_.windows.form8;
  const HeldWindow held(form8);
  parts_.closing.run([&] {
    parts_.progress.show(caption);
    const int count = form8.list.ListCount();
    std::vector<Text> left;
    bool goOn = true;
    for (int index = 0; index < count; ++index) {
      const Text& path = form8.list.List(index);
      Outcome outcome{false, true};
      if (goOn && !parts_.table.Stop && form8.list.Selected(index)) outcome = treat(path);
      if (!outcome.gone) left.push_back(path);
      goOn = goOn && outcome.goOn;
      parts_.progress.UpdateProgress(100.0 * (index + 1) / count);
    }
    keepRows(std::move(left));
  });
}

/// Makes the rows that are left, with those beyond the display limit, the list of other files.
void OtherFiles::keepRows(std::vector<Text> left) {
  ui::Form8& form8 = parts_.windows.form8;
  std::vector<Text>& all = parts_.table.niznomusic;
  const auto shown = static_cast<std::ptrdiff_t>(form8.list.ListCount());
  left.insert(left.end(), all.begin() + shown, all.end());
  all = std::move(left);
  parts_.data.writeList(u"niznomusic.txt", all);
  parts_.settings.setNumber(u"velicinasfiles", static_cast<std::int64_t>(parts_.table.velicinasfiles));
  form8.list.fill(shownOtherFiles(parts_.table));
  if (ui::viewOf(parts_.windows.form1) == ui::View::Other)
    listOtherFiles(parts_.table, parts_.files, parts_.progress, parts_.windows.form1);
}

OtherFiles::Outcome OtherFiles::sendToTrash(const Text& path) {
  if (parts_.player.holds(path)) parts_.player.close();
  try {
    parts_.trash.send(path);
    return {true, true};
  } catch (const platform::FileError& error) {
    if (error.number == platform::FileError::fileNotFound) return {true, true};
    parts_.dialogs.message(u"Error #" + core::plain(std::int64_t{error.number}) + u" while deleting { " +
                               path + u" } occurred: " + error.description,
                           u"Delete", Buttons::Ok, Icon::Critical);
    return {false, false};
  }
}

}  // namespace velmora::list
