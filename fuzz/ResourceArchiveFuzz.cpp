#include <QtCore/QDirIterator>
#include <QtCore/QResource>

#include "fuzz/support/FuzzText.h"
#include "main/core/ResourceArchive.h"

// The bytes of an archive. What is sound goes to Qt, which trusts every offset in it, and is walked to the last byte;
// a walk ends, for the directories are a tree.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (!detail::IsSoundArchive(data, size))
        return 0;
    QString const root = QStringLiteral("/fuzz");
    if (!QResource::registerResource(data, root))
        return 0;
    unsigned sum = 0;
    std::size_t found = 0;
    QDirIterator walk(QStringLiteral(":/fuzz"), QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QResource const resource(walk.next());
        if (resource.isValid() && resource.data() != nullptr) {
            for (qint64 i = 0; i < resource.size(); ++i)
                sum += resource.data()[i];
        }
        fuzz_support::Require(++found <= size, "no more resources than bytes");
    }
    // The sum keeps the reads.
    fuzz_support::Require(sum <= ~0u, "every byte is there");
    QResource::unregisterResource(data, root);
    return 0;
}
