#pragma once

#include <vector>

#include "velcoredata/core/Export.h"

// The object that compares, searches, folds case and hashes under one collation.
//
// Texts are UTF-16 with a terminator; positions and lengths count code units. A length of -1 means up to the
// terminator. Lone surrogates are allowed everywhere. An ICU collator belongs to the thread that fetched it from its
// pool; the binary one is shared by all threads.
//
// Laws, for every text a, b, c:
//   Compare(a, b) == -Compare(b, a) in sign       Compare(a, a) == 0
//   Compare(a, b) <= 0 and Compare(b, c) <= 0 imply Compare(a, c) <= 0
//   Compare(a, b) == 0 implies Hash(a) == Hash(b)
//   k = Search(t, p, 0, &n) >= 0 implies k + n <= |t| and Compare(t[k, k + n], p) == 0; where punctuation is shifted or
//   the case level on, ICU's search sees primary differences only and the match is equal at that strength
//   Trim == LTrim of RTrim == RTrim of LTrim      Trim, Lower and Upper are idempotent
class VELCOREDATA_API Collator
{
public:
    virtual ~Collator();

    // Negative, zero or positive; exactly -1, 0 or 1 from an ICU collator.
    virtual int Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const = 0;
    virtual int Compare(char16_t const * a, char16_t const * b) const = 0;

    // First match at or after `start`, or -1. An empty pattern matches nowhere. `matchLength`, if not null, receives
    // the length of the matched text, which may differ from the pattern's ("strasse" finds 6 units of "Straße").
    virtual int Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const = 0;
    virtual int Search(char16_t const * text, char16_t const * pattern) const = 0;

    // `out` becomes `text` with every match replaced, left to right without overlap, and a terminator. An empty pattern
    // leaves `out` as it was under ICU, and empty without a terminator under the binary collator. An ICU match of
    // length zero (a pattern that the collation ignores) ends the work.
    virtual void Replace(std::vector<char16_t> & out,
                         char16_t const * text,
                         char16_t const * pattern,
                         char16_t const * replacement) const = 0;

    // An empty pattern is always found, a pattern longer than the text in code units never.
    virtual bool StartsWith(char16_t const * text, char16_t const * pattern) const = 0;
    virtual bool EndsWith(char16_t const * text, char16_t const * pattern) const = 0;

    // Each leaves a terminated text at the front of `out`, whose size may exceed it.
    virtual void Lower(std::vector<char16_t> & out, char16_t const * text) const = 0;
    virtual void Upper(std::vector<char16_t> & out, char16_t const * text) const = 0;
    virtual void LTrim(std::vector<char16_t> & out, char16_t const * text) const = 0;
    virtual void RTrim(std::vector<char16_t> & out, char16_t const * text) const = 0;
    virtual void Trim(std::vector<char16_t> & out, char16_t const * text) const = 0;

    // Texts that compare equal hash equally. The value holds within one process.
    virtual unsigned Hash(char16_t const * text) const = 0;

    // Whether both collators order texts alike as far as locale and attributes tell. Ignored digits are not compared,
    // so a collator with the token "XO" is equivalent to the same one without it.
    virtual bool IsEquivalent(Collator const & other) const = 0;

protected:
    Collator() = default;
    Collator(Collator const &) = default;
    Collator & operator=(Collator const &) = default;
};
