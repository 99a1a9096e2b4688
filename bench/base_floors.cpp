#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "bench/base_jobs.h"

namespace velmora::bench {
namespace {

namespace fs = std::filesystem;

/// Folders in a folder, in the order in which the program shows genres and artists.
std::vector<std::string> foldersIn(const std::string& folder) {
  std::vector<std::string> found;
  for (const auto& entry : fs::directory_iterator(folder)) found.push_back(entry.path().native());
  const auto lower = [](std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
  };
  std::ranges::sort(found, {}, lower);
  return found;
}

/// Lists a folder by system calls alone; returns the entries.
int listOnly(const std::string& folder) {
  DIR* listing = opendir(folder.c_str());
  if (listing == nullptr) throw std::runtime_error("cannot list " + folder);
  int entries = 0;
  while (readdir(listing) != nullptr) ++entries;
  closedir(listing);
  return entries;
}

Measured timeListing(const std::vector<std::string>& folders, int clicks) {
  const StopWatch watch;
  for (const std::string& folder : folders) listOnly(folder);
  return measured(watch, clicks, 0);
}

void append(std::vector<std::string>& list, const std::vector<std::string>& more) {
  list.insert(list.end(), more.begin(), more.end());
}

void find(const std::string& folder, std::FILE* out) {
  DIR* listing = opendir(folder.c_str());
  if (listing == nullptr) return;
  std::vector<std::string> folders;
  while (const dirent* entry = readdir(listing)) {
    const char* name = entry->d_name;
    if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
    if (entry->d_type == DT_DIR)
      folders.push_back(folder + "/" + name);
    else if (entry->d_type == DT_REG)
      std::fprintf(out, "%s/%s\n", folder.c_str(), name);
  }
  closedir(listing);
  for (const std::string& inner : folders) find(inner, out);
}

}  // namespace

Measured floorOfGenreList(const Scene& scene) {
  return timeListing(std::vector<std::string>(genreListings, scene.base), genreListings);
}

Measured floorOfGenres(const Scene& scene) {
  std::vector<std::string> folders;
  const std::vector<std::string> genres = foldersIn(scene.base);
  for (const std::string& genre : genres) {
    const std::string first = foldersIn(genre).front();
    folders.push_back(genre);
    folders.push_back(first);
    append(folders, foldersIn(first));
  }
  return timeListing(folders, static_cast<int>(genres.size()));
}

Measured floorOfArtists(const Scene& scene) {
  std::vector<std::string> folders;
  int clicks = 0;
  for (const std::string& genre : foldersIn(scene.base)) {
    for (const std::string& artist : foldersIn(genre)) {
      folders.push_back(artist);
      append(folders, foldersIn(artist));
      ++clicks;
    }
  }
  return timeListing(folders, clicks);
}

Measured floorOfAlbums(const Scene& scene) {
  std::vector<std::string> folders;
  for (const std::string& genre : foldersIn(scene.base))
    for (const std::string& artist : foldersIn(genre)) append(folders, foldersIn(artist));
  return timeListing(folders, static_cast<int>(folders.size()));
}

Measured floorOfYears(const Scene& scene) {
  std::vector<std::string> folders = {scene.base};
  for (const std::string& genre : foldersIn(scene.base)) {
    folders.push_back(genre);
    append(folders, foldersIn(genre));
  }
  return timeListing(folders, static_cast<int>(folders.size()));
}

Measured floorOfRefresh(const Scene& scene) {
  fs::create_directories(scene.state);
  const std::string path = scene.state + "/found.txt";
  const StopWatch watch;
  std::FILE* out = std::fopen(path.c_str(), "w");
  if (out == nullptr) throw std::runtime_error("cannot write " + path);
  find(scene.base, out);
  std::fclose(out);
  Measured result = measured(watch, 0, 0);
  std::FILE* lines = std::fopen(path.c_str(), "r");
  for (int c = 0; (c = std::getc(lines)) != EOF;) result.files += c == '\n' ? 1 : 0;
  std::fclose(lines);
  return result;
}

}  // namespace velmora::bench
