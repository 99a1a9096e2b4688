// velmora_corpus [--files N] [--base N] [--seed S] <folder> [<base folder>]
// Makes a collection of N new songs, and a base of N songs in a second folder.

#include <cstdint>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "bench/corpus.h"

int main(int count, char** arguments) {
  int files = 1000;
  int base = 0;
  std::uint64_t seed = 1;
  std::vector<std::string> folders;
  try {
    for (int i = 1; i < count; ++i) {
      const std::string_view argument = arguments[i];
      if (argument == "--files" && i + 1 < count)
        files = std::stoi(arguments[++i]);
      else if (argument == "--base" && i + 1 < count)
        base = std::stoi(arguments[++i]);
      else if (argument == "--seed" && i + 1 < count)
        seed = std::stoull(arguments[++i]);
      else
        folders.emplace_back(argument);
    }
    const bool unknownOption = !folders.empty() && folders.front().starts_with('-');
    if (folders.empty() || unknownOption || folders.size() > 2 || (base > 0) != (folders.size() == 2)) {
      std::fputs("usage: velmora_corpus [--files N] [--base N] [--seed S] <folder> [<base folder>]\n",
                 stderr);
      return 2;
    }
    const auto made = velmora::bench::makeNewMusic(folders[0], files, seed);
    std::printf("%s: %d songs, %d other files\n", folders[0].c_str(), made.songs, made.others);
    if (base > 0) {
      const auto laid = velmora::bench::makeBase(folders[1], base, seed);
      std::printf("%s: %d songs\n", folders[1].c_str(), laid.songs);
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmora_corpus: %s\n", failure.what());
    return 1;
  }
  return 0;
}
