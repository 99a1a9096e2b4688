#include "app/modal_wait.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_desktop.h"

namespace velmora::app {
namespace {

struct ModalWaitTest : testing::Test {
  core::TrackTable table;
  ui::Windows windows;
  test::ScriptedDesktop desktop;
  Work work{table};
  ModalWait modal{windows, desktop, work};
};

TEST_F(ModalWaitTest, OtherWindowsAreOutOfReachUntilItCloses) {
  windows.form8.setEnabled(false);
  desktop.then([&] {
    EXPECT_TRUE(windows.frmTip.visible());
    EXPECT_FALSE(windows.form1.enabled());
    EXPECT_FALSE(windows.form3.enabled());
    EXPECT_TRUE(windows.dialog1.enabled()) << "Stop must stay in reach";
  });
  desktop.then([&] { windows.frmTip.hide(); });
  modal.run(windows.frmTip);
  EXPECT_TRUE(windows.form1.enabled());
  EXPECT_TRUE(windows.form3.enabled());
  EXPECT_FALSE(windows.form8.enabled()) << "it was disabled before";
  EXPECT_FALSE(modal.open());
}

TEST_F(ModalWaitTest, CommandOfTheModalWindowDoesNotSetTheOthersFree) {
  desktop.then([&] {
    windows.form1.setEnabled(true);
    modal.holdOthers();
    EXPECT_FALSE(windows.form1.enabled());
  });
  desktop.then([&] { windows.form8.hide(); });
  modal.run(windows.form8);
  EXPECT_TRUE(windows.form1.enabled());
}

TEST_F(ModalWaitTest, WindowsOpenOverEachOther) {
  desktop.then([&] {
    desktop.then([&] { windows.frmAbout.hide(); });
    modal.run(windows.frmAbout);
    EXPECT_TRUE(windows.form5.enabled());
    EXPECT_FALSE(windows.form1.enabled());
    windows.form5.hide();
  });
  modal.run(windows.form5);
  EXPECT_TRUE(windows.form1.enabled());
}

TEST_F(ModalWaitTest, DismissingEndsEveryWaitAndOpensNoFurtherOne) {
  desktop.then([&] {
    desktop.then([&] { modal.dismissAll(); });
    modal.run(windows.frmAbout);
  });
  modal.run(windows.form5);
  EXPECT_FALSE(windows.form5.visible());
  EXPECT_TRUE(windows.form1.enabled());
  modal.run(windows.form6);
  EXPECT_FALSE(windows.form6.visible());
}

}  // namespace
}  // namespace velmora::app
