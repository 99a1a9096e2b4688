#include "names/filter.h"

#include <utility>

#include "core/text.h"

namespace velmora::names {

namespace {

/// Rules that feed each other would run for ever; the tenth pass is given up.
constexpr int passLimit = 10;

bool startsWord(char16_t character) {
  return TextView(u" (.-,&").find(character) != TextView::npos;
}

/// One walk over a trimmed text. The rules run in the order in which they stand here, each seeing what the
/// ones before made of the character.
class CharacterPass {
 public:
  CharacterPass(Capitals capitals, const FilterRules& rules) : capitals_(capitals), rules_(rules) {}

  Text run(TextView text) {
    result_.reserve(text.size() + 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
      ch_.assign(1, text[i]);
      dropAtEnds(i == 0, i + 1 == text.size());
      if (ch_ == u"_" || ch_.empty()) ch_ = u" ";
      if (capitals_ != Capitals::Keep && startsWord(prev_)) ch_ = core::upper(ch_);
      if (ch_ == u" " && prev_ == u' ') ch_.clear();
      if (ch_ == u"-" && prev_ == u'-') ch_.clear();
      if (ch_ == u"(" && prev_ != u' ') ch_ = u" (";
      if (rules_.spaceInParentheses)
        widenParentheses();
      else
        tightenParentheses();
      result_ += ch_;
      // The character of the text, not what the rules made of it: an underscore starts no word in this pass,
      // and the blank that it became starts one in the next.
      prev_ = text[i];
    }
    return std::move(result_);
  }

 private:
  /// What is emptied here becomes a blank by the next rule, and the trim takes that away.
  void dropAtEnds(bool first, bool last) {
    if (ch_ == u"-" && (first || last)) ch_.clear();
    if (ch_ == u"." && first) ch_.clear();
    if (ch_ == u")" && first) ch_.clear();
  }

  void widenParentheses() {
    if (prev_ == u'(' && ch_ != u" ") ch_.insert(0, 1, u' ');
    if (prev_ != u' ' && ch_ == u")") ch_.insert(0, 1, u' ');
  }

  void tightenParentheses() {
    if (prev_ == u'(' && ch_ == u" ") ch_.clear();
    if (prev_ == u' ' && ch_ == u")" && result_.size() > 1) {
      result_ = core::replaceAll(result_ + ch_, u" )", u")");
      ch_.clear();
    }
  }

  Capitals capitals_;
  const FilterRules& rules_;
  Text result_;
  Text ch_;
  char16_t prev_ = u' ';
};

/// Character passes until they leave neither "- -" nor "()".
Text settleCharacters(Text text, Capitals capitals, const FilterRules& rules) {
  for (;;) {
    text = core::trim(core::replaceAll(text, u"%20", u" "));
    Text result(core::trim(CharacterPass(capitals, rules).run(text)));
    if (core::position(result, u"- -") > 0)
      text = core::replaceAll(result, u"- -", u"-");
    else if (core::position(result, u"()") > 0)
      text = core::replaceAll(result, u"()", u"");
    else
      return result;
  }
}

/// Replaces `pattern` (in capitals) wherever it is spelled as at its first place; other spellings stay.
void respell(Text& text, const Text& upper, TextView pattern, TextView with) {
  const int at = core::position(upper, pattern);
  if (at == 0) return;
  const Text spelled = text.substr(static_cast<std::size_t>(at - 1), pattern.size());
  text = core::replaceAll(text, spelled, with);
}

Text respellWords(Text text, const FilterRules& rules) {
  const Text upper = core::upper(text);
  if (rules.djUpper) {
    respell(text, upper, u" DJ ", u" DJ ");
    respell(text, upper, u"(DJ ", u"(DJ ");
    if (upper.starts_with(u"DJ ")) text.replace(0, 3, u"DJ ");
  }
  if (rules.featLower) {
    respell(text, upper, u" FEAT ", u" feat ");
    respell(text, upper, u" FEAT.", u" feat.");
  }
  return text;
}

}  // namespace

Text Filter(TextView given, Capitals capitals, const FilterRules& rules) {
  Text text(given);
  Text lastResult;
  for (int pass = 1;; ++pass) {
    if (capitals != Capitals::Keep) text = core::lower(text);
    Text result = settleCharacters(std::move(text), capitals, rules);
    if (capitals == Capitals::EveryUpper) result = core::upper(result);
    if (capitals == Capitals::OnlyFirstUpper && result.size() >= 2)
      result = core::upper(result.substr(0, 1)) + core::lower(result.substr(1));
    if (pass == passLimit) return lastResult;
    if (result == lastResult) return respellWords(std::move(result), rules);
    lastResult = result;
    text = std::move(result);
  }
}

}  // namespace velmora::names
