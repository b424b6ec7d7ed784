#pragma once

#include <atomic>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/Collation.h"
#include "velcoreplatform/TString.h"
#include "velsys/RefCntObject.h"
#include "velsys/RefCntPtr.h"

// A text with the collation that it is compared by: what a string value points to. Shared by reference counts and
// immutable once published, but for the hash, which any thread may fill in. Assignment is for objects not yet shared.
//
//   a == b  <=>  the collations are equivalent and Compare(a, b) is 0: under "LEN_RUS_S2", "A" equals "a"
//   a == b implies a.GetHash() == b.GetHash() for texts of one collation
struct VELCOREDATA_API StringWithCollation : public RefCntObject
{
    StringWithCollation(TString const & text, Collation const & collation);
    // Copies and moves carry a computed hash over; the reference count is each object's own. What was moved from is
    // empty.
    StringWithCollation(StringWithCollation const & other);
    StringWithCollation(StringWithCollation && other);
    StringWithCollation & operator=(StringWithCollation const & other);
    StringWithCollation & operator=(StringWithCollation && other);
    ~StringWithCollation() override;

    TString const & GetString() const { return m_string; }
    Collation const & GetCollation() const { return m_collation; }

    // Whether the hash is computed. A text whose hash is 0 never has one and is hashed on each call.
    bool HasHash() const { return m_hash.load(std::memory_order_relaxed) != 0; }
    // Collation::Hash of the text, computed on the first call.
    unsigned GetHash() const
    {
        unsigned const hash = m_hash.load(std::memory_order_relaxed);
        return hash != 0 ? hash : ComputeHash();
    }

private:
    unsigned ComputeHash() const;

    mutable std::atomic<unsigned> m_hash;  // 0: not computed
    TString m_string;
    Collation m_collation;
};

// Two computed hashes that differ settle it; a missing hash is not computed for this.
VELCOREDATA_API bool operator==(StringWithCollation const & a, StringWithCollation const & b);
// By text if the collations are equivalent, else by the collations themselves.
VELCOREDATA_API bool operator<(StringWithCollation const & a, StringWithCollation const & b);
