#include "fuzz/support/FuzzText.h"
#include "main/data/CollatorSpec.h"
#include "main/data/ICUCollatorPool.h"
#include "velcoredata/data/Collator.h"
#include "velcoredata/data/CollatorNames.h"
#include "velsys/VeltriaException.h"

// A name: the first byte selects options, the rest is the text. Bad names raise; whatever is built is canonical, and
// what parses opens a pool or raises.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size == 0)
        return 0;
    int const options = data[0];
    TString const name = fuzz_support::Text(data + 1, size - 1);
    auto const caseOpt = static_cast<CollationOptions::CaseOpt>(options & 3);
    auto const accentOpt = static_cast<CollationOptions::AccentOpt>(options >> 2 & 1);
    auto const sortOpt = static_cast<CollationOptions::SortOpt>(options >> 3 & 1);
    auto const punctOpt = static_cast<CollationOptions::PunctOpt>((options >> 4 & 3) % 3);
    try {
        TString const made = MakeCollatorName(name, caseOpt, accentOpt, sortOpt, punctOpt);
        fuzz_support::Require(MakeCollatorName(made, caseOpt, accentOpt, sortOpt, punctOpt) == made,
                              "the same options again change nothing");
        char16_t last = 0;
        for (TString const & token : detail::SplitCollatorName(made)) {
            fuzz_support::Require(!token.isEmpty() && (last == 0 || token.constData()[0] > last), "letters ascend");
            last = token.constData()[0];
        }
    } catch (VeltriaException const &) {
    }
    try {
        detail::CollatorSpec const spec = detail::ParseCollatorName(name);
        MakeICUCollatorName(spec.locale, false, caseOpt, accentOpt, sortOpt, punctOpt);
        // Not through the table, which keeps every pool.
        ICUCollatorPool const pool(CollatorPoolKey{name, 0});
        fuzz_support::Require(pool.GetCollator()->Compare(u"a", u"a") == 0, "a text equals itself");
    } catch (VeltriaException const &) {
    }
    return 0;
}
