#include "velcoreplatform/TPath.h"

#include <dlfcn.h>
#include <link.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

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
    void * module = nullptr;
    if (dladdr1(addressInModule, &info, &module, RTLD_DL_LINKMAP) == 0 || info.dli_fname == nullptr)
        return TPath();
    // The program itself has no name in the list of modules, and the one in `info` is as the caller typed it.
    char const * const name = static_cast<link_map const *>(module)->l_name;
    QString const file =
        name[0] == '\0' ? QFile::symLinkTarget(QStringLiteral("/proc/self/exe")) : QString::fromUtf8(name);
    return TPath(TString(QFileInfo(file).absolutePath()));
}
