#include "qt/tour/looks.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace velmora::qt {

namespace {

constexpr int picturesPerLook = 3;

struct Look {
  QString name;
  QString theme;
  QString scale;
  int width, height;  // of the screen in pixels
  int fontDotsPerInch;
};

}  // namespace

bool showOtherLooks(const QString& pictures, int firstNumber) {
  QTemporaryDir folder;
  bool succeeded = true;
  for (const Look& look :
       {Look{"dark", "dark", "1", 1280, 800, 96}, Look{"small-screen", "light", "1", 1280, 800, 96},
        Look{"large-screen", "light", "1", 1920, 1080, 96}, Look{"scale-2", "light", "2", 2560, 1600, 96},
        Look{"large-type", "dark", "1", 1600, 1000, 136}}) {
    const QString screen = folder.filePath(look.name + ".json");
    QFile file(screen);
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.write(QStringLiteral(R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": %1, "height": %2,)"
                              R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(look.width)
                   .arg(look.height)
                   .toUtf8());
    file.close();

    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VELMORA_THEME", look.theme);
    environment.insert("QT_SCALE_FACTOR", look.scale);
    environment.insert("QT_FONT_DPI", QString::number(look.fontDotsPerInch));
    environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + screen);
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(),
                {"--look", pictures, QString::number(firstNumber), look.name});
    constexpr int patience = 120000;  // milliseconds
    succeeded = child.waitForFinished(patience) && child.exitCode() == 0 && succeeded;
    firstNumber += picturesPerLook;
  }
  return succeeded;
}

void addLook(Stage& stage, ui::Windows& windows, const QString& look) {
  const auto idle = [&windows] { return windows.form1.visible() && windows.form1.enabled(); };
  // The start is over when the selection is back.
  stage.when([&windows] { return windows.form1.List4.SelCount() > 0; }, [] { Stage::clickRow("Files", 1); });
  stage.picture(look, idle);
  stage.then([] { Stage::choose("Fix Options"); });
  stage.picture(look + "-dialog", [] { return Stage::sees("FIX OPTIONS"); });
  stage.then([] { Stage::press("Cancel"); });
  stage.when(idle, [] { Stage::press("Assort Files Per Folders"); });
  stage.when([&windows] { return windows.form2.visible() && windows.form3.enabled(); },
             [] { Stage::clickRow("New genres", 0); });
  stage.click("Base genres", "Rock");
  stage.picture(look + "-base", [&windows] { return windows.form3.enabled(); });
  stage.then([] { Stage::choose("Show Processing Window"); });
}

}  // namespace velmora::qt
