#include <gtest/gtest.h>
#include <stdlib.h>

#include <QDesktopServices>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include "qt/qt_desktop.h"
#include "qt/qt_dialogs.h"
#include "tests/qt/bench.h"
#include "tests/support/temp_folder.h"

namespace velmora::qt {

/// Takes what would be opened by another program.
class OpenedFiles : public QObject {
  Q_OBJECT

 public:
  OpenedFiles() {
    for (const char* scheme : {"file", "https"}) QDesktopServices::setUrlHandler(scheme, this, "open");
  }
  ~OpenedFiles() override {
    for (const char* scheme : {"file", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  }
  QList<QByteArray> urls;

 public Q_SLOTS:
  void open(const QUrl& url) { urls.append(url.toEncoded()); }
};

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

struct QtDialogsTest : testing::Test {
  // What the user does with the box that opens next.
  void then(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, &refresher, [act = std::move(act)] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      act(*box);
    });
  }
  Answer answerTo(Qt::Key key, Buttons buttons) {
    then([key](QDialog& box) { QTest::keyClick(&box, key); });
    return dialogs.message(u"text", u"title", buttons, Icon::Question);
  }

  Refresher refresher;
  QtDialogs dialogs{refresher};
};

TEST_F(QtDialogsTest, EscapeChangesNothingAndEnterGoesOn) {
  EXPECT_EQ(answerTo(Qt::Key_Escape, Buttons::Ok), Answer::Ok);
  EXPECT_EQ(answerTo(Qt::Key_Escape, Buttons::OkCancel), Answer::Cancel);
  EXPECT_EQ(answerTo(Qt::Key_Escape, Buttons::YesNo), Answer::No);
  EXPECT_EQ(answerTo(Qt::Key_Escape, Buttons::AbortRetryIgnore), Answer::Ignore);
  EXPECT_EQ(answerTo(Qt::Key_Return, Buttons::OkCancel), Answer::Ok);
  EXPECT_EQ(answerTo(Qt::Key_Return, Buttons::YesNo), Answer::Yes);
  EXPECT_EQ(answerTo(Qt::Key_Return, Buttons::AbortRetryIgnore), Answer::Retry);
}

TEST_F(QtDialogsTest, ShowsTextsAsTheyStand) {
  then([](QDialog& dialog) {
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.text(), "Error <b>\r\n/music/a & b");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Delete");
    box.button(QMessageBox::Abort)->click();
  });
  EXPECT_EQ(
      dialogs.message(u"Error <b>\r\n/music/a & b", u"Delete", Buttons::AbortRetryIgnore, Icon::Critical),
      Answer::Abort);
}

TEST_F(QtDialogsTest, TheEndOfTheSessionAnswersInPlaceOfTheUser) {
  then([this](QDialog&) { dialogs.dismiss(); });
  EXPECT_EQ(dialogs.message(u"", u"", Buttons::AbortRetryIgnore, Icon::None), Answer::Ignore);
  EXPECT_EQ(dialogs.message(u"", u"", Buttons::OkCancel, Icon::None), Answer::Cancel);
  EXPECT_FALSE(dialogs.input(u"", u"", u"a"));
  EXPECT_FALSE(dialogs.pickFolder(u"", u"/"));
}

TEST_F(QtDialogsTest, InputGivesTheTextOrNothing) {
  then([](QDialog& box) {
    auto* line = box.findChild<QLineEdit*>();
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text(), "old");
    line->setText("new");
    QTest::keyClick(line, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input(u"Prompt", u"Title", u"old"), Text(u"new"));
  then([](QDialog& box) { box.reject(); });
  EXPECT_FALSE(dialogs.input(u"Prompt", u"Title", u"old"));
}

struct QtDesktopTest : testing::Test {
  test::TempFolder folder;
  system::InstanceLock lock{folder.path()};
  QtDesktop desktop{lock};
};

TEST_F(QtDesktopTest, PumpsAtMostOncePerFrame) {
  desktop.pumpEvents();
  int handled = 0;
  QTimer::singleShot(0, [&] { ++handled; });
  for (int i = 0; i < 100; ++i) desktop.pumpEvents();
  EXPECT_EQ(handled, 0);
  QTest::qSleep(20);
  desktop.pumpEvents();
  EXPECT_EQ(handled, 1);
}

TEST_F(QtDesktopTest, SleepLastsAndLetsTimersBeat) {
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(5);
  const auto before = desktop.clockMilliseconds();
  desktop.sleep(60);
  EXPECT_GE(desktop.clockMilliseconds() - before, 60);
  EXPECT_GT(ticks, 3);
}

TEST_F(QtDesktopTest, WaitingEndsWhenSomethingHappens) {
  bool happened = false;
  QTimer::singleShot(10, [&] { happened = true; });
  while (!happened) desktop.waitForEvents();
  EXPECT_TRUE(happened);
}

TEST_F(QtDesktopTest, OpensFilesByTheirBytesAndPagesByTheirAddress) {
  OpenedFiles opened;
  desktop.openWithDefaultProgram(Text(u"/m/ž #1%20") + char16_t(0xDCFF) + u".txt");
  desktop.openWithDefaultProgram(u"https://example.org/a?b=c");
  EXPECT_EQ(opened.urls.value(0), "file:///m/%C5%BE%20%231%2520%FF.txt");
  EXPECT_EQ(opened.urls.value(1), "https://example.org/a?b=c");
}

TEST_F(QtDesktopTest, NoticesAnotherInstanceOnTheSameFolder) {
  EXPECT_FALSE(desktop.anotherInstanceRunning());
  const system::InstanceLock second(folder.path());
  EXPECT_TRUE(QtDesktop(second).anotherInstanceRunning());
}

}  // namespace
}  // namespace velmora::qt

#include "qt_services_test.moc"
