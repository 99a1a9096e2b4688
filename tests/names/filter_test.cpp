#include "names/filter.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace velmora::names {
namespace {

constexpr FilterRules plain;
constexpr FilterRules spaced{.spaceInParentheses = true};
constexpr FilterRules dj{.djUpper = true};
constexpr FilterRules feat{.featLower = true};

struct Case {
  TextView text;
  TextView expected;
};

void expectAll(Capitals capitals, const FilterRules& rules, std::initializer_list<Case> cases) {
  for (const Case& each : cases)
    EXPECT_EQ(core::toBytes(Filter(each.text, capitals, rules)), core::toBytes(each.expected))
        << "from \"" << core::toBytes(each.text) << '"';
}

TEST(Filter, KeepsCapitalsButRunsAllCharacterRulesWithoutAMode) {
  expectAll(Capitals::Keep, plain,
            {{u"", u""},
             {u"ArVoLa", u"ArVoLa"},
             {u"  arvola  ", u"arvola"},
             {u"- arvola -", u"arvola"},
             {u"arvola_gold", u"arvola gold"},
             {u"a__b", u"a b"},
             {u"Harbour%20Lights", u"Harbour Lights"},
             {u"clean%20", u"clean"}});
}

TEST(Filter, DropsDashDotAndParenthesisAtTheEndsOnly) {
  expectAll(Capitals::Keep, plain,
            {{u"-song", u"song"},
             {u"song-", u"song"},
             {u".song.", u"song."},
             {u")song", u"song"},
             {u"so-ng", u"so-ng"},
             {u"--song", u"song"},
             {u"...song", u"song"},
             {u"-", u""}});
}

TEST(Filter, CollapsesBlanksAndDashes) {
  expectAll(Capitals::Keep, plain, {{u"a   b", u"a b"}, {u"a--b", u"a-b"}, {u"a - - b", u"a - b"}});
  expectAll(Capitals::FirstUpperOfWord, plain,
            {{u"a - - b", u"A - B"}, {u"a--b", u"A-B"}, {u"a - - - - b", u"A - B"}});
}

TEST(Filter, TightensParenthesesAndRemovesEmptyOnes) {
  expectAll(Capitals::FirstUpperOfWord, plain,
            {{u"song(live)", u"Song (Live)"},
             {u"song ( live )", u"Song (Live)"},
             {u"()", u""},
             {u"song ()", u"Song"},
             {u"song ( )", u"Song"},
             {u"song (())", u"Song"}});
}

TEST(Filter, SpacesParenthesesWhenAsked) {
  expectAll(Capitals::FirstUpperOfWord, spaced,
            {{u"song(live)", u"Song ( Live )"},
             {u"song ( live )", u"Song ( Live )"},
             {u"song ((live))", u"Song ( ( Live ) )"}});
}

TEST(Filter, FirstUpperOfWordSeesAWordBehindCertainCharacters) {
  expectAll(Capitals::FirstUpperOfWord, plain,
            {{u"rock & roll", u"Rock & Roll"},
             {u"rock&roll", u"Rock&Roll"},
             {u"k.o.r.", u"K.O.R."},
             {u".hack", u"Hack"},
             {u"a,b", u"A,B"},
             {u"don't", u"Don't"},
             {u"HARBOUR LIGHTS", u"Harbour Lights"},
             {u"łódź ćma", u"Łódź Ćma"}});
}

TEST(Filter, AnUnderscoreStartsAWordInThePassAfterIt) {
  expectAll(Capitals::FirstUpperOfWord, plain, {{u"arvola_gold", u"Arvola Gold"}, {u"_a_b_", u"A B"}});
}

TEST(Filter, EveryUpperAndOnlyFirstUpper) {
  expectAll(Capitals::EveryUpper, plain, {{u"arvola (live)", u"ARVOLA (LIVE)"}});
  expectAll(Capitals::OnlyFirstUpper, plain,
            {{u"THE BEST OF (LIVE)", u"The best of (live)"}, {u"a", u"A"}, {u"- b", u"B"}});
}

TEST(Filter, DjIsRespelledWhereItIsAWord) {
  expectAll(Capitals::Keep, dj,
            {{u"Dj Nemo", u"DJ Nemo"},
             {u"Remix By dj Foo", u"Remix By DJ Foo"},
             {u"Song (dJ Foo Mix)", u"Song (DJ Foo Mix)"},
             {u"Djembe", u"Djembe"},
             {u"Nemo Dj", u"Nemo Dj"}});
  expectAll(Capitals::Keep, plain, {{u"Dj Nemo", u"Dj Nemo"}});
}

TEST(Filter, FeatIsRespelledWithABlankOrADotBehindIt) {
  expectAll(Capitals::Keep, feat,
            {{u"Artist Feat. Other", u"Artist feat. Other"},
             {u"Artist Feat Other", u"Artist feat Other"},
             {u"Feat Other", u"Feat Other"},
             {u"A FEATURE", u"A FEATURE"}});
}

TEST(Filter, OnlyTheFirstSpellingOfAWordIsRespelled) {
  expectAll(Capitals::Keep, dj, {{u"x dj y dj z Dj w", u"x DJ y DJ z Dj w"}});
  expectAll(Capitals::Keep, feat, {{u"x Feat y FEAT z", u"x feat y FEAT z"}});
}

TEST(Filter, GivesUpAtTheTenthPassWithoutRespelling) {
  // Each pass takes one dot off the front, so that twelve of them do not settle in time.
  expectAll(Capitals::Keep, dj, {{u"............dj a", u"...dj a"}, {u"........dj a", u"DJ a"}});
}

}  // namespace
}  // namespace velmora::names
