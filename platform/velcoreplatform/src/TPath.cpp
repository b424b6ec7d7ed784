#include "velcoreplatform/TPath.h"

#include <dlfcn.h>

#include <QtCore/QFile>

TPath TPath::operator/(TPath const & relative) const
{
    if (relative.IsEmpty())
        return *this;
    if (IsEmpty() || relative.m_text.startsWith(u"/"))
        return relative;
    return TPath(m_text.endsWith(u"/") ? m_text + relative.m_text : m_text + u'/' + relative.m_text);
}

bool FileExists(TPath const & path)
{
    return !path.IsEmpty() && QFile::exists(TString(path).toQString());
}

TPath ModuleDirectory(void const * addressInModule)
{
    Dl_info info{};
    if (dladdr(addressInModule, &info) == 0 || info.dli_fname == nullptr)
        return TPath();
    TString const file = TString::fromLocal8Bit(info.dli_fname);
    int const slash = file.ReverseFind(u'/');
    return slash < 0 ? TPath(u".") : TPath(file.left(slash == 0 ? 1 : slash));
}
