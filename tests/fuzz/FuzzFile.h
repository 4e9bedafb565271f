#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

namespace tambrelle::fuzz {

/// Ends the run with the input at hand.
inline void mustHold(bool condition) {
    if (!condition)
        std::abort();
}

/// A file with the fuzzer's bytes in it, in a folder of its own that is emptied for each input.
class FuzzFile final {
public:
    explicit FuzzFile(const char* name) : name(QString::fromLatin1(name)) {
        mustHold(parent.isValid());
        // For the toolkit's folders, should it ask for them.
        ::setenv("HOME", qPrintable(parent.path()), 1);
    }

    void write(std::span<const std::uint8_t> bytes) {
        QDir(folder()).removeRecursively();
        ++count;
        mustHold(QDir().mkpath(folder()));
        QFile file(path());
        mustHold(file.open(QIODevice::WriteOnly));
        file.write(static_cast<const char*>(static_cast<const void*>(bytes.data())),
                   static_cast<qint64>(bytes.size()));
    }

    [[nodiscard]] QString path() const { return folder() + QLatin1Char('/') + name; }

private:
    [[nodiscard]] QString folder() const { return parent.filePath(QString::number(count)); }

    QTemporaryDir parent{QStringLiteral("/dev/shm/tambrelle-fuzz-XXXXXX")};
    QString name;
    int count = 0;
};

} // namespace tambrelle::fuzz
