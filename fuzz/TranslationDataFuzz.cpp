#include <QtCore/QTranslator>

#include "fuzz/support/FuzzText.h"
#include "main/core/TranslationData.h"

// The bytes of compiled translations (.qm). What is sound goes to a translator, which trusts every offset in it.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (!detail::IsSoundTranslation(data, size))
        return 0;
    QTranslator translator;
    if (!translator.load(data, static_cast<int>(size), QString()))
        return 0;
    for (char const * context : {"IDS_A", "IDS_B", ""}) {
        for (char const * source : {"Day", "Year", ""}) {
            translator.translate(context, source, nullptr, -1);
            translator.translate(context, source, "comment", 2);
        }
    }
    return 0;
}
