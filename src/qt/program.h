#pragma once

#include <memory>

#include "app/velmora.h"

class QApplication;

namespace velmora::qt {

/// The whole program on this machine: the real services, what runs on them, and its views. One at a time;
/// needs a QApplication that `prepare` was called for.
class Program {
 public:
  Program();
  ~Program();

  /// Name, icon and theme of the application.
  static void prepare(QApplication& application);

  /// Starts, handles events until the program has ended, and returns the exit code.
  int run();
  app::Velmora& velmora();

 private:
  struct Machine;
  std::unique_ptr<Machine> machine_;
};

/// Runs the program until its end and returns the exit code.
int runProgram(int argc, char** argv);

}  // namespace velmora::qt
