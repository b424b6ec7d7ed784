#include <array>
#include <cstring>

#include "fuzz/support/FuzzText.h"
#include "main/data/ICUCollator.h"
#include "velcoredata/data/Collation.h"

// Two texts: what the table decides, ICU decides alike. The first byte selects the collation, a line feed parts the
// texts.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    static std::array<Collation, 10> const collations = {
        Collation(u"LROOT", 0),      Collation(u"LEN_RUS_S2", 0), Collation(u"LDA_RDK", 0), Collation(u"LCS_RCZ", 0),
        Collation(u"AS_LEN_RUS", 0), Collation(u"LEN_RUS_WO", 0), Collation(u"LJA_RJP", 0), Collation(u"LZH_RCN", 0),
        Collation(u"LHU_RHU_S1", 0), Collation(u"LFR_RCA", 0)};
    if (size == 0)
        return 0;
    auto const & collator = dynamic_cast<ICUCollator const &>(*collations[data[0] % collations.size()].GetCollator());
    std::vector<TString> const texts = fuzz_support::Lines(data + 1, size - 1, 2);
    char16_t const * const a = texts[0].constData();
    char16_t const * const b = texts[1].constData();
    auto const & fast = collator.GetFastPath();
    int const decided = fast.Compare(a, a + texts[0].length(), b, b + texts[1].length());
    int const expected = VelICU::t_ucol_strcoll(collator.GetHandle(), a, texts[0].length(), b, texts[1].length());
    fuzz_support::Require(decided == expected || decided == detail::CollationFastPath::undecided,
                          "the table and ICU agree");

    std::uint8_t ours[detail::CollationFastPath::maxKeySize], theirs[detail::CollationFastPath::maxKeySize];
    std::size_t const written = fast.WriteSortKey(a, ours);
    if (written != 0) {
        int const length = VelICU::t_ucol_getSortKey(collator.GetHandle(), a, -1, theirs, sizeof theirs);
        fuzz_support::Require(static_cast<int>(written) == length && std::memcmp(ours, theirs, written) == 0,
                              "the table writes ICU's sort key");
    }
    return 0;
}
