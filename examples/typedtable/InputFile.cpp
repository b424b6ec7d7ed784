#include "typedtable/InputFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

namespace {

[[noreturn]] void ThrowSystemError(std::string const & what)
{
    throw UserError(what + ": " + std::strerror(errno));
}

}  // namespace

InputFile::InputFile(std::string const & path, Readings readings)
    : m_name(path == "-" ? Text("standard input") : path),
      m_source(path == "-" ? "stdin" : std::filesystem::path(path).stem().string())
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
        throw UserError(Text("%1: is a folder, not a file", m_name));
    // Standard input may stand in the middle of a regular file, which is where the table begins.
    if (readings == Readings::Twice && (!S_ISREG(status.st_mode) || path == "-")) {
        m_copy.reset(std::tmpfile());
        if (!m_copy)
            ThrowSystemError(Text("temporary file"));
    }
}

std::size_t InputFile::Read(char * bytes, std::size_t size)
{
    std::size_t const count = std::fread(bytes, 1, size, m_file.get());
    if (count == 0 && std::ferror(m_file.get()))
        ThrowSystemError(m_name);
    if (m_copy && std::fwrite(bytes, 1, count, m_copy.get()) != count)
        ThrowSystemError(Text("temporary file"));
    return count;
}

void InputFile::Rewind()
{
    if (m_copy) {
        if (std::fflush(m_copy.get()) != 0)
            ThrowSystemError(Text("temporary file"));
        m_file = std::move(m_copy);
    }
    if (std::fseek(m_file.get(), 0, SEEK_SET) != 0)
        ThrowSystemError(m_name);
}

}  // namespace typedtable
