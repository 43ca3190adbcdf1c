// The netlist flow against the synthesis program alone: the same run of the program, on the same
// files with the same script, without the flow's copies, checks, log and replacement of files.
// Runs alternate, and the median of each side counts.

#include <serdesip/baseprotocol.h>
#include <serdesip/message.h>
#include <serdesip/netlist.h>
#include <serdesip/serdes.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

/// A protocol that only names a file and a module.
class NamedProtocol : public IPSERDESIP::BaseProtocol {
public:
    IPSERDESIP::ConfigMap create(const QString&, const DEV::DeviceArg&) override { return {}; }
    IPSERDESIP::ConfigMap open(const IPSERDESIP::ConfigMap&) override { return {}; }
    IPSERDESIP::Message* resourceMessage(const IPSERDESIP::ConfigMap&) override {
        auto* message = new IPSERDESIP::Message;
        message->file = QStringLiteral("link");
        message->module = QStringLiteral("Fabric8");
        return message;
    }
    bool generate(const IPSERDESIP::ConfigMap&, QStringList&, const QString&, QStringList&,
                  QString&, bool) override {
        return false;
    }
    bool loadSpec() override { return true; }
    QString version() override { return {}; }
    QString id() override { return {}; }
    QString name() override { return {}; }
    QStringList category() override { return {}; }
    QString summary() override { return {}; }
    bool isSupported(const DEV::DeviceArg&) override { return true; }
};

const QString data = QStringLiteral(SOURCE_DIR "/ip/data");
const QStringList rtl{QStringLiteral("customized_phy_wrapper.v"),
                      QStringLiteral("customized_phy.v")};

void copyInto(const QString& from, const QString& to) {
    for (const QFileInfo& file :
         QDir(from).entryInfoList({QStringLiteral("*.v"), QStringLiteral("*.vh")}, QDir::Files)) {
        QFile::copy(file.filePath(), to + QLatin1Char('/') + file.fileName());
    }
}

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// The flow's own steps, as a plain script.
const char* const script = "read_verilog -lib xcvr_primitives.v\n"
                           "read_verilog customized_phy_wrapper.v customized_phy.v\n"
                           "hierarchy -check -top Fabric8\nsynth -flatten -top Fabric8\n"
                           "check -assert\nwrite_json netlist.json\nwrite_verilog netlist.v\n";

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    const QString golden = QStringLiteral(SOURCE_DIR "/tests/golden/138k_eight_lanes/expected");
    QTemporaryDir project;
    const QString instance = project.filePath(QStringLiteral("link/temp/CUSTOMIZED"));
    QDir().mkpath(instance);
    copyInto(golden, instance);
    IPSERDESIP::serdes::instance()->openProject({}, project.path(), {});

    const QTemporaryDir plain;
    copyInto(data, plain.path());
    copyInto(QStringLiteral(SOURCE_DIR "/host/data/primitives"), plain.path());
    copyInto(golden, plain.path());
    QFile file(plain.filePath(QStringLiteral("plain.ys")));
    if (!file.open(QIODevice::WriteOnly) || file.write(script) < 0) {
        return 1;
    }
    file.close();

    NamedProtocol protocol;
    std::vector<double> flow;
    std::vector<double> alone;
    for (int i = 0; i < 11; ++i) {
        QElapsedTimer clock;
        clock.start();
        QString text;
        if (!IPSERDESIP::waitForRunSyntheSis({}, {}, {{QStringLiteral("ipcore.dir.data"), data}},
                                             rtl, QStringLiteral("CUSTOMIZED"), text, &protocol)) {
            std::fprintf(stderr, "netlist_bench: %s\n", qPrintable(text));
            return 1;
        }
        flow.push_back(static_cast<double>(clock.nsecsElapsed()));

        clock.restart();
        QProcess yosys;
        yosys.setWorkingDirectory(plain.path());
        yosys.start(QStringLiteral("yosys"),
                    {QStringLiteral("-q"), QStringLiteral("-l"), QStringLiteral("yosys.log"),
                     QStringLiteral("-s"), QStringLiteral("plain.ys")});
        if (!yosys.waitForFinished(-1) || yosys.exitCode() != 0) {
            std::fprintf(stderr, "netlist_bench: yosys failed by itself\n");
            return 1;
        }
        alone.push_back(static_cast<double>(clock.nsecsElapsed()));
    }
    constexpr double goal = 1.1;
    const double ratio = median(flow) / median(alone);
    std::printf("netlist flow of eight lanes against the synthesis program alone: ratio %.3f "
                "(goal at most %.1f, %s)\n",
                ratio, goal, ratio <= goal ? "met" : "MISSED");
    return 0;
}
