#include "fuzz/support/FuzzText.h"
#include "tests/support/DatePictureModel.h"

// A picture of dates, rewritten into each notation as the plain table has it.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using namespace test_support;
    std::u16string const picture = fuzz_support::Units(data, size);
    for (PictureColumn const column : {ToIcu, ToCustom, ToQt})
        fuzz_support::Require(RewriteByLibrary(picture, column) == RewritePlainly(picture, column),
                              "the picture is rewritten by the table");
    return 0;
}
