#include "typedtable/InputFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "typedtable/UserError.h"

namespace typedtable {

namespace {

[[noreturn]] void ThrowSystemError(std::string const & what)
{
    throw UserError(what + ": " + std::strerror(errno));
}

}  // namespace

InputFile::InputFile(std::string const & path) : m_name(path == "-" ? "standard input" : path)
{
    if (path == "-") {
        // A descriptor of our own: standard input itself stays open.
        int const descriptor = dup(STDIN_FILENO);
        if (descriptor < 0)
            ThrowSystemError(m_name);
        m_file.reset(fdopen(descriptor, "rb"));
    } else {
        m_file.reset(std::fopen(path.c_str(), "rb"));
    }
    struct stat status;
    if (!m_file || fstat(fileno(m_file.get()), &status) != 0)
        ThrowSystemError(m_name);
    if (S_ISDIR(status.st_mode))
        throw UserError(m_name + ": is a folder, not a file");
    // Standard input may stand in the middle of a regular file, which is where the table begins.
    if (!S_ISREG(status.st_mode) || path == "-")
        CopyToTemporaryFile();
}

std::size_t InputFile::Read(char * bytes, std::size_t size)
{
    std::size_t const count = std::fread(bytes, 1, size, m_file.get());
    if (count == 0 && std::ferror(m_file.get()))
        ThrowSystemError(m_name);
    return count;
}

void InputFile::Rewind()
{
    if (std::fseek(m_file.get(), 0, SEEK_SET) != 0)
        ThrowSystemError(m_name);
}

void InputFile::CopyToTemporaryFile()
{
    File copy(std::tmpfile());
    if (!copy)
        ThrowSystemError("temporary file");
    std::array<char, 65536> bytes;
    while (std::size_t const count = Read(bytes.data(), bytes.size())) {
        if (std::fwrite(bytes.data(), 1, count, copy.get()) != count)
            ThrowSystemError("temporary file");
    }
    if (std::fflush(copy.get()) != 0)
        ThrowSystemError("temporary file");
    m_file = std::move(copy);
    Rewind();
}

}  // namespace typedtable
