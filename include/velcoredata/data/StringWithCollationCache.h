#pragma once

#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velcoreplatform/TString.h"
#include "velsys/RefCntPtr.h"

// Interns strings of one collation, so that a column of repeated texts shares objects and hashes: a bounded table in
// order of use, with one string for each collation hash. Texts that compare equal but differ in code units replace each
// other in turn. Any thread may call Lookup at any time.
class VELCOREDATA_API StringWithCollationCache
{
public:
    // `maximum` entries at most; with 0 each Lookup makes a new object.
    StringWithCollationCache(Collation const & collation, unsigned long long maximum);
    ~StringWithCollationCache();
    StringWithCollationCache(StringWithCollationCache const &) = delete;
    StringWithCollationCache & operator=(StringWithCollationCache const &) = delete;

    // The shared object of this exact text, with its hash computed; it becomes the most recently used one. Of two
    // threads that miss on the same text each may get an object of its own.
    RefCntPtr<StringWithCollation, RefCntObject> Lookup(TString const & text);

    // A process-wide number for the string pools of callers, 1000 at the start. Nothing here reads it.
    static unsigned long long GetStringPoolThreadLocalCacheSize();
    static void SetStringPoolThreadLocalCacheSize(unsigned long long size);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
