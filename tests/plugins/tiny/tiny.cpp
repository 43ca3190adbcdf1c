// A complete small IP: one lane, a plain dialog, one generated file. Some of its configuration
// keys make it fail in the ways that a host must survive.
//   file, module          as in any IP
//   lane, rate            what it occupies
//   lines                 number of lines in the generated file
//   refuse, throw, crash  booleans

#include <core/idecore.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <serdesip/baseprotocol.h>
#include <serdesip/message.h>
#include <serdesip/protocolgendlg.h>
#include <serdesip/protocolpackage.h>
#include <serdesip/serdes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace {

using IPSERDESIP::ConfigMap;

class TinyDialog : public IPSERDESIP::protocolGenDlg {
public:
    TinyDialog(ConfigMap* config, QWidget* parent)
        : protocolGenDlg(parent)
        , m_config(config) {
        auto* page = new QWidget;
        auto* form = new QFormLayout(page);
        m_rate = add(form, new QLineEdit(QStringLiteral("1.25")), "lineRate", "Rate");
        m_rate->setValidator(new QDoubleValidator(0.1, 12.5, 3, m_rate));
        m_lane = add(form, new QComboBox, "comboLane", "Lane");
        m_lane->addItems({QStringLiteral("Q0 Lane0"), QStringLiteral("Q0 Lane1")});
        m_lines = add(form, new QSpinBox, "spinLines", "Lines");
        m_lines->setRange(1, 1000);
        m_refuse = add(form, new QCheckBox, "checkRefuse", "Refuse");
        auto* reset = add(form, new QPushButton(QStringLiteral("Reset")), "buttonReset", "Default");
        connect(reset, &QPushButton::clicked, this,
                [this] { m_rate->setText(QStringLiteral("1.25")); });
        uiSetLabelText(QStringLiteral("Tiny Link"));
        uiAddTab(page, QStringLiteral("Link"));
        uiSetFigurePins({{QStringLiteral("clk_i"), 0, false, Qt::AlignLeft},
                         {QStringLiteral("data_o[7:0]"), 1, true, Qt::AlignRight}});
    }

    void accept() override {
        const QStringList flaws = checkFileOptions();
        if (!flaws.isEmpty()) {
            showErrorMsg(flaws);
            return;
        }
        if (!checkFileExisting() || !checkModuleName()) {
            return;
        }
        *m_config = {{"type", "tiny"},
                     {"target_device", device().id()},
                     {"file", fileName()},
                     {"module", moduleName()},
                     {"rate", m_rate->text()},
                     {"lane", m_lane->currentText()},
                     {"lines", m_lines->value()},
                     {"refuse", m_refuse->isChecked()}};
        QDialog::accept();
    }

protected:
    bool loadConfig(const ConfigMap& config) override {
        m_rate->setText(config.value(QStringLiteral("rate")).toString());
        m_lane->setCurrentText(config.value(QStringLiteral("lane")).toString());
        m_lines->setValue(config.value(QStringLiteral("lines")).toInt());
        m_refuse->setChecked(config.value(QStringLiteral("refuse")).toBool());
        return config.value(QStringLiteral("type")).toString() == QLatin1String("tiny");
    }

private:
    template <class W>
    W* add(QFormLayout* form, W* widget, const char* name, const char* caption) {
        widget->setObjectName(QLatin1String(name));
        widget->setAccessibleName(QLatin1String(caption));
        form->addRow(QLatin1String(caption), widget);
        return widget;
    }

    ConfigMap* m_config;
    QLineEdit* m_rate;
    QComboBox* m_lane;
    QSpinBox* m_lines;
    QCheckBox* m_refuse;
};

class Tiny : public IPSERDESIP::BaseProtocol {
public:
    explicit Tiny(const QString& folder)
        : m_folder(folder) {}

    ConfigMap create(const QString& name, const DEV::DeviceArg& target) override {
        TinyDialog dialog(&m_config, Core::ViewManager::dialogParent());
        dialog.setCreating(name, target);
        return dialog.exec() == QDialog::Accepted ? m_config : ConfigMap();
    }

    ConfigMap open(const ConfigMap& config) override {
        TinyDialog dialog(&m_config, Core::ViewManager::dialogParent());
        return dialog.setOpening(config) && dialog.exec() == QDialog::Accepted ? m_config
                                                                               : ConfigMap();
    }

    IPSERDESIP::Message* resourceMessage(const ConfigMap& config) override {
        auto* message = new IPSERDESIP::Message;
        message->protocol = name();
        message->file = config.value(QStringLiteral("file")).toString();
        message->module = config.value(QStringLiteral("module")).toString();
        message->instance = message->file + QLatin1Char(':') + message->module;
        const QString lane = config.value(QStringLiteral("lane")).toString();
        if (!lane.isEmpty()) {
            message->lanes.append(lane);
            message->plls.append(QStringLiteral("Q0_QPLL0"));
        }
        message->txRate = config.value(QStringLiteral("rate")).toDouble();
        message->rxRate = message->txRate / 2;
        return message;
    }

    bool generate(const ConfigMap& config, QStringList& script, const QString& /*reserved*/,
                  QStringList& options, QString& text, bool runNetlist) override {
        const auto is = [&](const char* key) { return config.value(QLatin1String(key)).toBool(); };
        const QString module = config.value(QStringLiteral("module")).toString();
        script.append(QStringLiteral("tiny %1").arg(module));
        options.append(QStringLiteral("-%1 true").arg(module));
        if (is("crash")) {
            std::raise(SIGSEGV);
        }
        if (is("throw")) {
            throw std::runtime_error("thrown on purpose");
        }
        if (is("refuse")) {
            return false;
        }
        IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
        const QString folder = model->workingDir() + QLatin1Char('/') +
                               config.value(QStringLiteral("file")).toString() +
                               QStringLiteral("/temp/TINY");
        QStringList lines;
        for (int i = 0; i < config.value(QStringLiteral("lines")).toInt(); ++i) {
            lines.append(QStringLiteral("line %1 of %2 at %3")
                             .arg(QString::number(i), module,
                                  config.value(QStringLiteral("rate")).toString()));
        }
        lines.append(QStringLiteral("bias %1 on %2")
                         .arg(model->getData(QStringLiteral("Q0_BIAS")).toInt())
                         .arg(device().device()));
        std::printf("an IP may print what it likes\n");
        if (!IPCore::makeDirs(folder, name()) ||
            !IPCore::generateFile(folder + QStringLiteral("/tiny.txt"), lines, nullptr,
                                  QString()) ||
            !IPCore::generateFile(folder + QStringLiteral("/tiny.ini"), script, nullptr,
                                  QString())) {
            return false;
        }
        if (is("count")) {
            const QString key = QStringLiteral("TINY_RUNS");
            model->setData(key, model->getData(key).toInt() + 1);
        }
        text = runNetlist ? QStringLiteral("no netlist flow") : QString();
        return !runNetlist;
    }

    bool loadSpec() override {
        m_info = IPCore::processIPInfoSpec(m_folder + QStringLiteral("/tiny.ipspec"));
        return IPCore::checkCommonInfo(m_info);
    }
    QString version() override { return text("ipcore.version"); }
    QString id() override { return text("ipcore.id"); }
    QString name() override { return text("ipcore.name"); }
    QStringList category() override { return texts("ipcore.category"); }
    QString summary() override { return text("ipcore.doc.summary"); }
    bool isSupported(const DEV::DeviceArg& target) override {
        return IPCore::isSupported(target, texts("ipcore.device.unsupported"),
                                   texts("ipcore.device.supported"));
    }

private:
    QString text(const char* key) const { return m_info.value(QLatin1String(key)).toString(); }
    QStringList texts(const char* key) const {
        return m_info.value(QLatin1String(key)).toStringList();
    }

    QString m_folder;
    ConfigMap m_config;
    QMap<QString, QVariant> m_info;
};

} // namespace

class TinyPackage : public IPSERDESIP::ProtocolPackage {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "TEST.tiny/1.0")
    Q_INTERFACES(IPSERDESIP::ProtocolPackage)

public:
    QList<IPSERDESIP::BaseProtocol*> protocols() override {
        auto* model = new Tiny(packageDir());
        if (!model->loadSpec()) {
            delete model;
            return {};
        }
        return {model};
    }
};

#include "tiny.moc"
