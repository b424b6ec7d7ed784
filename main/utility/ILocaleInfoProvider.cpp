#include "velcoredata/utility/ILocaleInfoProvider.h"

ILocaleInfoProvider::~ILocaleInfoProvider() = default;
