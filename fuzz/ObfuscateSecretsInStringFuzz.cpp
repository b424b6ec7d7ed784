#include "fuzz/support/FuzzText.h"
#include "main/core/SecretMasks.h"
#include "velcoredata/core/StringUtils.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    TString const text = fuzz_support::Text(data, size);
    fuzz_support::Require(ObfuscateSecretsInString(text) == detail::ObfuscateSecretsByPatterns(text),
                          "masking by hand is masking by patterns");
    return 0;
}
