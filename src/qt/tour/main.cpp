// Drives the real program through what a user meets, and leaves numbered pictures:
//   velmora_tour <folder for the pictures> <folder with sample music>
//
// The sample folder holds "New music" and "Music Base"; songs in it may be changed. The program folder is
// $VELMORA_HOME, by default one that is thrown away.

#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "qt/program.h"
#include "qt/tour/looks.h"
#include "qt/tour/scenes.h"
#include "qt/tour/stage.h"

namespace {

using namespace velmora::qt;

bool play(Stage& stage, Program& program) {
  stage.play([&program] { program.velmora().requestEnd(); });
  return program.run() == 0 && stage.succeeded();
}

// A child of the tour: the program as it was left, in another look.
int showLook(const QStringList& arguments) {
  Stage stage(arguments[2], arguments[3].toInt());
  Program program;
  addLook(stage, program.velmora().windows(), arguments[4]);
  return play(stage, program) ? 0 : 1;
}

int showAll(const QString& pictures, const QString& music) {
  QTemporaryDir home;
  if (!qEnvironmentVariableIsSet("VELMORA_HOME")) qputenv("VELMORA_HOME", QFile::encodeName(home.path()));
  const Crowd crowd(music);

  int number = 1;
  bool succeeded = true;
  const auto run = [&](auto addScenes) {
    Stage stage(pictures, number);
    {
      Program program;
      addScenes(stage, program.velmora().windows());
      succeeded = play(stage, program) && succeeded;
    }
    number = stage.nextNumber();
  };
  run([&](Stage& stage, auto& windows) { addFirstVisit(stage, windows, music, crowd.folder()); });
  run([&](Stage& stage, auto& windows) { addReturn(stage, windows); });
  succeeded = showOtherLooks(pictures, number) && succeeded;
  return succeeded ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Program::prepare(application);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() == 5 && arguments[1] == "--look") return showLook(arguments);
  if (arguments.size() != 3) {
    std::fprintf(stderr, "usage: velmora_tour <folder for the pictures> <folder with sample music>\n");
    return 2;
  }
  QDir().mkpath(arguments[1]);
  return showAll(arguments[1], QDir(arguments[2]).absolutePath());
}
