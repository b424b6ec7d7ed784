#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/AggType.h"

#include <vector>

class DateTimeHierarchyAggPredicates;

/// An ordered list of date aggregations from the coarsest level to the finest, such as year, quarter, month, day.
/// It answers what a level nests in, what nests in it, and which of two levels is the more detailed:
///
///     hierarchy.GetContainingDateAggregation(AGG_MONTH)        // AGG_QUARTER
///     hierarchy.Is(AGG_MONTH).MoreDetailedThan(AGG_YEAR)       // true
///
/// Immutable but for assignment; const operations may be called from any thread. Queries scan the list and do not
/// allocate.
class VELCOREDATA_API DateTimeHierarchy
{
public:
    /// Copies the list. Its order is the caller's and is not checked; a level should not stand in it twice (the first
    /// one would be found).
    DateTimeHierarchy(std::vector<AggType> const & dateAggregationsSortedFromCoarsestToFinest);
    DateTimeHierarchy(DateTimeHierarchy const &);
    DateTimeHierarchy(DateTimeHierarchy &&) noexcept;
    DateTimeHierarchy & operator=(DateTimeHierarchy const &);
    DateTimeHierarchy & operator=(DateTimeHierarchy &&) noexcept;
    ~DateTimeHierarchy();

    /// Whether the level is in the hierarchy. The one question that may be asked of any level: all operations below
    /// raise LogicException_LogicAssert_0x3B2267A4 for a level that is not in the hierarchy, the Has ones included.
    bool Contains(AggType aggregation) const;

    /// The next coarser level. Raises LogicException_LogicAssert_0x7570E5BB for the coarsest one.
    AggType GetContainingDateAggregation(AggType aggregation) const;

    /// The next finer level. Raises LogicException_LogicAssert_0xDC0A00E9 for the finest one.
    AggType GetNestedDateAggregation(AggType aggregation) const;

    bool HasContainingDateAggregation(AggType aggregation) const;
    bool HasNestedDateAggregation(AggType aggregation) const;

    /// A question about a level. The answer object must not outlive the hierarchy. Any level may be given; it is looked
    /// up when the question is put.
    DateTimeHierarchyAggPredicates Is(AggType aggregation) const;

private:
    friend class DateTimeHierarchyAggPredicates;

    std::vector<AggType>::const_iterator GetPositionOfDateAggregation(AggType aggregation) const;

    std::vector<AggType> m_dateAggregationsSortedFromCoarsestToFinest;
};

/// A level of a hierarchy under test; made by DateTimeHierarchy::Is. Refers to the hierarchy and must not outlive it.
class VELCOREDATA_API DateTimeHierarchyAggPredicates
{
public:
    DateTimeHierarchyAggPredicates(DateTimeHierarchy const & hierarchy, AggType aggregation);

    /// Whether the other level stands before this one. A level is not more detailed than itself.
    /// Raises LogicException_LogicAssert_0xDEECCF43 when this level is not in the hierarchy, else
    /// LogicException_LogicAssert_0x19247530 when the other one is not.
    bool MoreDetailedThan(AggType lessDetailedDateAggregation) const;

private:
    AggType m_aggregation;
    DateTimeHierarchy const & m_hierarchy;
};
