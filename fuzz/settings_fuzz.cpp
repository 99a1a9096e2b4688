#include "core/paths.h"
#include "core/settings.h"
#include "core/text.h"
#include "fuzz/target.h"
#include "system/posix_files.h"
#include "tests/support/temp_folder.h"

using velmora::Text;
using velmora::TextView;
using velmora::fuzz::require;

// The input is the content of Settings.ini; its first line serves as a value that is stored as well.
VELMORA_FUZZ_TARGET(settings) {
  static const velmora::test::TempFolder folder;
  static velmora::system::PosixFiles files;
  const Text path = folder.path(u"Settings.ini");
  files.writeAll(path, bytes);
  velmora::core::Settings settings(files, path);

  const Text value = velmora::core::fromBytes(bytes.substr(0, bytes.find_first_of("\r\n")));
  const Text ghb = settings.get(u"ghb");
  const Text folderOfBase = settings.get(u"DirZaBazu");
  settings.set(u"ton", value);
  require(settings.get(u"ton") == value.substr(0, value.find(u'"')), "a value comes back up to a quote");
  require(settings.get(u"ghb") == ghb.substr(0, ghb.find(u'"')), "a set leaves other keys alone");
  settings.setNumber(u"ghb", 12);
  require(settings.get(u"ghb") == u" 12", "a number comes back");
  require(settings.get(u"DirZaBazu") == folderOfBase.substr(0, folderOfBase.find(u'"')),
          "a set leaves other keys alone");
}
