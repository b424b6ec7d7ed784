#include "tests/support/ResourceBuilder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include "velcoreplatform/CorePlatformOptions.h"

namespace test_support {

namespace {

void WriteFile(QString const & path, std::string const & bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0)
        throw std::runtime_error("cannot write " + path.toStdString());
}

std::string ReadFile(QString const & path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll().toStdString();
}

void Run(std::string const & command)
{
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
}

}  // namespace

ResourceFolder::ResourceFolder()
    : m_workingBefore(QDir::currentPath().toStdString()), m_applicationBefore(CorePlatformOptions::GetApplicationDir())
{
    QDir(m_folder.path()).mkpath(QStringLiteral("work"));
    QDir(m_folder.path()).mkpath(QStringLiteral("app"));
    QDir::setCurrent(m_folder.filePath(QStringLiteral("work")));
    CorePlatformOptions::SetApplicationDir(TString::fromStdString(PathOf("app")));
}

ResourceFolder::~ResourceFolder()
{
    QDir::setCurrent(QString::fromStdString(m_workingBefore));
    CorePlatformOptions::SetApplicationDir(m_applicationBefore);
}

std::string ResourceFolder::PathOf(std::string const & relative) const
{
    return m_folder.filePath(QString::fromStdString(relative)).toStdString();
}

void ResourceFolder::Write(std::string const & relative, std::string const & bytes) const
{
    WriteFile(QString::fromStdString(PathOf(relative)), bytes);
}

void ResourceFolder::Remove(std::string const & relative) const
{
    QFile::remove(QString::fromStdString(PathOf(relative)));
}

void ResourceFolder::Pack(std::string const & relative, std::map<std::string, std::string> const & resources) const
{
    Write(relative, PackedResources(resources));
}

std::string PackedResources(std::map<std::string, std::string> const & resources)
{
    QTemporaryDir const folder;
    std::string list = "<RCC><qresource prefix=\"/\">";
    int number = 0;
    for (auto const & [name, bytes] : resources) {
        std::string const file = std::to_string(number++);
        WriteFile(folder.filePath(QString::fromStdString(file)), bytes);
        list.append("<file alias=\"").append(name).append("\">").append(file).append("</file>");
    }
    WriteFile(folder.filePath(QStringLiteral("list.qrc")), list + "</qresource></RCC>");
    std::string const path = folder.path().toStdString();
    Run(VELCOREDATA_RCC " --binary --no-compress --format-version 3 --output '" + path + "/made' '" + path +
        "/list.qrc'");
    return ReadFile(folder.filePath(QStringLiteral("made")));
}

std::string CompiledTranslation(std::vector<TranslatedText> const & texts)
{
    QTemporaryDir const folder;
    std::string list = "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\">";
    for (TranslatedText const & text : texts)
        list.append("<context><name>")
            .append(text.context)
            .append("</name><message><source>")
            .append(text.source)
            .append("</source><translation>")
            .append(text.translation)
            .append("</translation></message></context>");
    WriteFile(folder.filePath(QStringLiteral("texts.ts")), list + "</TS>");
    std::string const path = folder.path().toStdString();
    Run(VELCOREDATA_LRELEASE " -silent '" + path + "/texts.ts' -qm '" + path + "/made'");
    return ReadFile(folder.filePath(QStringLiteral("made")));
}

}  // namespace test_support
