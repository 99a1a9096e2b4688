#pragma once

#include <array>

#include "ui/dialog1.h"
#include "ui/dialog2.h"
#include "ui/form1.h"
#include "ui/form2.h"
#include "ui/form3.h"
#include "ui/form5.h"
#include "ui/form6.h"
#include "ui/form7.h"
#include "ui/form8.h"
#include "ui/frm_tip.h"

namespace velmora::ui {

/// Every window of the program, made once. Options that commands read live in their windows.
struct Windows {
  Form1 form1;
  Form2 form2;
  Form3 form3;
  Form5 form5;
  Form6 form6;
  Form7 form7;
  Form8 form8;
  Dialog1 dialog1;
  Dialog2 dialog2;
  FrmTip frmTip;
  FrmAbout frmAbout;

  /// All of them, for what concerns every window alike.
  std::array<Window*, 11> all() {
    return {&form1, &form2, &form3, &form5, &form6, &form7, &form8, &dialog1, &dialog2, &frmTip, &frmAbout};
  }
};

}  // namespace velmora::ui
