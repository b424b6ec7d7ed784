// Values for the debugger printers to show; `shown` is where the debugger stops.
#include <vector>

#include "velcoredata/data/BinaryDataValue.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataValue.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velcoredata/data/Tuple.h"

namespace {

class NameBlock : public RefCntObject
{
public:
    explicit NameBlock(std::vector<TString> components) : m_components(std::move(components)) {}

private:
    unsigned m_hash = 0;
    std::vector<TString> m_components;
};

// Keeps an object where the debugger finds it.
template <class T>
void Keep(T const & value)
{
    asm volatile("" : : "r"(&value) : "memory");
}

}  // namespace

// Shaped like a name of the library: a counted pointer to a block with the components.
struct QualifiedName
{
    RefCntPtr<NameBlock, RefCntObject> m_block;
};

[[gnu::noinline]] void shown()
{
    asm volatile("");
}

int main()
{
    TString const text(u"caf\u00E9 \"x\"");
    TString const empty;
    TStringCore const core(u"core");
    DateTime const date(2021, 3, 4, 12, 34, 56, 0.5);
    DateTime const early = DateTime::FromValue(DateTime::minGregorianDate);
    DataValue const integer(-5);
    DataValue const real(1.5, 5, 2);
    DataValue const marker(DataValueTypes::All, DataType::Real);
    DataValue const none;
    DataValue const flag(true);
    DataValue const day(date, DataType::Date);
    DataValue const moment(date, DataType::DateTime);
    DataValue const clock(Time(3661000007ull), DataType::Time);
    DataValue const string(GetBinaryCollation(), u"text");
    DataValue const row(RefCntPtr<Tuple, RefCntObject>(new Tuple(std::vector<DataValue>{integer, string})));
    DataValue const binary(RefCntPtr<BinaryDataValue, RefCntObject>(new BinaryDataValue("\1a", 2)));
    QualifiedName const name{new NameBlock({u"schema", u"a]b"})};
    QualifiedName const noName{};
    Keep(text), Keep(empty), Keep(core), Keep(date), Keep(early), Keep(integer), Keep(real), Keep(marker), Keep(none);
    Keep(flag), Keep(day), Keep(moment), Keep(clock), Keep(string), Keep(row), Keep(binary), Keep(name), Keep(noName);
    shown();
    return 0;
}
