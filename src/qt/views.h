#pragma once

#include <memory>
#include <vector>

#include "qt/bind_window.h"
#include "ui/windows.h"

class QWidget;

namespace velmora::qt {

/// The views of all windows. Made after the program has wired its commands; must go before the models do.
class Views {
 public:
  Views(ui::Windows& windows, const ViewContext& context);
  ~Views();

 private:
  std::vector<std::unique_ptr<QWidget>> windows_;
};

}  // namespace velmora::qt
