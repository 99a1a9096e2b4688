#include "system/mounts.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <utility>

#include "core/text.h"

namespace velmora::system {

namespace {

/// File systems without a device that hold files of the user's all the same.
constexpr std::array<BytesView, 9> withoutDevice = {"nfs", "nfs4",  "cifs",    "smb3",    "9p",
                                                    "zfs", "btrfs", "overlay", "virtiofs"};

/// File systems on another machine.
bool isRemote(BytesView type) {
  constexpr std::array<BytesView, 4> remote = {"nfs", "nfs4", "cifs", "smb3"};
  return std::ranges::find(remote, type) != remote.end();
}

bool holdsFiles(BytesView device, BytesView type) {
  if (type == "squashfs") return false;
  return device.starts_with("/dev/") || type.starts_with("fuse") ||
         std::ranges::find(withoutDevice, type) != withoutDevice.end();
}

int octalDigit(char character) {
  return character >= '0' && character <= '7' ? character - '0' : -1;
}

/// "\040" and its like back to the characters that they stand for.
Bytes unescaped(BytesView name) {
  constexpr std::size_t digits = 3;
  Bytes plain;
  for (std::size_t i = 0; i < name.size(); ++i) {
    int code = name[i] == '\\' && i + digits < name.size() ? 0 : -1;
    for (std::size_t digit = 1; digit <= digits && code >= 0; ++digit) {
      const int value = octalDigit(name[i + digit]);
      code = value < 0 ? -1 : code * 8 + value;
    }
    if (code < 0) {
      plain += name[i];
      continue;
    }
    plain += static_cast<char>(code);
    i += digits;
  }
  return plain;
}

}  // namespace

std::vector<Bytes> mountPointsIn(BytesView mounts, const std::function<bool(const Bytes& point)>& readable) {
  std::vector<Bytes> points;
  std::istringstream lines{Bytes(mounts)};
  Bytes line;
  while (std::getline(lines, line)) {
    std::istringstream fields(line);
    Bytes device, point, type;
    if (!(fields >> device >> point >> type) || !holdsFiles(device, type)) continue;
    point = unescaped(point);
    if (isRemote(type) || readable(point)) points.push_back(std::move(point));
  }
  std::ranges::sort(points);
  points.erase(std::unique(points.begin(), points.end()), points.end());
  return points;
}

std::vector<Text> mountPoints() {
  std::ifstream file("/proc/self/mounts");
  std::stringstream content;
  content << file.rdbuf();
  const auto readable = [](const Bytes& point) { return ::access(point.c_str(), R_OK | X_OK) == 0; };
  std::vector<Text> points;
  for (const Bytes& point : mountPointsIn(content.str(), readable)) points.push_back(core::fromBytes(point));
  return points;
}

}  // namespace velmora::system
