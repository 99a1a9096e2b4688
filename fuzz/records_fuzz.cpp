#include "core/records.h"
#include "core/text.h"
#include "fuzz/target.h"

namespace records = velmora::core::records;
using velmora::Bytes;
using velmora::core::Element;
using velmora::fuzz::require;

namespace {

Bytes written(const std::vector<Element>& elements) {
  Bytes out;
  for (const Element& element : elements) records::write(out, element);
  return out;
}

}  // namespace

VELMORA_FUZZ_TARGET(records) {
  require(velmora::core::toBytes(velmora::core::fromBytes(bytes)) == bytes, "bytes survive as a text");

  const auto read = records::readAll(bytes);
  require(records::readTexts(bytes).size() == read.size(), "both readers see the same records");
  // A text with a quote inside is cut when it is first saved; from then on nothing changes, and no record
  // comes or goes at any time.
  const auto saved = records::readAll(written(read));
  require(saved.size() == read.size(), "a save keeps the count of records");
  require(records::readAll(written(saved)) == saved, "what was saved once stays as it is");
}
