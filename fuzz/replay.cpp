// Runs a fuzz target over the files of a folder, and over each of them cut short at every eighth.

#include "fuzz.h"

#include <QDir>
#include <QFile>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: replay FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    int inputs = 0;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()),
                         qPrintable(file.errorString()));
            return 1;
        }
        const QByteArray all = file.readAll();
        for (int eighth = 1; eighth <= 8; ++eighth) {
            const QByteArray input = all.left(all.size() * eighth / 8);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                                   static_cast<std::size_t>(input.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
