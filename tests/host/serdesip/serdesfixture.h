#pragma once

#include <core/idecore.h>
#include <serdesip/serdes.h>

#include <QtTest>

/// The model on an empty project of one shipped device.
inline IPSERDESIP::serdes* openDevice(const char* id) {
    QString error;
    const auto db =
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    Core::IdeCore::setDeviceDataBase(db);
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    model->openProject(db.findDevice(QString::fromLatin1(id)), QStringLiteral("/nowhere"), {});
    return model;
}

/// Two lanes of quad 0 on QPLL1 at 10.3125 G from Q0 REFCLK1 at 156.25 MHz through Q0_MUX1.
inline IPSERDESIP::Message linkMessage() {
    IPSERDESIP::Message message;
    message.protocol = QStringLiteral("Link");
    message.instance = QStringLiteral("link:link_top");
    message.file = QStringLiteral("link");
    message.module = QStringLiteral("link_top");
    message.lanes = QStringList{QStringLiteral("Q0 Lane0"), QStringLiteral("Q0 Lane2")};
    message.laneResources =
        QStringList{QStringLiteral("Q0_LN0_LANE"), QStringLiteral("Q0_LN2_LANE")};
    message.plls = QStringList{QStringLiteral("Q0_QPLL1")};
    message.refClocks = QStringList{QStringLiteral("Q0_REFCLK1")};
    message.refFrequencies = {156.25};
    message.muxes = {{QStringLiteral("Q0_MUX1"), QStringLiteral("Q0_REFCLK1")},
                     {QStringLiteral("Q0_MUX0"), QString()}};
    message.txRate = message.rxRate = message.realTxRate = 10.3125;
    return message;
}
