// InputFile: a file that can be read twice.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "typedtable/ByteSource.h"

namespace typedtable {

/// A file by path, or standard input for the path "-". What cannot be read twice (a pipe, a terminal, a device) is
/// first copied to a nameless temporary file, so that memory stays bounded whatever its length.
class InputFile : public ByteSource
{
public:
    /// Throws UserError "PATH: No such file or directory" and the like if the file cannot be opened or is a folder.
    explicit InputFile(std::string const & path);

    std::size_t Read(char * bytes, std::size_t size) override;

    /// The next Read begins at the first byte again.
    void Rewind();

    /// The path as given; "standard input" for "-".
    std::string const & GetName() const noexcept { return m_name; }

private:
    struct Closer
    {
        void operator()(std::FILE * file) const noexcept { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    void CopyToTemporaryFile();

    std::string m_name;
    File m_file;
};

}  // namespace typedtable
