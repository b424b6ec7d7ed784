#include "velcoredata/data/MakeQualifiedName.h"

#include <utility>

#include "velsys/ThrowSite.h"

namespace {

QualifiedName TakeGlobalName(TString const & dataSource, QualifiedName && local)
{
    QualifiedName name(std::move(local));
    name.PushRoot(dataSource);
    return name;
}

QualifiedName CopyLocalName(QualifiedName const & global)
{
    return global.GetNumberOfComponents() == 1 ? global : global.PopRootValue();
}

QualifiedName TakeLocalName(QualifiedName && global)
{
    QualifiedName name(std::move(global));
    name.PopRoot();
    return name;
}

QualifiedName WithRoot(QualifiedName const & name, TString const & value)
{
    VELTRIA_ASSERT(name.GetNumberOfComponents() > 0, 0xA754925D);
    return name.ReplaceRootValue(value);
}

QualifiedName WithLeaf(QualifiedName const & name, TString const & value)
{
    VELTRIA_ASSERT(name.GetNumberOfComponents() > 0, 0x2EC106E1);
    return name.ReplaceLeafValue(value);
}

}  // namespace

QualifiedName MakeGlobalName(TString const & dataSource, QualifiedName const & local)
{
    return local.PushRootValue(dataSource);
}

FieldName MakeGlobalName(TString const & dataSource, FieldName const & local)
{
    return local.PushRootValue(dataSource);
}

QualifiedName MakeGlobalName(TString const & dataSource, QualifiedName && local)
{
    return TakeGlobalName(dataSource, std::move(local));
}

FieldName MakeGlobalName(TString const & dataSource, FieldName && local)
{
    return TakeGlobalName(dataSource, std::move(local));
}

FieldName MakeGlobalName(TString const & dataSource, TString const & leaf)
{
    return QualifiedName(dataSource, leaf);
}

QualifiedName MakeLocalName(QualifiedName const & global)
{
    return CopyLocalName(global);
}

FieldName MakeLocalName(FieldName const & global)
{
    return CopyLocalName(global);
}

QualifiedName MakeLocalName(QualifiedName && global)
{
    return TakeLocalName(std::move(global));
}

FieldName MakeLocalName(FieldName && global)
{
    return TakeLocalName(std::move(global));
}

QualifiedName MakeLocalName(QualifiedName const & global, TString & dataSource)
{
    return global.PopRootValue(dataSource);
}

FieldName MakeLocalName(FieldName const & global, TString & dataSource)
{
    return global.PopRootValue(dataSource);
}

std::set<FieldName> MakeLocalNames(std::set<FieldName> const & globals)
{
    std::set<FieldName> locals;
    for (FieldName const & global : globals)
        locals.insert(MakeLocalName(global));
    return locals;
}

std::vector<FieldName> MakeLocalNames(std::vector<FieldName> const & globals)
{
    std::vector<FieldName> locals;
    locals.reserve(globals.size());
    for (FieldName const & global : globals)
        locals.push_back(MakeLocalName(global));
    return locals;
}

QualifiedName PushValue(QualifiedName const & name, TString const & value)
{
    return name.PushLeafValue(value);
}

FieldName PushValue(FieldName const & name, TString const & value)
{
    return name.PushLeafValue(value);
}

QualifiedName ReplaceRoot(QualifiedName const & name, TString const & value)
{
    return WithRoot(name, value);
}

FieldName ReplaceRoot(FieldName const & name, TString const & value)
{
    return WithRoot(name, value);
}

QualifiedName ReplaceValue(QualifiedName const & name, TString const & value)
{
    return WithLeaf(name, value);
}

FieldName ReplaceValue(FieldName const & name, TString const & value)
{
    return WithLeaf(name, value);
}

std::set<LocalFieldName> MakeLocalFieldNameSetFromGlobalVec(TString const & dataSourceName,
                                                            std::vector<FieldName> const & fields)
{
    std::set<LocalFieldName> locals;
    for (FieldName const & field : fields) {
        VELTRIA_ASSERT(dataSourceName == field.GetDataSourceName(), 0xBAE9C013);
        locals.insert(LocalFieldName(MakeLocalName(field)));
    }
    return locals;
}

std::set<LocalFieldName> MakeLocalFieldNameSetFromLocalSet(std::set<FieldName> const & fields)
{
    std::set<LocalFieldName> locals;
    for (FieldName const & field : fields)
        locals.insert(LocalFieldName(field));
    return locals;
}
