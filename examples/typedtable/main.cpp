// typedtable: types the columns of a CSV file and groups its rows by a period of the calendar. See README.md.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "typedtable/GroupBy.h"
#include "typedtable/InputFile.h"
#include "typedtable/Options.h"
#include "typedtable/Progress.h"
#include "typedtable/Schema.h"
#include "typedtable/Table.h"
#include "typedtable/TypedReader.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace typedtable {
namespace {

constexpr int kBadInput = 2;

void PrintGroups(std::ostream & out, GroupByRequest const & request, Schema const & schema, InputFile & file)
{
    GroupBy groupBy(request, schema);
    file.Rewind();
    {
        TypedReader reader(file, schema, groupBy.GetColumns());
        Progress progress("grouped");
        while (reader.Next()) {
            groupBy.Add(reader);
            progress.CountRow();
        }
    }
    PrintTable(out, groupBy.GetResult());
    groupBy.PrintSpan(out);
}

void Run(std::vector<std::string> const & arguments)
{
    Options const options = ReadOptions(arguments);
    if (options.help) {
        std::cout << kUsage;
    } else {
        InputFile file(options.file, options.groupBy ? InputFile::Readings::Twice : InputFile::Readings::Once);
        try {
            Schema const schema = ReadSchema(file, options.rows);
            if (options.groupBy)
                PrintGroups(std::cout, *options.groupBy, schema, file);
            else
                PrintSchema(std::cout, file.GetName(), schema);
        } catch (TableError const & error) {
            throw UserError(file.GetName() + ": " + error.what());
        }
    }
    if (!std::cout.flush())
        throw UserError("standard output cannot be written");
}

int Fail(std::string const & message)
{
    std::cerr << "typedtable: " << OnOneLine(message) << '\n';
    return kBadInput;
}

int Main(int argc, char ** argv)
{
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
