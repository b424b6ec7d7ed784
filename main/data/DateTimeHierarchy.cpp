#include "velcoredata/data/DateTimeHierarchy.h"

#include "velsys/ThrowSite.h"

#include <algorithm>

DateTimeHierarchy::DateTimeHierarchy(std::vector<AggType> const & dateAggregationsSortedFromCoarsestToFinest)
    : m_dateAggregationsSortedFromCoarsestToFinest(dateAggregationsSortedFromCoarsestToFinest)
{}

DateTimeHierarchy::DateTimeHierarchy(DateTimeHierarchy const &) = default;
DateTimeHierarchy::DateTimeHierarchy(DateTimeHierarchy &&) noexcept = default;
DateTimeHierarchy & DateTimeHierarchy::operator=(DateTimeHierarchy const &) = default;
DateTimeHierarchy & DateTimeHierarchy::operator=(DateTimeHierarchy &&) noexcept = default;
DateTimeHierarchy::~DateTimeHierarchy() = default;

bool DateTimeHierarchy::Contains(AggType aggregation) const
{
    auto const & levels = m_dateAggregationsSortedFromCoarsestToFinest;
    return std::find(levels.cbegin(), levels.cend(), aggregation) != levels.cend();
}

AggType DateTimeHierarchy::GetContainingDateAggregation(AggType aggregation) const
{
    auto const positionInHierarchy = GetPositionOfDateAggregation(aggregation);
    VELTRIA_ASSERT(positionInHierarchy != m_dateAggregationsSortedFromCoarsestToFinest.cbegin(), 0x7570E5BB);
    return *(positionInHierarchy - 1);
}

AggType DateTimeHierarchy::GetNestedDateAggregation(AggType aggregation) const
{
    auto const positionInHierarchy = GetPositionOfDateAggregation(aggregation) + 1;
    VELTRIA_ASSERT(positionInHierarchy != m_dateAggregationsSortedFromCoarsestToFinest.cend(), 0xDC0A00E9);
    return *positionInHierarchy;
}

bool DateTimeHierarchy::HasContainingDateAggregation(AggType aggregation) const
{
    return GetPositionOfDateAggregation(aggregation) != m_dateAggregationsSortedFromCoarsestToFinest.cbegin();
}

bool DateTimeHierarchy::HasNestedDateAggregation(AggType aggregation) const
{
    return GetPositionOfDateAggregation(aggregation) + 1 != m_dateAggregationsSortedFromCoarsestToFinest.cend();
}

DateTimeHierarchyAggPredicates DateTimeHierarchy::Is(AggType aggregation) const
{
    return DateTimeHierarchyAggPredicates(*this, aggregation);
}

std::vector<AggType>::const_iterator DateTimeHierarchy::GetPositionOfDateAggregation(AggType aggregation) const
{
    auto const & dateAggregations = m_dateAggregationsSortedFromCoarsestToFinest;
    auto const positionInHierarchy = std::find(dateAggregations.cbegin(), dateAggregations.cend(), aggregation);
    VELTRIA_ASSERT(positionInHierarchy != dateAggregations.cend(), 0x3B2267A4);
    return positionInHierarchy;
}

DateTimeHierarchyAggPredicates::DateTimeHierarchyAggPredicates(DateTimeHierarchy const & hierarchy, AggType aggregation)
    : m_aggregation(aggregation), m_hierarchy(hierarchy)
{}

bool DateTimeHierarchyAggPredicates::MoreDetailedThan(AggType lessDetailedDateAggregation) const
{
    auto const & dateAggregations = m_hierarchy.m_dateAggregationsSortedFromCoarsestToFinest;
    auto const positionInHierarchy = std::find(dateAggregations.cbegin(), dateAggregations.cend(), m_aggregation);
    VELTRIA_ASSERT(positionInHierarchy != dateAggregations.cend(), 0xDEECCF43);
    VELTRIA_ASSERT(m_hierarchy.Contains(lessDetailedDateAggregation), 0x19247530);
    return std::find(dateAggregations.cbegin(), positionInHierarchy, lessDetailedDateAggregation) !=
           positionInHierarchy;
}
