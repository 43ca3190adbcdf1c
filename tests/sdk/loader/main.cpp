// loader PLUGIN OUT: loads the plug-in, asks it for its one protocol and generates with it.
#include <core/idecore.h>
#include <serdesip/baseprotocol.h>
#include <serdesip/protocolpackage.h>
#include <serdesip/serdes.h>

#include <QApplication>
#include <QDir>
#include <QPluginLoader>

#include <cstdio>
#include <memory>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: loader PLUGIN OUT\n", stderr);
        return 2;
    }
    QPluginLoader loader(QFile::decodeName(argv[1]));
    auto* package = qobject_cast<IPSERDESIP::ProtocolPackage*>(loader.instance());
    if (package == nullptr) {
        std::fprintf(stderr, "no package: %s\n", qPrintable(loader.errorString()));
        return 1;
    }
    const QList<IPSERDESIP::BaseProtocol*> protocols = package->protocols();
    if (protocols.size() != 1) {
        std::fprintf(stderr, "%d protocols\n", int(protocols.size()));
        return 1;
    }
    const std::unique_ptr<IPSERDESIP::BaseProtocol> model(protocols.first());

    const DEV::DeviceArg device("some-id", "RZ7X-60B");
    Core::IdeCore::setDeviceDataBase(DEV::DeviceDb(QList<DEV::DeviceArg>{device}));
    const QString out = QFile::decodeName(argv[2]);
    QDir().mkpath(out);
    IPSERDESIP::serdes::instance()->openProject(device, out, {});
    QStringList script;
    QStringList options;
    QString text;
    const IPSERDESIP::ConfigMap config{
        {"target_device", "some-id"}, {"file", "sdk"}, {"module", "Sdk"}, {"Q0_LN0", true},
        {"TX_RATE", "5"},
    };
    if (!model->generate(config, script, QString(), options, text, false)) {
        std::fputs("generate() is false\n", stderr);
        return 1;
    }
    if (!script.contains("q0_ln0_tx_rate 5") || !options.contains("-SdkQ0Lane0 true")) {
        std::fputs("the generated lines are not the configuration's\n", stderr);
        return 1;
    }
    std::printf("one protocol: %s\n", qPrintable(model->id()));
    return 0;
}
