#include <array>
#include <cctype>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "bench/corpus.h"
#include "bench/new_music_jobs.h"
#include "bench/repair_jobs.h"

namespace velmora::bench {
namespace {

// What an average tag and an average journal line of these jobs take.
constexpr std::size_t id3v2Bytes = 128;
constexpr std::size_t id3v1Bytes = 128;
constexpr std::size_t renameLineBytes = 180;
constexpr std::size_t tagLineBytes = 240;
constexpr std::size_t infoBytes = 150;
constexpr std::size_t removalLineBytes = 260;
constexpr std::size_t moveLineBytes = 210;

/// As many files of the collection as the list can show, and so a command can be given.
std::vector<std::string> filesOf(const std::string& folder) {
  constexpr std::size_t mostShown = 32736;
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file() && paths.size() < mostShown) paths.push_back(entry.path().native());
  }
  return paths;
}

void appendLine(const std::string& journal, std::size_t bytes) {
  static constexpr std::array<char, 512> line{};
  const int file = open(journal.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  [[maybe_unused]] const ssize_t written = write(file, line.data(), bytes);
  close(file);
}

/// Reads both tags of a file and writes those that it has with the same bytes. Returns whether it has any.
bool rewriteTags(const std::string& path) {
  const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
  if (file < 0) return false;
  struct stat status {};
  fstat(file, &status);
  std::array<char, 4096> start{};
  std::array<char, id3v1Bytes> end{};
  const off_t tail = status.st_size - static_cast<off_t>(end.size());
  bool found = false;
  if (pread(file, start.data(), start.size(), 0) > 0 && std::memcmp(start.data(), "ID3", 3) == 0) {
    found = pwrite(file, start.data(), id3v2Bytes, 0) > 0;
  }
  if (tail > 0 && pread(file, end.data(), end.size(), tail) > 0 && std::memcmp(end.data(), "TAG", 3) == 0) {
    found = pwrite(file, end.data(), end.size(), tail) > 0 || found;
  }
  close(file);
  return found;
}

/// Files that a yardstick has made are deleted with the used copy of the music, at the end of all rounds.
void leaveWithMusic(const Scene& scene, const std::string& folder) {
  std::filesystem::rename(folder, scene.music + "/made by a yardstick");
}

}  // namespace

Measured floorOfFix(const Scene& scene) {
  std::filesystem::create_directories(scene.state);
  const std::string journal = scene.state + "/floor.txt";
  const std::vector<std::string> paths = filesOf(scene.music);
  const StopWatch watch;
  for (const std::string& path : paths) {
    std::string renamed = path;
    char& first = renamed[renamed.rfind('/') + 1];
    first = static_cast<char>(std::toupper(static_cast<unsigned char>(first)));
    if (renamed == path) renamed += "_";
    renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, renamed.c_str(), RENAME_NOREPLACE);
    appendLine(journal, renameLineBytes);
    if (rewriteTags(renamed)) appendLine(journal, tagLineBytes);
  }
  const Measured result = measured(watch, static_cast<int>(paths.size()), 0);
  std::filesystem::remove(journal);
  return result;
}

Measured floorOfTags(const Scene& scene) {
  const std::vector<std::string> paths = filesOf(scene.music);
  const StopWatch watch;
  for (const std::string& path : paths) rewriteTags(path);
  return measured(watch, static_cast<int>(paths.size()), 0);
}

Measured floorOfDelete(const Scene& scene) {
  const std::string trash = scene.state + "/floor trash";
  std::filesystem::remove_all(trash);
  std::filesystem::create_directories(trash + "/files");
  std::filesystem::create_directories(trash + "/info");
  const std::vector<std::string> paths = filesOf(scene.music);
  static constexpr std::array<char, infoBytes> info{};
  const StopWatch watch;
  int number = 0;
  for (const std::string& path : paths) {
    const std::string name = std::to_string(++number) + path.substr(path.rfind('/') + 1);
    const int file =
        open((trash + "/info/" + name + ".trashinfo").c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    [[maybe_unused]] const ssize_t written = write(file, info.data(), info.size());
    close(file);
    rename(path.c_str(), (trash + "/files/" + name).c_str());
  }
  const Measured result = measured(watch, number, 0);
  leaveWithMusic(scene, trash);
  return result;
}

Measured floorOfMove(const Scene& scene) {
  const std::string base = scene.state + "/floor base";
  std::filesystem::remove_all(base);
  std::filesystem::create_directories(base);
  const std::string journal = scene.state + "/floor.txt";
  std::vector<std::pair<std::string, std::string>> moves;
  for (const auto& folder : std::filesystem::directory_iterator(scene.music)) {
    const std::string name = folder.path().filename().native();
    if (name == untagged) continue;
    std::filesystem::create_directory(base + "/" + name);
    for (const auto& file : std::filesystem::directory_iterator(folder))
      moves.emplace_back(file.path().native(), base + "/" + name + "/" + file.path().filename().native());
  }
  const StopWatch watch;
  for (const auto& [from, to] : moves) {
    appendLine(journal, removalLineBytes);
    renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    appendLine(journal, moveLineBytes);
  }
  const Measured result = measured(watch, static_cast<int>(moves.size()), 0);
  leaveWithMusic(scene, base);
  std::filesystem::remove(journal);
  return result;
}

}  // namespace velmora::bench
