#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/CollatorPool.h"
#include "velcoredata/data/CollatorPoolKey.h"

// The pool of the name "binary": one stateless collator for all threads. Never freed.
VELCOREDATA_API CollatorPool & GetBinaryCollatorPool();

// The pool of an ICU collator name, made on the first request for the key and kept until the process ends. When two
// threads race to make one, both get the same pool. A bad name raises the assertions of the name grammar or the ICU
// exception ("String comparison error.") and leaves no pool behind.
VELCOREDATA_API CollatorPool & GetICUCollatorPool(CollatorPoolKey const & key);
