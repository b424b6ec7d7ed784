// Functions on strings: hashes, joining and splitting, escapes, hexadecimal literals, masking of secrets.
//
// All are pure and may be called from any thread. Positions and lengths count UTF-16 code units. Unless said otherwise,
// U+0000 and lone surrogates are characters like any other.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <boost/container/container_fwd.hpp>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

// Hashes and order.

/// THash32 over the code units with the seed 0xDEADBEEF: the one string hash of the library. Not stable across
/// processes.
VELCOREDATA_API unsigned int StringHash(TString const & text);

/// THash128 over the code units with the seeds 0xDEADBEEF and 0xCAFEBABE. Raises the logic assertion "0 <= len",
/// "LogicException_LogicAssert_0x9DD2957A", for a text whose length is not countable in 31 bits.
VELCOREDATA_API std::pair<std::uint64_t, std::uint64_t> StringHash128(TString const & text);

/// Hash and equality for concurrent containers: equal(a, b) implies hash(a) == hash(b).
struct VELCOREDATA_API TStringHashCompare
{
    static std::uint64_t hash(TString const & text);
    static bool equal(TString const & a, TString const & b);
};

/// A sort order that leaves case aside: a.CollateNoCase(b) < 0.
VELCOREDATA_API bool LocaleAwareCaseInsensitiveSort(TString const & a, TString const & b);

// Small ones.

VELCOREDATA_API TString BooleanToString(bool value);  // "true" or "false"

/// Every code unit is at most 127. True of the empty text.
VELCOREDATA_API bool HasAllAsciiCharacters(TString const & text);

/// The mapped value, or the empty text.
VELCOREDATA_API TString LookupString(std::unordered_map<TString, TString> const & map, TString const & key);
VELCOREDATA_API TString LookupString(std::unordered_map<TString, TString> const & map, char16_t const * key);

/// Each U+000A becomes a blank; U+000D stays.
VELCOREDATA_API TString ReplaceLineFeedWithWhiteSpace(TString const & text);

/// The low byte of each code unit; high bytes are dropped without a check. U+0141 gives the byte 0x41.
VELCOREDATA_API std::string RemoveBytePadding(TString const & text);

// Joining and splitting. Without quotes one undoes the other:
//
//   JoinString(SplitString(t, s, u""), s) == t
//   SplitString(t, s, u"").size() == occurrences of s in t, not overlapping, + 1
//   SplitString(t, s, q) either raises or JoinString(SplitString(t, s, q), s) == t

/// The items with the separator between neighbours; an empty range gives the empty text. Raises VeltriaException
/// "JoinString: calculated length %1 exceeds maximum length", "VeltriaException_AutoGen_0xF43CCF25", for a result over
/// 0x7FFFFFFF.
///   JoinString({u"a", u"", u"b"}, u"--")  // "a----b"
VELCOREDATA_API TString JoinString(std::set<TString> const & items, TString const & separator);
VELCOREDATA_API TString JoinString(std::vector<TString> const & items, TString const & separator);
VELCOREDATA_API TString JoinString(std::vector<TString> const & items, char16_t separator);
VELCOREDATA_API TString JoinString(boost::container::small_vector_base<TString> const & items,
                                   TString const & separator);
VELCOREDATA_API TString JoinString(boost::container::small_vector_base<TString> const & items, char16_t separator);
VELCOREDATA_API TString JoinString(std::set<TString>::const_iterator first, std::set<TString>::const_iterator last,
                                   TString const & separator);
VELCOREDATA_API TString JoinString(std::vector<TString>::const_iterator first,
                                   std::vector<TString>::const_iterator last, TString const & separator);

/// Cuts at each separator; at least one token. A separator between two quotes does not cut, and the quotes stay in the
/// token; an empty quote means no quoting. Of each token only the first quoted stretch counts: a separator within a
/// second one cuts. Raises VeltriaException
///   "Missing separator parameter", "VeltriaException_AutoGen_0xF6FE9A60", for an empty separator, and
///   "Mismatched quote in '%1'", "VeltriaException_AutoGen_0x79B9C33C", for a quote without a second one, with the text
///   from that quote on. A lone quote raises even where no separator follows it.
///
///   SplitString(u"a,b,", u",", u"")               // "a" "b" ""
///   SplitString(u"a,\"b,c\",d", u",", u"\"")      // "a" "\"b,c\"" "d"
///   SplitString(u"x'a,b'y'c,d',e", u",", u"'")    // "x'a,b'y'c" "d',e" would be next, but raises: a lone quote
VELCOREDATA_API std::vector<TString> SplitString(TString const & text, TString const & separator,
                                                 TString const & quote);
VELCOREDATA_API std::vector<TString> SplitString(TString const & text, char16_t separator, TString const & quote);

// Escapes.  CUnescape(CEscape(t)) == t

/// Each occurrence of one of `characters` is preceded by `escape`; the escape itself only if it is one of them.
VELCOREDATA_API TString Escape(TString const & text, TString const & characters, char16_t escape);

/// U+0000, U+0007 to U+000D, the apostrophe and the backslash as \0 \a \b \t \n \v \f \r \' \\; all else, the double
/// quote included, as it stands.
VELCOREDATA_API TString CEscape(char16_t character);
VELCOREDATA_API TString CEscape(TString const & text);

/// Reads \0 \a \b \f \n \r \t \v; any other character after a backslash stands for itself. A backslash at the end
/// stays.
VELCOREDATA_API TString CUnescape(TString const & text);

// Hexadecimal literals.
//
//   DecodeHexEncodedString(HexEncode(t)) == t     for well-formed t without U+0000 and U+FFFD
//   HexDecode of what stands between the quotes of HexEncode(t) gives t    for well-formed t without U+0000

/// The UTF-8 bytes in upper-case digits: "x'C3A9'" for U+00E9, "x''" for the empty text. Stops at a U+0000. A lone
/// surrogate is written as a question mark, "3F".
VELCOREDATA_API TString HexEncode(TString const & text);

/// Reads pairs of digits of either case as bytes of UTF-8; ill-formed sequences become U+FFFD. A zero byte ends the
/// text with success, a character that is no digit ends it with false, a lone last digit is dropped. `result` is always
/// set to what was read: "41G2" gives false and "A".
VELCOREDATA_API bool HexDecode(TString const & text, TString & result);

/// Reads x'...' or x_..._, with a tail after the last "z" that is appended as it stands; the closing mark may be
/// missing. Every U+FFFD is removed from what was decoded. False without x' or x_ at the start, with `result`
/// unchanged, and for what HexDecode refuses, with `result` as HexDecode left it and no tail.
///   DecodeHexEncodedString(u"x'4142'zabc", s)  // true, "ABabc"
VELCOREDATA_API bool DecodeHexEncodedString(TString const & text, TString & result);

// Removing and masking.

/// Removes what lies between each `open` and the next `close`, in place; the delimiters stay. After one removal the
/// search goes on behind the closing delimiter and one further length of `open`, so an `open` within that length is not
/// seen:
/// "()(a)" stays. Where no `close` follows nothing is removed. With both delimiters empty the text stays.
///
///   the result is never longer; without `open` in the text it is the text
///   only characters between an `open` and a `close` are removed: all others stay, in their order
///
///   DeleteBetween("{a} {b} {c}", "{", "}")  // "{} {} {}"
VELCOREDATA_API void DeleteBetween(TString & text, TString const & open, TString const & close);

/// Masks the values of PASSWORD=, PWD=, TOKEN= and RTK=, key words in any case, for log text. The key word comes out in
/// upper case, the value as eight asterisks. A value of the first two ends at white space; that of TOKEN= ends at its
/// ";", which goes too, and without one it stays; that of RTK= is ASCII letters and digits. Where a key word stands in
/// the text, with its "=" and in any case, nothing after a U+0000 is kept.
///
///   ObfuscateSecretsInString(u"password=abc def")   // "PASSWORD=******** def"
///   ObfuscateSecretsInString(u"token=a;rest")       // "TOKEN=********rest"
///
///   the result holds no value of PASSWORD=, PWD= or RTK=; what follows RTK=RTK= is the value of neither and stays
///   f(f(t)) == f(t)    for t without TOKEN= and RTK=; a masked RTK= grows by eight asterisks each time
VELCOREDATA_API TString ObfuscateSecretsInString(TString const & text);
