#include "bench/child.h"

#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora::bench {
namespace {

/// The system's own count for this program image alone: what the parent held before the start is not in it.
long peakKiB() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stol(line.substr(6));
  }
  return 0;
}

std::string readToEnd(int pipe) {
  std::string text;
  std::array<char, 256> block{};
  for (ssize_t got = 0; (got = read(pipe, block.data(), block.size())) > 0;) {
    text.append(block.data(), static_cast<std::size_t>(got));
  }
  return text;
}

}  // namespace

Outcome runInChild(const Job& job, const Scene& scene) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  std::array<std::string, 6> texts = {"velmora_bench", "--child",  job.name,
                                      scene.music,     scene.base, scene.state};
  std::array<char*, 7> arguments{};
  for (std::size_t i = 0; i < texts.size(); ++i) arguments[i] = texts[i].data();

  posix_spawn_file_actions_t actions{};
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  posix_spawn_file_actions_addclose(&actions, ends[1]);
  pid_t child = 0;
  const int failed = posix_spawn(&child, "/proc/self/exe", &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (failed != 0) throw std::runtime_error("cannot start a process");

  const std::string answer = readToEnd(ends[0]);
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  Outcome outcome;
  Measured& measured = outcome.measured;
  if (status != 0 ||
      std::sscanf(answer.c_str(), "%lf %lf %d %d %ld", &measured.seconds, &measured.processorSeconds,
                  &measured.files, &measured.tableRows, &outcome.peakKiB) != 5) {
    throw std::runtime_error(std::string("the job ") + job.name + " failed");
  }
  return outcome;
}

int childMain(int count, char** arguments) {
  const Job* job = count == 4 ? findJob(arguments[0]) : nullptr;
  if (job == nullptr) return 2;
  try {
    const Measured measured = job->run({arguments[1], arguments[2], arguments[3]});
    std::printf("%.9f %.9f %d %d %ld\n", measured.seconds, measured.processorSeconds, measured.files,
                measured.tableRows, peakKiB());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s: %s\n", job->name, failure.what());
    return 1;
  }
  return 0;
}

}  // namespace velmora::bench
