#include "tags/id3v2_names.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora::tags {

namespace {

using Pair = std::pair<BytesView, BytesView>;

// In the order of the first, those that players added of their own among them.
// clang-format off
constexpr std::array<Pair, 78> names = {{
    {"BUF", "RBUF"},
    {"CNT", "PCNT"}, {"COM", "COMM"}, {"CRA", "AENC"},
    {"EQU", "EQUA"}, {"ETC", "ETCO"},
    {"GEO", "GEOB"},
    {"GP1", "GRP1"},
    {"IPL", "IPLS"},
    {"LNK", "LINK"},
    {"MCI", "MCDI"}, {"MLL", "MLLT"},
    {"MVI", "MVIN"}, {"MVN", "MVNM"},
    {"PCS", "PCST"}, {"PIC", "APIC"}, {"POP", "POPM"},
    {"REV", "RVRB"}, {"RVA", "RVAD"},
    {"SLT", "SYLT"}, {"STC", "SYTC"},
    {"TAL", "TALB"}, {"TBP", "TBPM"}, {"TCM", "TCOM"}, {"TCO", "TCON"}, {"TCP", "TCMP"}, {"TCR", "TCOP"},
    {"TCT", "TCAT"}, {"TDA", "TDAT"}, {"TDR", "TDRL"}, {"TDS", "TDES"}, {"TDY", "TDLY"}, {"TEN", "TENC"},
    {"TFT", "TFLT"}, {"TID", "TGID"}, {"TIM", "TIME"}, {"TKE", "TKEY"}, {"TKW", "TKWD"}, {"TLA", "TLAN"},
    {"TLE", "TLEN"}, {"TMT", "TMED"}, {"TOA", "TOPE"}, {"TOF", "TOFN"}, {"TOL", "TOLY"}, {"TOR", "TORY"},
    {"TOT", "TOAL"}, {"TP1", "TPE1"}, {"TP2", "TPE2"}, {"TP3", "TPE3"}, {"TP4", "TPE4"}, {"TPA", "TPOS"},
    {"TPB", "TPUB"}, {"TRC", "TSRC"}, {"TRD", "TRDA"}, {"TRK", "TRCK"}, {"TS2", "TSO2"}, {"TSA", "TSOA"},
    {"TSC", "TSOC"}, {"TSI", "TSIZ"}, {"TSP", "TSOP"}, {"TSS", "TSSE"}, {"TST", "TSOT"}, {"TT1", "TIT1"},
    {"TT2", "TIT2"}, {"TT3", "TIT3"}, {"TXT", "TEXT"}, {"TXX", "TXXX"}, {"TYE", "TYER"},
    {"UFI", "UFID"}, {"ULT", "USLT"},
    {"WAF", "WOAF"}, {"WAR", "WOAR"}, {"WAS", "WOAS"}, {"WCM", "WCOM"}, {"WCP", "WCOP"}, {"WFD", "WFED"},
    {"WPB", "WPUB"}, {"WXX", "WXXX"},
}};
// clang-format on

Bytes mediaType(BytesView format) {
  if (format == "-->") return Bytes(format);
  if (format == "JPG") return "image/jpeg";
  Bytes type = "image/";
  for (const char c : format) type += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return type;
}

}  // namespace

Bytes MapFrameID(BytesView name) {
  const auto found = std::ranges::lower_bound(names, name, {}, &Pair::first);
  return found != names.end() && found->first == name ? Bytes(found->second) : "X" + Bytes(name);
}

Bytes mapFrameBody(BytesView name, BytesView body) {
  constexpr std::size_t formatBytes = 3;
  if (name != "PIC" || body.size() <= formatBytes) return Bytes(body);
  return Bytes(body.substr(0, 1)) + mediaType(body.substr(1, formatBytes)) + '\0' +
         Bytes(body.substr(1 + formatBytes));
}

}  // namespace velmora::tags
