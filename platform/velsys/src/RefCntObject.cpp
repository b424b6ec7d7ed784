#include "velsys/RefCntObject.h"

RefCntObject::~RefCntObject() = default;
