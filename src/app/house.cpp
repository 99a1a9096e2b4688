#include "app/house.h"

#include <utility>

#include "core/paths.h"

namespace velmora::app {

namespace {

/// A file that comes with the program: the user's own in the program folder, else the shipped one.
Text shippedFile(platform::Files& files, const Folders& folders, TextView name) {
  const Text own = core::paths::join(folders.program, name);
  const Text shipped = core::paths::join(folders.shipped, name);
  return !files.fileExists(own) && files.fileExists(shipped) ? shipped : own;
}

}  // namespace

House::House(const Services& given, Folders where)
    : services(given),
      folders(std::move(where)),
      settings(services.files, core::paths::join(folders.program, u"Settings.ini")),
      data(services.files, settings, folders.program),
      options(settings, windows),
      tips(settings, services.files, services.desktop, windows.frmTip),
      progress(table, windows, services.desktop),
      work(table),
      modal(windows, services.desktop, work),
      tagCache(table, services.files),
      panel(table, services.files, tagCache, windows.form1),
      player({.table = table,
              .media = services.media,
              .desktop = services.desktop,
              .panel = panel,
              .form1 = windows.form1,
              .privateWav = shippedFile(services.files, folders, u"private.wav")}),
      busyFile(services.files, services.desktop, windows.form1.statusLabel),
      tagWriter({.table = table,
                 .files = services.files,
                 .dialogs = services.dialogs,
                 .desktop = services.desktop,
                 .player = player,
                 .busyFile = busyFile,
                 .panel = panel,
                 .form1 = windows.form1}),
      journal(services.files, settings, core::paths::join(folders.program, u"UndoData.txt")),
      artists(table, data, windows.form1),
      dashes(table, artists, tagCache),
      closing(table, windows, progress, services.desktop),
      listMaker({.table = table,
                 .settings = settings,
                 .data = data,
                 .files = services.files,
                 .dialogs = services.dialogs,
                 .desktop = services.desktop,
                 .windows = windows,
                 .progress = progress,
                 .closing = closing,
                 .journal = journal,
                 .artists = artists,
                 .dashes = dashes,
                 .panel = panel}),
      listViews({.table = table,
                 .data = data,
                 .files = services.files,
                 .dialogs = services.dialogs,
                 .windows = windows,
                 .progress = progress,
                 .closing = closing,
                 .panel = panel}),
      otherFiles({.table = table,
                  .settings = settings,
                  .data = data,
                  .files = services.files,
                  .trash = services.trash,
                  .dialogs = services.dialogs,
                  .player = player,
                  .windows = windows,
                  .progress = progress,
                  .closing = closing}),
      completion(table, windows.form1),
      repair({.services = services,
              .windows = windows,
              .table = table,
              .settings = settings,
              .data = data,
              .progress = progress,
              .closing = closing,
              .player = player,
              .panel = panel,
              .busyFile = busyFile,
              .tagWriter = tagWriter,
              .journal = journal,
              .artists = artists}),
      loader(table, settings, data, windows.form1),
      processing(table, settings, services.files, windows.form1),
      base(table, settings, services.dialogs, windows.form3, events),
      front({.table = table,
             .settings = settings,
             .dialogs = services.dialogs,
             .windows = windows,
             .closing = closing,
             .base = base,
             .events = events}) {}

}  // namespace velmora::app
