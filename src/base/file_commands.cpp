#include "base/file_commands.h"

#include <utility>

#include "base/active_window.h"
#include "base/base_tree.h"
#include "base/busy.h"
#include "core/paths.h"
#include "core/text.h"
#include "journal/stek.h"
#include "platform/file_error.h"
#include "ui/list_scroll.h"

namespace velmora::base {

namespace paths = core::paths;
using platform::Answer;
using platform::Buttons;
using platform::Icon;

namespace {

constexpr int extensionLength = 4;  // dot included
constexpr TextView deleteTitle = u"Delete";

}  // namespace

bool FileCommands::confirmed(const Text& question, const Text& title) const {
  return parts_.dialogs.message(question, title, Buttons::OkCancel, Icon::Question) == Answer::Ok;
}

void FileCommands::ren() {
  ui::Form3& form3 = parts_.windows.form3;
  const int clicked = form3.List8.ListIndex();
  if (!form3.List8.Selected(clicked)) return;
  const Text typed = cleanName(form3.Text4.text());
  if (core::trim(typed).empty()) {
    parts_.dialogs.message(u"There's no new name.", u"Rename", Buttons::Ok, Icon::Exclamation);
    return;
  }
  if (!confirmed(u"Are you sure you want to RENAME selected file?", u"Rename")) return;
  const int file = form3.List8.ItemData(clicked);
  const Text path = parts_.lists.filePath(file);
  const Text newPath = Text(paths::folderPart(path)) + nameFor(file, typed);
  if (path.empty() || !rename(path, newPath)) return;
  {
    const ActiveWindow quiet(parts_.table, core::WindowAtWork::NewMusic);
    parts_.lists.listTitles();
  }
  for (int index = 0; index < form3.List8.ListCount(); ++index) {
    if (!form3.List8.List(index).ends_with(typed)) continue;
    parts_.lists.selectTitle(index);
    ui::ListShowRow(form3.List8, index);
    return;
  }
}

/// The new name with the extension. A box without the artist holds the title alone, so that what stood before
/// the title is put back.
Text FileCommands::nameFor(int file, const Text& typed) const {
  const Text& old = parts_.windows.form3.List4.List(file);
  Text name;
  if (!parts_.windows.form3.showAutor.checked())
    name = core::left(old, core::length(old) - extensionLength - core::length(parts_.lists.titleOf(file)));
  return name + typed + Text(core::right(old, extensionLength));
}

bool FileCommands::rename(const Text& path, const Text& newPath) {
  if (onMoving) onMoving(path);
  platform::FileHandOver handOver(parts_.player, path);
  try {
    parts_.files.move(path, newPath);
    handOver.renamed(newPath);
    return true;
  } catch (const platform::FileError& error) {
    parts_.dialogs.message(u"Canot rename. " + error.description, u"Rename", Buttons::Ok, Icon::Critical);
    return false;
  }
}

void FileCommands::del() {
  const ui::ListBox& titles = parts_.windows.form3.List8;
  if (titles.SelCount() == 0) return;
  std::vector<int> files;
  for (const int index : titles.selectedIndexes()) files.push_back(titles.ItemData(index));
  deleteFiles(files);
}

void FileCommands::delWithoutFolder() {
  const ui::ListBox& listed = parts_.windows.form3.List4;
  std::vector<int> files;
  for (int index = 0; index < listed.ListCount(); ++index)
    if (parts_.lists.isWithoutFolder(listed.ItemData(index))) files.push_back(index);
  if (!files.empty()) deleteFiles(files);
}

/// The files go in reverse order, as they come off the stack.
void FileCommands::deleteFiles(const std::vector<int>& files) {
  if (!confirmed(u"Are you sure you want to DELETE selected file(s)?", Text(deleteTitle))) return;
  const Busy busy(parts_.windows, parts_.progress, u"Delete ...");
  journal::Stek<Text> stack;
  for (const int file : files)
    if (Text path = parts_.lists.filePath(file); !path.empty()) stack.Push(std::move(path));
  std::vector<Text> paths;
  while (auto path = stack.Pop()) paths.push_back(*std::move(path));
  parts_.trash.Delete(paths);

  ui::ListBox& titles = parts_.windows.form3.List8;
  const int top = titles.TopIndex();
  const ActiveWindow deleting(parts_.table, core::WindowAtWork::DeletingFiles);
  parts_.lists.listTitles();
  ui::ListRestoreTop(titles, top);
}

}  // namespace velmora::base
