#include "velcoredata/data/Collator.h"

// The virtual table's home.
Collator::~Collator() = default;
