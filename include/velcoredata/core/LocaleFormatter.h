#pragma once

#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velicu/ICUDateFormat.h"

namespace VelICU_V2 {
class ICULocale;
}

/// How a LocaleFormatter was made; cast to one of the three.
struct VELCOREDATA_API LocaleFormatterSettings
{
    virtual ~LocaleFormatterSettings();
};

struct VELCOREDATA_API SimpleLocaleFormatterSettings : LocaleFormatterSettings
{
    explicit SimpleLocaleFormatterSettings(TString const & pattern_);
    ~SimpleLocaleFormatterSettings() override;
    TString pattern;  ///< in ICU's letters, "yyyy-MM-dd"
};

struct VELCOREDATA_API DateLocaleFormatterSettings : LocaleFormatterSettings
{
    explicit DateLocaleFormatterSettings(VelICU_V2::ICUDateFormat::ICUEStyle dateStyle_);
    ~DateLocaleFormatterSettings() override;
    VelICU_V2::ICUDateFormat::ICUEStyle dateStyle;
};

struct VELCOREDATA_API DateTimeLocaleFormatterSettings : LocaleFormatterSettings
{
    DateTimeLocaleFormatterSettings(VelICU_V2::ICUDateFormat::ICUEStyle dateStyle_,
                                    VelICU_V2::ICUDateFormat::ICUEStyle timeStyle_);
    ~DateTimeLocaleFormatterSettings() override;
    VelICU_V2::ICUDateFormat::ICUEStyle dateStyle;
    VelICU_V2::ICUDateFormat::ICUEStyle timeStyle;
};

/// The format with which a TLocale reads dates: one format of ICU's and a record of how it was made. Reading is strict
/// (not lenient) if it was made from a pattern, lenient as ICU makes it if from styles.
///
/// Belongs to one thread at a time.
class VELCOREDATA_API LocaleFormatter
{
public:
    /// Raises "VelICU_V2::ICU_SUCCESS(success)", LogicException_LogicAssert_0xC9BEB47B.
    LocaleFormatter(TString const & pattern, VelICU_V2::ICULocale const & locale);
    LocaleFormatter(VelICU_V2::ICUDateFormat::ICUEStyle dateStyle, VelICU_V2::ICUDateFormat::ICUEStyle timeStyle,
                    VelICU_V2::ICULocale const & locale);
    LocaleFormatter(VelICU_V2::ICUDateFormat::ICUEStyle dateStyle, VelICU_V2::ICULocale const & locale);
    ~LocaleFormatter();
    LocaleFormatter(LocaleFormatter const &) = delete;
    LocaleFormatter & operator=(LocaleFormatter const &) = delete;

    /// May be changed though the object is const: other patterns are applied to it. Precondition: a formatter of styles
    /// that ICU has a format for; ICU has one for all styles of every locale.
    VelICU_V2::ICUDateFormat & GetICUDateFormatter() const { return *m_format; }
    /// Of the moment when the object was made: patterns applied since do not show.
    LocaleFormatterSettings const & GetSettings() const { return *m_settings; }

private:
    std::unique_ptr<VelICU_V2::ICUDateFormat> m_format;
    std::unique_ptr<LocaleFormatterSettings> m_settings;
};
