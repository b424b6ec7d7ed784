// LanguageCode: a language of the product as a value.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/core/MapCode.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

/// Names a language three ways: an ISO string ("de_DE"), a market ("EU", may be empty) and an LCID (0x407).
///
/// A code that the product ships resolves through its table first, so that "de" and "de_DE-EU" are the same language
/// and "en_US-EU" is "en_GB" in the market "EU". Any other text keeps its locale and takes the market of its language:
/// "de_AT" has the market "EU". No text is refused: one that has no LCID becomes "root" with LCID 0.
///
///   LanguageCode code(u"de");   // GetFullString() is "de_DE-EU", GetLCID() 0x407
///   LanguageCode user(1024);    // ISO string of the user's real locale; GetLCID() stays 1024
///
/// A value: several threads may read one object, a writer needs it alone.
class VELCOREDATA_API LanguageCode
{
public:
    /// The user's default, LCID 1024.
    LanguageCode();
    explicit LanguageCode(LCID lcid);
    explicit LanguageCode(TString const & code);
    LanguageCode(LanguageCode const & other);
    LanguageCode & operator=(LanguageCode const & other);
    ~LanguageCode();

    /// That of LanguageUtils::GetUILanguageCodeStr.
    static LanguageCode GetUILanguageCode();

    /// The ISO string.
    operator TString const &() const { return m_isoString; }
    TString const & GetISOString() const { return m_isoString; }
    TString const & GetMarketString() const { return m_marketString; }
    TString const GetFullString() const;         ///< "de_DE-EU", or "sv_SE" without a market
    TString const GetShortLanguageCode() const;  ///< the first two code units of the ISO string, "de"
    LCID GetLCID() const { return m_lcid; }
    unsigned short GetLangID() const { return static_cast<unsigned short>(m_lcid); }
    MapCode GetMapCode() const;
    TString GetCountryName() const;   ///< "DE"
    TString GetLanguageName() const;  ///< "de"
    /// "German (Germany)" in the language of LCID 9.
    TString GetDisplayName(LCID displayLcid) const;
    /// As web pages name it, "de-de". With CoreDataOptions::GetUseBiDiPseudo, "ar-ye" for "ar_YE", as without it.
    TString GetWebLanguageCode() const;

    /// The language of LanguageUtils::GetLocaleStr. The LCID is kept as it is given, so that a default stays a default.
    void SetLCID(LCID lcid);
    /// The language of a short, full or foreign code. With `fromLcid` the LCID stays as it was and the ISO string is
    /// the part before the hyphen; otherwise the LCID follows from that part, and the ISO string from the LCID: both
    /// are canonical, "zh_TW" for "zh_Hant_TW". The empty text gives LCID 0 and empty strings. While
    /// CoreDataOptions::GetUseBiDiPseudo is on, "ar_YE-US" has the LCID 4096.
    void SetLanguageCode(TString const & code, bool fromLcid);

private:
    TString m_isoString;
    TString m_marketString;
    LCID m_lcid = 0;
};
