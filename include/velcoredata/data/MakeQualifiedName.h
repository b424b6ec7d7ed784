// From local names to global ones and back, over QualifiedName and over FieldName. Forms that take a const reference
// leave it as it is; forms that take an rvalue leave it empty.
//
// Laws, for a non-empty name n and a data source s:
//   MakeLocalName(MakeGlobalName(s, n)) == n, from an lvalue and from an rvalue
//   MakeLocalName(MakeGlobalName(s, n), out) == n, and out == s
//   the two value categories of MakeLocalName(n) differ  <=>  n has exactly one component
//
//   name          MakeLocalName(lvalue)   MakeLocalName(rvalue)   MakeLocalName(name, source)   source
//   [s].[f].[g]   [f].[g]                 [f].[g]                 [f].[g]                       "s"
//   [s].[f]       [f]                     [f]                     [f]                           "s"
//   [a]           [a]                     no components           no components                 "a"
//   none          none                    none                    none                          ""
#pragma once

#include <set>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/FieldName.h"
#include "velcoredata/data/LocalFieldName.h"
#include "velcoredata/data/QualifiedName.h"

// `dataSource` in front of the name's components.
VELCOREDATA_API QualifiedName MakeGlobalName(TString const & dataSource, QualifiedName const & local);
VELCOREDATA_API FieldName MakeGlobalName(TString const & dataSource, FieldName const & local);
VELCOREDATA_API QualifiedName MakeGlobalName(TString const & dataSource, QualifiedName && local);
VELCOREDATA_API FieldName MakeGlobalName(TString const & dataSource, FieldName && local);
// Two components, as they stand.
VELCOREDATA_API FieldName MakeGlobalName(TString const & dataSource, TString const & leaf);

// All but the root. A name of exactly one component is taken for local already and given back.
VELCOREDATA_API QualifiedName MakeLocalName(QualifiedName const & global);
VELCOREDATA_API FieldName MakeLocalName(FieldName const & global);
// All but the root, always: a name of exactly one component gives the empty name.
VELCOREDATA_API QualifiedName MakeLocalName(QualifiedName && global);
VELCOREDATA_API FieldName MakeLocalName(FieldName && global);
// All but the root, always, with the root stored; a name without components clears `dataSource`.
VELCOREDATA_API QualifiedName MakeLocalName(QualifiedName const & global, TString & dataSource);
VELCOREDATA_API FieldName MakeLocalName(FieldName const & global, TString & dataSource);
// The copying form for each name. In a set, names that become equal are one.
VELCOREDATA_API std::set<FieldName> MakeLocalNames(std::set<FieldName> const & globals);
VELCOREDATA_API std::vector<FieldName> MakeLocalNames(std::vector<FieldName> const & globals);

// The name with one more leaf.
VELCOREDATA_API QualifiedName PushValue(QualifiedName const & name, TString const & value);
VELCOREDATA_API FieldName PushValue(FieldName const & name, TString const & value);
// The name with another root. Raises "name.GetNumberOfComponents() > 0", "LogicException_LogicAssert_0xA754925D".
VELCOREDATA_API QualifiedName ReplaceRoot(QualifiedName const & name, TString const & value);
VELCOREDATA_API FieldName ReplaceRoot(FieldName const & name, TString const & value);
// The name with another leaf. Raises the same text with "LogicException_LogicAssert_0x2EC106E1".
VELCOREDATA_API QualifiedName ReplaceValue(QualifiedName const & name, TString const & value);
VELCOREDATA_API FieldName ReplaceValue(FieldName const & name, TString const & value);

// The copying form of MakeLocalName for each name. Raises "dataSourceName == field.GetDataSourceName()",
// "LogicException_LogicAssert_0xBAE9C013", for a name with another root, and as GetRootValue for one without
// components.
VELCOREDATA_API std::set<LocalFieldName> MakeLocalFieldNameSetFromGlobalVec(TString const & dataSourceName,
                                                                            std::vector<FieldName> const & fields);
// Each name as it is.
VELCOREDATA_API std::set<LocalFieldName> MakeLocalFieldNameSetFromLocalSet(std::set<FieldName> const & fields);
