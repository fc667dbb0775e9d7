#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// Stands in for libFuzzer where the compiler has none: runs a fuzzer once over each file of a
// folder.
int main(int argc, char *argv[])
{
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qUtf8Printable(file.fileName()));
            return 1;
        }
        const QByteArray bytes = file.readAll();
        std::printf("%s\n", qUtf8Printable(name));
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                               static_cast<size_t>(bytes.size()));
    }
    std::printf("%d inputs\n", int(names.size()));
    return names.isEmpty() ? 1 : 0;
}
