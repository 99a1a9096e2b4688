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
  settings.set(u"ton", value);
  require(settings.get(u"ton") == value.substr(0, value.find(u'"')), "a value comes back up to a quote");
  // The first set has brought every line into the form of ours; from then on a set touches its key alone.
  const Text ghb = settings.get(u"ghb");
  const Text folderOfBase = settings.get(u"DirZaBazu");
  settings.setNumber(u"vrsta", 12);
  require(settings.get(u"vrsta") == u" 12", "a number comes back");
  require(settings.get(u"ghb") == ghb, "a set leaves other keys alone");
  require(settings.get(u"DirZaBazu") == folderOfBase, "a set leaves other keys alone");
}
