// InputFile: a file that can be read twice.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "typedtable/ByteSource.h"

namespace typedtable {

/// A file by path, or standard input for the path "-". What cannot be read twice by itself (a pipe, a terminal, a
/// device) is copied to a nameless temporary file as it is read, so that memory stays bounded whatever its length.
class InputFile : public ByteSource
{
public:
    enum class Readings
    {
        Once,
        Twice
    };

    /// Throws UserError "PATH: No such file or directory" and the like if the file cannot be opened or is a folder.
    InputFile(std::string const & path, Readings readings);

    std::size_t Read(char * bytes, std::size_t size) override;

    /// Goes back to the first byte for the second reading, once the first one came to the end.
    void Rewind();

    /// The path as given; "standard input" for "-".
    std::string const & GetName() const noexcept { return m_name; }

    /// The data source that a qualified name of a column names: the name without folders and without its last ending,
    /// "weather" for data/weather.csv; "stdin" for "-".
    std::string const & GetDataSourceName() const noexcept { return m_source; }

private:
    struct Closer
    {
        void operator()(std::FILE * file) const noexcept { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    std::string m_name;
    std::string m_source;
    File m_file;
    File m_copy;  // of what is read, where the file itself has no second reading
};

}  // namespace typedtable
