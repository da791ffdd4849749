// Runs a fuzz target over the inputs of its corpus.

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    const QDir corpus(QStringLiteral(VOK_CORPUS));
    int count = 0;
    for (const QString &name : corpus.entryList(QDir::Files)) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        printf("%s\n", qPrintable(name)); // the last one is at fault when this crashes
        fflush(stdout);
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                               size_t(input.size()));
        ++count;
    }
    printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
