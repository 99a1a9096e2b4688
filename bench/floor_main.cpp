// velmora_floor <folder>
// Prints what reading the ends of all files of a tree takes, to compare another program with.

#include <cstdio>

#include "bench/floor.h"
#include "bench/stop_watch.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: velmora_floor <folder>\n", stderr);
    return 2;
  }
  const velmora::bench::StopWatch watch;
  const auto totals = velmora::bench::readFloor(arguments[1]);
  std::printf("%.3f s, %d files, %lld bytes\n", watch.seconds(), totals.files, totals.bytes);
  return 0;
}
