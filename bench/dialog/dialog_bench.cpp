// The dialog of the plug-in: how long it takes to come up beside a bare one, and what one action of
// the user costs beside one full repaint.

#include "../serdesip/ratio.h"
#include "forms.h"

#include <core/idecore.h>
#include <dev/devicedb.h>
#include <ipcore/ipcore.h>
#include <serdesip/baseprotocol.h>
#include <serdesip/protocolgendlg.h>
#include <serdesip/protocolpackage.h>
#include <serdesip/serdes.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace {

using IPSERDESIP::protocolGenDlg;
using Act = std::function<void(protocolGenDlg*)>;

/// The same frame and the same five forms, and not one rule.
class BareDialog : public protocolGenDlg {
public:
    BareDialog() {
        addPage(m_tab1, "Channel,Line Rate,Refclk Selection");
        addPage(m_tab2, "Data Width,Encoding,RX Word Alignment");
        addPage(m_tab3, "Channel Bonding");
        addPage(m_tab4, "RX Clock Correction");
        addPage(m_tab5, "AFE");
    }

private:
    template <typename Form>
    void addPage(Form& form, const char* title) {
        auto* page = new QWidget(this);
        form.setupUi(page);
        uiAddTab(page, QString::fromLatin1(title));
    }

    IPCUSTOMIZED::customized_tab1 m_tab1;
    IPCUSTOMIZED::customized_tab2 m_tab2;
    IPCUSTOMIZED::customized_tab3 m_tab3;
    IPCUSTOMIZED::customized_tab4 m_tab4;
    IPCUSTOMIZED::customized_tab5 m_tab5;
};

/// Acts on the next dialog once its first frame has been painted, then closes it.
class FirstFrame : public QObject {
public:
    explicit FirstFrame(Act act)
        : m_act(std::move(act)) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = qobject_cast<protocolGenDlg*>(watched);
        if (event->type() == QEvent::Paint && dialog != nullptr && m_act) {
            // The event loop's next turn comes when the whole frame is done.
            QTimer::singleShot(0, dialog, [dialog, act = std::exchange(m_act, nullptr)] {
                act(dialog);
                dialog->reject();
            });
        }
        return false;
    }

private:
    Act m_act;
};

/// The processor time from the start to the first painted frame, seconds.
double opening(const std::function<void()>& open) {
    double painted = 0.0;
    FirstFrame watch([&](protocolGenDlg*) { painted = Bench::processorSeconds(); });
    const double start = Bench::processorSeconds();
    open();
    return painted - start;
}

void choose(const protocolGenDlg* dialog, const char* combo, const char* item) {
    auto* box = dialog->findChild<QComboBox*>(QLatin1String(combo));
    box->setCurrentIndex(box->findText(QLatin1String(item)));
}

void check(const protocolGenDlg* dialog, const char* box, bool on) {
    auto* button = dialog->findChild<QCheckBox*>(QLatin1String(box));
    if (button->isChecked() != on) {
        button->click();
    }
}

/// Eight lanes, and every option that adds to what a rule has to do.
void switchEverythingOn(const protocolGenDlg* dialog) {
    for (const char* box : {"q0_l0", "q0_l1", "q0_l2", "q0_l3", "q1_l0", "q1_l1", "q1_l2", "q1_l3",
                            "checkBoxDRPPort", "WordAlignment", "checkBoxTXChannelBoding"}) {
        check(dialog, box, true);
    }
    choose(dialog, "comboBoxRXChannelBoding", "Four Words");
    choose(dialog, "comboBoxClockCorrection", "Two Words");
    QCoreApplication::processEvents();
}

struct Results {
    Bench::Ratio calculate;
    Bench::Ratio worst;
    const char* worstName = "";
};

void measureActions(protocolGenDlg* dialog, Results* results) {
    switchEverythingOn(dialog);
    const std::vector<std::pair<const char*, std::function<void()>>> actions{
        {"a lane toggle", [&] { check(dialog, "q1_l3", false); }},
        {"a lane toggle", [&] { check(dialog, "q1_l3", true); }},
        {"Manual", [&] { choose(dialog, "comboBoxMode", "Manual"); }},
        {"a lane toggle in Manual", [&] { check(dialog, "q0_l0", false); }},
        {"a lane toggle in Manual", [&] { check(dialog, "q0_l0", true); }},
        {"Auto", [&] { choose(dialog, "comboBoxMode", "Auto"); }},
        {"another PLL", [&] { choose(dialog, "CombBoxPLLSelection", "QPLL0"); }},
        {"the former PLL", [&] { choose(dialog, "CombBoxPLLSelection", "CPLL"); }},
        {"no clock correction", [&] { choose(dialog, "comboBoxClockCorrection", "None"); }},
        {"clock correction", [&] { choose(dialog, "comboBoxClockCorrection", "Two Words"); }},
    };
    const auto fullRepaint = [&] { return Bench::seconds([&] { dialog->repaint(); }); };
    bool good = true;
    const auto calculate = [&] {
        QMetaObject::invokeMethod(dialog, "onButtonCalculateClicked", Qt::DirectConnection,
                                  Q_RETURN_ARG(bool, good), Q_ARG(bool, false));
    };
    std::map<const char*, double> best;
    double repaint = 1e9;
    for (int round = 0; round < 30; ++round) {
        for (const auto& [name, act] : actions) {
            const double taken = Bench::seconds(act);
            const auto known = best.emplace(name, taken).first;
            known->second = std::min(known->second, taken);
            QCoreApplication::processEvents();
        }
        repaint = std::min(repaint, fullRepaint());
        results->calculate.round(Bench::seconds(calculate), fullRepaint());
    }
    if (!good) {
        qFatal("Calculate fails: there is nothing to measure");
    }
    const auto worst = std::max_element(
        best.begin(), best.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    results->worstName = worst->first;
    results->worst.round(worst->second, repaint);
}

IPSERDESIP::ProtocolPackage* package() {
    static QPluginLoader loader(
        QStringLiteral(BUILD_DIR "/lib/ipgen/ip/customized/libcustomized.so"));
    auto* loaded = dynamic_cast<IPSERDESIP::ProtocolPackage*>(loader.instance());
    if (loaded == nullptr) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    return loaded;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QTemporaryDir folder;
    QString error;
    const DEV::DeviceDb db =
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    Core::IdeCore::setDeviceDataBase(db);
    const DEV::DeviceArg device = db.findDevice(QStringLiteral("RZ7X-138"));
    IPSERDESIP::serdes::instance()->openProject(device, folder.path(), {});
    IPCore::setOutputRoot(folder.path());
    package()->setPackageDir(QStringLiteral(SOURCE_DIR "/ip"));
    const std::unique_ptr<IPSERDESIP::BaseProtocol> model(package()->protocols().value(0));
    const QString name = QStringLiteral("link0");

    Bench::Ratio comingUp;
    for (int round = 0; round < 15; ++round) {
        const double ours = opening([&] { model->create(name, device); });
        const double bare = opening([&] {
            BareDialog dialog;
            dialog.setCreating(name, device);
            dialog.exec();
        });
        comingUp.round(ours, bare);
    }
    Results results;
    {
        // The whole quads are selected: no question stands in the way.
        FirstFrame watch([&](protocolGenDlg* dialog) { measureActions(dialog, &results); });
        model->create(name, device);
    }

    int status =
        comingUp.print("opening to the first frame / a bare dialog of the same forms", 1.5);
    const QByteArray worst =
        QByteArrayLiteral("worst single action (") + results.worstName + ") / one full repaint";
    status |= results.worst.print(worst.constData(), 1.0);
    status |= results.calculate.print("Calculate on eight lanes / one full repaint", 1.0);
    return status;
}
