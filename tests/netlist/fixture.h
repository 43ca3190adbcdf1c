#pragma once

#include <serdesip/baseprotocol.h>
#include <serdesip/message.h>
#include <serdesip/netlist.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// A protocol that only names a file and a module.
class NamedProtocol : public IPSERDESIP::BaseProtocol {
    Q_OBJECT

public:
    QString file = QStringLiteral("link");
    QString module;

    IPSERDESIP::ConfigMap create(const QString&, const DEV::DeviceArg&) override { return {}; }
    IPSERDESIP::ConfigMap open(const IPSERDESIP::ConfigMap&) override { return {}; }
    IPSERDESIP::Message* resourceMessage(const IPSERDESIP::ConfigMap&) override {
        auto* message = new IPSERDESIP::Message;
        message->file = file;
        message->module = module;
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

/// A project's working folder with one generated instance, and the flow run on it.
class NetlistCase {
public:
    /// @param golden  the folder below tests/golden whose define.vh and param.v are used
    explicit NetlistCase(const QString& golden) {
        IPSERDESIP::serdes::instance()->openProject({}, root.path(), {});
        QDir().mkpath(folder());
        const QString from =
            QStringLiteral(SOURCE_DIR "/tests/golden/") + golden + QStringLiteral("/expected/");
        for (const char* name : {"define.vh", "param.v"}) {
            QFile::copy(from + QLatin1String(name),
                        folder() + QLatin1Char('/') + QLatin1String(name));
        }
    }

    QString folder() const { return root.path() + QStringLiteral("/link/temp/CUSTOMIZED"); }
    QByteArray read(const QString& name) const {
        QByteArray bytes;
        Utils::readFile(folder() + QLatin1Char('/') + name, &bytes);
        return bytes;
    }
    void write(const QString& name, const QByteArray& bytes) const {
        QVERIFY(Utils::replaceFile(folder() + QLatin1Char('/') + name, bytes));
    }
    /// What stands in the instance's folder, hidden files included.
    QStringList files() const {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                        QDir::Name);
    }
    bool run(const QString& module) {
        protocol.module = module;
        return IPSERDESIP::waitForRunSyntheSis(
            {}, {{QStringLiteral("any"), 1}},
            {{QStringLiteral("ipcore.dir.data"), QStringLiteral(SOURCE_DIR "/ip/data")}},
            {QStringLiteral("customized_phy_wrapper.v"), QStringLiteral("customized_phy.v")},
            QStringLiteral("CUSTOMIZED"), text, &protocol);
    }

    QTemporaryDir root;
    NamedProtocol protocol;
    QString text;
};
