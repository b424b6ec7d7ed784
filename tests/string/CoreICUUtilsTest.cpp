#include "velcoredata/string/CoreICUUtils.h"

#include "tests/support/ErrorMatchers.h"
#include "tests/support/RecordingLogger.h"
#include "velcoreplatform/StringException.h"

namespace {

std::string OnlyWarning(test_support::RecordingLogger const & logger)
{
    auto const records = logger.GetRecords();
    EXPECT_EQ(1u, records.size());
    if (records.empty())
        return {};
    EXPECT_EQ(3, records[0].severity);
    return records[0].text;
}

}  // namespace

TEST(CoreICUUtils, AnIcuFailureIsAStringExceptionOfFixedText)
{
    test_support::RecordingLogger const logger;
    EXPECT_THAT([] { CoreICUUtils::ThrowICUException(TString(u"Unhandled specifier"), TString(u"Q1")); },
                ThrowsErrorOf<StringException>("StringException_AutoGen_0x5EA10C35", "String comparison error."));
    EXPECT_THAT(OnlyWarning(logger),
                testing::HasSubstr("\n--- String Compare Error ------------------------------------------------"
                                   "\nError: Unhandled specifier, Q1"
                                   "\n-------------------------------------------------------------------------"));
}

TEST(CoreICUUtils, AStatusIsNamedInTheLog)
{
    test_support::RecordingLogger const logger;
    EXPECT_THAT([] { CoreICUUtils::ThrowICUException(VelICU_V2::U_ILLEGAL_ARGUMENT_ERROR, TString(u"LEN_XYZ")); },
                ThrowsErrorOf<StringException>("StringException_AutoGen_0x5EA10C35", "String comparison error."));
    EXPECT_THAT(OnlyWarning(logger), testing::HasSubstr("Error: U_ILLEGAL_ARGUMENT_ERROR, LEN_XYZ"));
}

TEST(CoreICUUtils, PlacesInTheDetailAreNotFilled)
{
    test_support::RecordingLogger const logger;
    EXPECT_THAT([] { CoreICUUtils::ThrowICUException(TString(u"%2"), TString(u"%1")); },
                ThrowsError("StringException_AutoGen_0x5EA10C35"));
    EXPECT_THAT(OnlyWarning(logger), testing::HasSubstr("Error: %2, %1"));
}
