#include "qt/program.h"

#include <QApplication>

#include "core/text.h"
#include "qt/end_signals.h"
#include "qt/icons.h"
#include "qt/qt_desktop.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_media_player.h"
#include "qt/theme.h"
#include "qt/views.h"
#include "system/desktop_trash.h"
#include "system/posix_files.h"
#include "system/program_folder.h"
#include "system/traced_disk.h"

namespace velmora::qt {

namespace {

/// For whoever starts it from a terminal: the program itself starts and saves without a word.
void warnIfNothingIsKept(const Text& folder) {
  if (system::canKeepFiles(folder)) return;
  qWarning("Nothing can be written into %s: the list, the options and what Undo needs will not be kept.",
           core::toBytes(folder).c_str());
}

}  // namespace

/// In the order in which they need each other; they go in the opposite order, views first.
struct Program::Machine {
  app::Folders folders{system::programFolder(), system::shippedFolder()};
  system::InstanceLock lock{folders.program};
  system::PosixFiles disk;
  system::TracedDisk traced{disk, qEnvironmentVariable("VELMORA_TRACE").toLocal8Bit().toStdString()};
  system::DesktopTrash trash{traced.files(), system::DesktopTrash::defaultHomeTrash()};
  Refresher refresher;
  InputGate gate{refresher};
  QtDialogs dialogs{refresher};
  QtDesktop desktop{lock};
  QtMediaPlayer media;
  app::Velmora velmora{{traced.files(), trash, dialogs, desktop, media}, folders};
  Views views{velmora.windows(), {refresher, gate}};
  EndSignals endSignals{[this] {
    dialogs.dismiss();
    velmora.requestEnd();
  }};
};

Program::Program() : machine_(std::make_unique<Machine>()) {}

Program::~Program() = default;

void Program::prepare(QApplication& application) {
  QApplication::setApplicationName("velmora");
  QApplication::setApplicationVersion(VELMORA_VERSION);
  QApplication::setDesktopFileName("velmora");
  QApplication::setQuitOnLastWindowClosed(false);  // the program knows its end itself
  applyTheme(application);
  QApplication::setWindowIcon(programIcon());
}

int Program::run() {
  warnIfNothingIsKept(machine_->folders.program);
  // Not quit(), which would ask the windows first.
  machine_->velmora.onEnd = [] { QCoreApplication::exit(0); };
  QMetaObject::invokeMethod(
      qApp, [this] { machine_->velmora.start(); }, Qt::QueuedConnection);
  return QApplication::exec();
}

app::Velmora& Program::velmora() {
  return machine_->velmora;
}

int runProgram(int argc, char** argv) {
  QApplication application(argc, argv);
  Program::prepare(application);
  return Program().run();
}

}  // namespace velmora::qt
