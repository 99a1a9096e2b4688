#include "qt/program.h"

int main(int argc, char** argv) {
  return velmora::qt::runProgram(argc, argv);
}
