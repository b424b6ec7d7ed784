#pragma once

#include <memory>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/Collation.h"
#include "velcoreplatform/TString.h"

// A collation with the name of where it comes from, such as a column; the name may be empty.
struct VELCOREDATA_API SourcedCollation
{
    TString source;
    Collation collation;

    // No source, the unknown collation.
    SourcedCollation();
    SourcedCollation(TString const & from, Collation const & what);
    SourcedCollation(SourcedCollation const &) = default;
    SourcedCollation & operator=(SourcedCollation const &) = default;

    friend bool operator==(SourcedCollation const & a, SourcedCollation const & b)
    {
        return a.source == b.source && a.collation == b.collation;
    }
};

// Chooses one collation where several sources bring each their own, as in the columns of a union: the candidates are
// folded in list order by a pairwise rule, so the result can depend on that order. The first test that decides ends it:
//
//   1. a named source beats an empty one that stands before it
//   2. a known collation beats the unknown one that stands before it
//   3. a collation that is not case-sensitive beats one that is
//   4. with equal, named sources the callback decides, if there is one, for the second
//   5. the first stays when the second has no charset, or 6. when the first has one
//   7. a charset beats none when the names are equal; else the first stays
//
// Laws: the winner is one of the candidates; a single candidate never asks the callback; nor do distinct sources.
class VELCOREDATA_API CollationConflictResolver
{
public:
    class VELCOREDATA_API Callback
    {
    public:
        Callback() = default;
        Callback(Callback const &) = default;
        Callback & operator=(Callback const &) = default;
        virtual ~Callback();

        // Asked when two collations come from the same source; true chooses the second.
        virtual bool PreferSecond(Collation const & first, Collation const & second, TString const & source) const = 0;
    };

    // The callback may be null; it is not owned and must outlive the resolver and its copies. A resolver may be used
    // from several threads as far as its callback can.
    explicit CollationConflictResolver(Callback const * callback) : m_callback(callback) {}

    // A copy of the winner, null for an empty list. The candidates must not be null.
    std::unique_ptr<SourcedCollation> ResolveSourcedCollation(std::vector<SourcedCollation const *> & candidates) const;

private:
    SourcedCollation const * ResolveCollationPair(SourcedCollation const & first,
                                                  SourcedCollation const & second) const;

    Callback const * m_callback;
};
