#include "velcoredata/data/CollatorPool.h"

// The virtual table's home.
CollatorPool::~CollatorPool() = default;
