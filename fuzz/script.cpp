// Whatever the script: the generator ends, and a refusal leaves no file.

#include "fuzz.h"

#include <core/idecore.h>
#include <serdesip/generator.h>
#include <serdesip/serdes.h>

#include <QFile>
#include <QTemporaryDir>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    static const bool ready = [] {
        QString error;
        const auto db =
            DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
        require(error.isEmpty(), "the device database is good");
        Core::IdeCore::setDeviceDataBase(db);
        IPSERDESIP::serdes::instance()->openProject(db.findDevice(QStringLiteral("RZ7X-138")),
                                                    folder.path(), {});
        return true;
    }();
    require(ready, "the project is open");

    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString file = folder.filePath(QStringLiteral("fuzz.csr"));
    QFile::remove(file);
    IPSERDESIP::generator generator;
    QStringList messages;
    const bool done =
        generator.generate(QString::fromUtf8(text).split(QLatin1Char('\n')), file, messages);
    require(done == QFile::exists(file), "a file stands exactly after a success");
    require(!done || messages.isEmpty(), "a success has no error");
    return 0;
}
