#include "velcoredata/data/CollationConflictResolver.h"

SourcedCollation::SourcedCollation() : collation(GetUnknownCollation()) {}

SourcedCollation::SourcedCollation(TString const & from, Collation const & what) : source(from), collation(what) {}

CollationConflictResolver::Callback::~Callback() = default;

std::unique_ptr<SourcedCollation>
CollationConflictResolver::ResolveSourcedCollation(std::vector<SourcedCollation const *> & candidates) const
{
    if (candidates.empty())
        return nullptr;
    SourcedCollation const * winner = candidates.front();
    for (std::size_t i = 1; i < candidates.size(); ++i)
        winner = ResolveCollationPair(*winner, *candidates[i]);
    return std::make_unique<SourcedCollation>(*winner);
}

SourcedCollation const * CollationConflictResolver::ResolveCollationPair(SourcedCollation const & first,
                                                                         SourcedCollation const & second) const
{
    if (first.source.isEmpty() && !second.source.isEmpty())
        return &second;
    Collation const & unknown = GetUnknownCollation();
    if (first.collation == unknown && !(second.collation == unknown))
        return &second;
    if (first.collation.IsCaseSensitive() != second.collation.IsCaseSensitive())
        return first.collation.IsCaseSensitive() ? &second : &first;
    if (!first.source.isEmpty() && first.source == second.source && m_callback != nullptr &&
        m_callback->PreferSecond(first.collation, second.collation, first.source))
        return &second;
    if (!second.collation.HasCharsetID() || first.collation.HasCharsetID())
        return &first;
    return first.collation.GetName() == second.collation.GetName() ? &second : &first;
}
