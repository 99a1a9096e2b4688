#include "tests/support/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

#include "core/paths.h"
#include "core/text.h"

namespace velmora::test {

namespace fs = std::filesystem;

namespace {

fs::path nativeOf(const Text& path) {
  return core::toBytes(path);
}

/// Tests take rights away; the folder must go all the same.
void giveRightsBack(const fs::path& folder) {
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
  for (const auto& entry : fs::directory_iterator(folder, ignored))
    if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) giveRightsBack(entry.path());
}

}  // namespace

TempFolder::TempFolder() : TempFolder(fs::temp_directory_path().native()) {}

TempFolder::TempFolder(BytesView parent) {
  std::string pattern = (fs::path(parent) / "velmora-test-XXXXXX").string();
  if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder can be made");
  path_ = core::fromBytes(pattern);
}

TempFolder::~TempFolder() {
  giveRightsBack(nativeOf(path_));
  std::error_code ignored;
  fs::remove_all(nativeOf(path_), ignored);
}

Text TempFolder::path(TextView name) const {
  return core::paths::join(path_, name);
}

Bytes TempFolder::native(TextView name) const {
  return core::toBytes(path(name));
}

Text TempFolder::write(TextView name, BytesView bytes) const {
  Text full = path(name);
  fs::create_directories(nativeOf(full).parent_path());
  std::ofstream out(nativeOf(full), std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out.flush()) throw std::runtime_error("a test's file cannot be written");
  return full;
}

Bytes TempFolder::read(TextView name) const {
  std::ifstream in(nativeOf(path(name)), std::ios::binary);
  if (!in) ADD_FAILURE() << "no file " << core::toBytes(name);
  return {std::istreambuf_iterator<char>(in), {}};
}

Text TempFolder::mkdir(TextView name) const {
  Text full = path(name);
  fs::create_directories(nativeOf(full));
  return full;
}

void TempFolder::removeAll(TextView name) const {
  fs::remove_all(nativeOf(path(name)));
}

bool TempFolder::exists(TextView name) const {
  return fs::symlink_status(nativeOf(path(name))).type() != fs::file_type::not_found;
}

}  // namespace velmora::test
