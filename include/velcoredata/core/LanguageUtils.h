// The languages of the product: which there are, which of them fits a locale best, and which the user chose.
//
// Three kinds of text name a language. A locale name as ICU has it, "de_DE"; the ISO string is the canonical one. A
// full code, "de_DE-EU": the ISO string, a hyphen and the market. A short form of either, "de", that the tables lead to
// a full code. No function raises on a bad text; an unknown one falls to the default language, "en_US".
//
// All functions may be called from any thread. The tables are filled at their first use, which looks for the resource
// of the pseudo-locales beside the program; a host that wants the search to be over before its threads start calls
// InitializeLanguageMap.
#pragma once

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/core/LanguageScript.h"
#include "velcoredata/core/MapCode.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class TLocale;

namespace LanguageUtils {

// Locale names and LCIDs.

/// The locale name of an LCID: GetLocaleStr(0x404) is "zh_TW". Published names come first, with "_" for "-", "fa" for a
/// leading "prs" and "qu" for a leading "quz"; then those that ICU knows. 0, and an LCID that nobody knows, is "root".
/// The defaults (127, 1024, 2048, 3072, 4096, 5120) stand for the user's real locale.
VELCOREDATA_API std::string GetLocaleNarrowStr(LCID lcid);
/// The same as a TString, but 4096 is always the pseudo-locale of bi-directional text, "ar_YE".
VELCOREDATA_API TString GetLocaleStr(LCID lcid);
/// 0x407 for "de_DE"; 0 if there is none.
VELCOREDATA_API LCID GetLCID(TString const & locale);
/// The user's real LCID for one of the defaults; see velnls/LocaleInfo.h.
VELCOREDATA_API LCID ConvertDefaultLocale(LCID lcid);
/// Whether the text has an LCID.
VELCOREDATA_API bool IsLocaleSupported(TString const & locale);

/// The part before the first hyphen: "de_DE" of "de_DE-EU". A text without one, or that begins with one, comes back
/// whole.
VELCOREDATA_API TString GetISOString(TString const & code);
VELCOREDATA_API TString GetLanguageName(TString const & locale);  ///< "de" of "de_DE-EU"
/// By table, from an ISO string. zh_Hans_HK and zh_Hans_MO are traditional: the region decides there.
VELCOREDATA_API LanguageScript GetLanguageScript(TString const & isoString);

/// "de_DE" of "de_DE-EU". Below 6 code units, or with any number of hyphens but one, the text comes back whole.
VELCOREDATA_API TString RemoveMarketStringFromLanguageCode(TString const & code);
/// "zh_CN" of "zh_Hans_CN". Below 6 code units, or with any number of "_" but two, the text comes back whole.
VELCOREDATA_API TString RemoveScriptFromLanguageCode(TString const & code);

// The default language.

VELCOREDATA_API TString GetDefaultISOString();      ///< "en_US"
VELCOREDATA_API TString GetDefaultLanguage();       ///< "en"
VELCOREDATA_API TString GetDefaultSamplesString();  ///< "en_US-US"

// The languages the product ships.

/// Whether a short or full code leads to a full one: true for "de", "de_DE" and "de_DE-EU", false for "de_AT".
VELCOREDATA_API bool IsLanguageCodeSupported(TString const & code);
/// The full codes, "de_DE-EU" and its neighbours.
VELCOREDATA_API std::unordered_set<TString> GetSupportedLanguages();
/// The full code that a locale or code leads to, else that of a supported one of the same language and script whose
/// market does not contradict: "zh_TW-APAC" for "zh_HK". Among several the first of the product's list. Without any:
/// "en_US", which is no full code.
VELCOREDATA_API TString GetClosestSupportedLanguageCode(TString const & code);
VELCOREDATA_API TString GetClosestSupportedLanguageCode(LCID lcid);
/// The full code in which sample data come to users of a locale: a table of neighbours ("en_GB-EU" for "sv_SE") decides
/// before the language does; without any, GetDefaultSamplesString. Always a full code.
VELCOREDATA_API TString GetClosestSpecialLocaleCode(TString const & code);
VELCOREDATA_API TString GetClosestSpecialLocaleCode(LCID lcid);

/// ISO strings for a menu of languages: the one in use first, the others by their sort names, Latin scripts before
/// others.
VELCOREDATA_API std::vector<TString> GetAvailableDesktopLanguages();
/// The menu text of an ISO string, with a mark before the access key: "&Deutsch". Empty for one that is no row.
VELCOREDATA_API TString GetDisplayStringForLanguageCode(TString const & isoString);

// The user's choices, kept in TSettings group 35.

/// "LanguageCode" if it is supported, else the code closest to the system's locale, which is then written there.
VELCOREDATA_API TString GetUILanguageCodeStr();
/// "SamplesLanguage" whatever it is, else the special code closest to the system's locale, which is then written there.
VELCOREDATA_API TString GetSampleDataSourcesLanguageString();
VELCOREDATA_API TString GetSampleWorkbooksLanguageString();  ///< ISO string of the language in use

// Maps and measures.

/// ISO strings of the locales whose map code is written down; any other locale has MapCodeUS.
VELCOREDATA_API std::map<TString, MapCode> const & GetMapCodeLocales();
VELCOREDATA_API TString GetMapCodeString(MapCode code);  ///< "CN"; "US" for a number that is no map code

/// Whether distances are in miles: the country is US, GB, LR or MM. Codes of two capital letters.
VELCOREDATA_API bool UsesImperialDistanceUnits(TString const & country);
VELCOREDATA_API bool UsesImperialDistanceUnits(TLocale const & locale);

// The pseudo-locales: "ga_IE" shows what is not translated, "ar_YE" what does not turn with bi-directional text.

/// Fills the list of desktop languages, once per process. Raises "LogicException_LogicAssert_0x4B77BEEC" if the table
/// lacks a pseudo-locale that is installed.
VELCOREDATA_API void InitializeLanguageMap();
/// Whether the translations of "ga_IE" are installed and load.
VELCOREDATA_API bool PseudoLocFeatureShouldBeEnabled();

}  // namespace LanguageUtils
