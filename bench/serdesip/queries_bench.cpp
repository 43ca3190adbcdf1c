// What a toggled lane asks the resource model, with 10,000 instances in it against one.
#include "ratio.h"

#include <core/idecore.h>
#include <serdesip/serdes.h>

#include <utility>

using namespace IPSERDESIP;

namespace {

constexpr int manyInstances = 10000;
constexpr int rounds = 15;
constexpr int toggles = 2000;

Message wholeDevice(const DEV::DeviceInfo& device) {
    Message message;
    message.lanes = device.laneCaptions();
    message.plls = device.pllNames();
    message.refClocks = device.pins;
    for (int i = 0; i < device.pins.size(); ++i) {
        message.refFrequencies.append(156.25);
    }
    for (const DEV::Multiplexer& mux : device.multiplexers) {
        message.muxes.insert(mux.name, mux.sources.first());
    }
    message.txRate = message.rxRate = message.realTxRate = 10.3125;
    return message;
}

void fill(const DEV::DeviceArg& device, int instances) {
    serdes* model = serdes::instance();
    model->openProject(device, QString(), {{QStringLiteral("Q0_BIAS"), 7}});
    const Message message = wholeDevice(*model->deviceInfo());
    for (int i = 0; i < instances; ++i) {
        model->setMessage(QStringLiteral("link%1").arg(i), message);
    }
    model->setEditing(QStringLiteral("link0"));
}

/// The queries of one toggle; the result keeps them from being left out.
int toggle(const DEV::DeviceInfo& device) {
    const serdes* model = serdes::instance();
    int sum = model->notOccupiedLanes().size();
    const QString pll = QStringLiteral("Q0_QPLL1");
    sum += model->checkPllEnable(pll) ? model->getMessageByPLL(pll).size() : 0;
    for (const DEV::Multiplexer& mux : device.multiplexers) {
        if (!model->instanceEnable(mux.name)) {
            continue;
        }
        const auto* held = dynamic_cast<MUX*>(model->allInstance().value(mux.name));
        sum += held != nullptr && model->findRefsource(held->point()) != nullptr ? 1 : 0;
        sum += int(model->getFreqByRefsrc(QStringLiteral("Q0 REFCLK0")));
    }
    sum += model->globalData().size() + model->getData(QStringLiteral("Q0_BIAS")).toInt();
    return sum;
}

double measure(const DEV::DeviceInfo& device, int* sum) {
    *sum += toggle(device);
    return Bench::seconds([&] {
        for (int i = 0; i < toggles; ++i) {
            *sum += toggle(device);
        }
    });
}

} // namespace

int main() {
    QString error;
    const auto db =
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    Core::IdeCore::setDeviceDataBase(db);
    const DEV::DeviceArg device = db.findDevice(QStringLiteral("RZ7X-60B"));
    const DEV::DeviceInfo info = *db.info(device);
    Bench::Ratio ratio;
    int sum = 0;
    for (int i = 0; i < rounds; ++i) {
        fill(device, 2); // one beside the instance that is being edited
        const double one = measure(info, &sum);
        fill(device, manyInstances + 1);
        ratio.round(measure(info, &sum), one);
    }
    const int failed = ratio.print("a lane toggle's queries, 10,000 instances against one", 1.2);
    return sum > 0 ? failed : 1;
}
