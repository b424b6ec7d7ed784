// typedtable: types the columns of a CSV file, and sorts, filters and sums up its rows. See README.md.

#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "typedtable/CastReport.h"
#include "typedtable/DateChoice.h"
#include "typedtable/DateColumns.h"
#include "typedtable/DatePrinting.h"
#include "typedtable/InputFile.h"
#include "typedtable/Options.h"
#include "typedtable/Progress.h"
#include "typedtable/Schema.h"
#include "typedtable/Texts.h"
#include "typedtable/TypedReader.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoreplatform/TLog.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace typedtable {
namespace {

constexpr int kBadInput = 2;

// What the library would log, the user is told in one line.
class Silence : public TLog::Logger
{
public:
    bool IsEnabled(TLog::AnySeverity const &) override { return false; }
    void Log(TLog::Event const &, TLog::AnySeverity const &) override {}
};

std::unique_ptr<RowSink> MakeSink(Options const & options, Schema const & schema)
{
    Nulls const nulls = options.sqlNulls ? Nulls::Spread : Nulls::Skip;
    if (auto const * const listing = std::get_if<ListingRequest>(&options.task))
        return std::make_unique<Listing>(*listing, schema, options.sqlNulls);
    if (auto const * const summary = std::get_if<SummaryRequest>(&options.task))
        return std::make_unique<Summary>(*summary, schema, nulls);
    if (auto const * const distinct = std::get_if<DistinctRequest>(&options.task))
        return std::make_unique<Distinct>(*distinct, schema, nulls);
    return std::make_unique<GroupBy>(std::get<GroupByRequest>(options.task), schema, nulls);
}

Schema ReadTypes(Options const & options, InputFile & file, std::size_t firstRows)
{
    Schema schema = ReadSchema(file, firstRows, options.casts, file.GetDataSourceName());
    if (options.dates.datesIn)
        FindDates(file, schema, MakeLocale("--dates-in", *options.dates.datesIn));
    ApplyFormats(schema, options.formats);
    return schema;
}

void PrintRows(std::ostream & out, Options const & options, Collation const & collation, InputFile & file)
{
    Schema const schema = ReadTypes(options, file, 0);
    WarnOfDates(std::cerr, file.GetName(), schema);
    WarnOfOffences(std::cerr, file.GetName(), schema);
    auto const sink = MakeSink(options, schema);
    RowFilter const filter(options.filter, schema, collation, options.sqlNulls);
    std::vector<std::size_t> columns = sink->GetColumns();
    filter.AppendIndices(columns);
    file.Rewind();
    {
        TypedReader reader(file, schema, columns, collation);
        Progress progress(sink->GetDoing());
        while (reader.Next()) {
            if (filter.Matches(reader))
                sink->Add(reader);
            progress.CountRow();
        }
    }
    sink->Print(out);
}

void PrintFile(std::ostream & out, Options const & options)
{
    Collation const collation = MakeCollation(options.collation);
    auto const * const schema = std::get_if<SchemaRequest>(&options.task);
    DatePrinting const printing(options.dates);
    if (options.dates.datesIn)
        MakeLocale("--dates-in", *options.dates.datesIn);  // refused before the file is read
    bool const readsOnce = schema != nullptr && !options.dates.datesIn;
    InputFile file(options.file, readsOnce ? InputFile::Readings::Once : InputFile::Readings::Twice);
    try {
        if (schema)
            PrintSchema(out, file.GetName(), ReadTypes(options, file, schema->rows));
        else
            PrintRows(out, options, collation, file);
    } catch (TableError const & error) {
        throw UserError(file.GetName() + ": " + error.what());
    }
}

void Run(std::vector<std::string> const & arguments)
{
    std::optional<LanguageScope> language;
    if (auto const name = FindLanguage(arguments))
        language.emplace(*name);
    Options const options = ReadOptions(arguments);
    if (language && !language->GetMissing().empty())
        std::cerr << "typedtable: there are no texts in " << language->GetMissing() << "; these are in English\n";
    if (std::holds_alternative<HelpRequest>(options.task))
        std::cout << kUsage;
    else if (auto const * const explain = std::get_if<ExplainRequest>(&options.task))
        ExplainCollation(std::cout, explain->collation);
    else if (auto const * const locales = std::get_if<LocalesRequest>(&options.task))
        PrintLocales(std::cout, *locales);
    else if (auto const * const order = std::get_if<DateOrderRequest>(&options.task))
        PrintDateOrder(std::cout, *order);
    else
        PrintFile(std::cout, options);
    if (!std::cout.flush())
        throw UserError(Text("standard output cannot be written"));
}

int Fail(std::string const & message)
{
    std::cerr << "typedtable: " << OnOneLine(message) << '\n';
    return kBadInput;
}

int Main(int argc, char ** argv)
{
    static Silence silence;
    TLog::Logger::Replace(&silence);
    try {
        Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
        return 0;
    } catch (std::exception const & error) {
        return Fail(error.what());
    } catch (VeltriaException const & error) {
        return Fail(TString(error.GetConcatenatedMessages()).toStdString());
    }
}

}  // namespace
}  // namespace typedtable

int main(int argc, char ** argv)
{
    return typedtable::Main(argc, argv);
}
