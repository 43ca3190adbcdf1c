// Presets on the command line: every one on every device, listing, and what goes wrong.

#include "programrun.h"

#include <utils/jsontext.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QMap<QString, QStringList>& devicesByClass() {
    static const QMap<QString, QStringList> devices{
        {"60k", {"RZ7X-60B", "RZ7X-60ES"}},
        {"15k", {"RZ7X-15A", "RZ7XR-15A", "RZ7XR-15B", "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A"}},
        {"138k", {"RZ7X-138", "RZ7X-138B"}}};
    return devices;
}

QVariantList presetsIn(const ProgramRun& run) {
    return jsonOf(run.out).toMap().value(QStringLiteral("presets")).toList();
}

QStringList namesIn(const ProgramRun& run) {
    QStringList names;
    const QVariantList presets = presetsIn(run);
    for (const QVariant& preset : presets) {
        names.append(preset.toMap().value(QStringLiteral("name")).toString());
    }
    return names;
}

/// What a widget of a snapshot shows.
QString shown(const QVariantMap& widget) {
    if (widget.contains(QStringLiteral("items"))) {
        const int current = widget.value(QStringLiteral("current")).toInt();
        const QVariantList items = widget.value(QStringLiteral("items")).toList();
        return items.value(current).toList().value(0).toString();
    }
    for (const char* key : {"checked", "value"}) {
        if (widget.contains(QLatin1String(key))) {
            return widget.value(QLatin1String(key)).toString();
        }
    }
    return widget.value(QStringLiteral("text")).toString();
}

} // namespace

class PresetsCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyPresetOnEveryDevice_data();
    void everyPresetOnEveryDevice();
    void listed();
    void ofAnotherIp();
    void fromAFile();
    void settingsComeBehind();
    void beforeAScript();
    void ownPresets();
    void refusedField();
    void fieldsOwnSpelling();
    void damagedFiles();
    void unknown();

private:
    QString project(const QString& device);
    ProgramRun run(const QStringList& arguments, const QByteArray& input = {}) {
        return runIpgen(arguments, input);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void PresetsCommandTest::init() {
    m_dir = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", m_dir->filePath(QStringLiteral("data")).toUtf8());
}

QString PresetsCommandTest::project(const QString& device) {
    const QString folder = m_dir->filePath(QStringLiteral("project"));
    const ProgramRun made = run({"new", folder, "--device", device});
    return made.status == 0 ? folder : QString::fromUtf8(made.err);
}

void PresetsCommandTest::everyPresetOnEveryDevice_data() {
    QTest::addColumn<QVariantMap>("preset");
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("suits");
    init();
    const QVariantList presets = presetsIn(run({"presets", "--ip", "customized", "--json"}));
    QCOMPARE(presets.size(), 10);
    for (const QVariant& value : presets) {
        const QVariantMap preset = value.toMap();
        for (auto it = devicesByClass().begin(); it != devicesByClass().end(); ++it) {
            for (const QString& device : it.value()) {
                const QString row =
                    preset.value(QStringLiteral("name")).toString() + QLatin1String(", ") + device;
                QTest::newRow(qPrintable(row))
                    << preset << device
                    << preset.value(QStringLiteral("devices")).toStringList().contains(it.key());
            }
        }
    }
}

void PresetsCommandTest::everyPresetOnEveryDevice() {
    QFETCH(QVariantMap, preset);
    QFETCH(QString, device);
    QFETCH(bool, suits);
    const QString name = preset.value(QStringLiteral("name")).toString();
    const QString folder = project(device);
    const ProgramRun created =
        run({"create", folder, "link0", "--ip", "customized", "--preset", name});
    const QStringList offered = namesIn(run({"presets", "--device", device, "--json"}));
    QCOMPARE(offered.contains(name), suits);
    if (!suits) {
        QCOMPARE(created.status, 1);
        QVERIFY2(
            created.err.contains(("is for " + preset.value("devices").toStringList().join(", ") +
                                  ", not for " + device)
                                     .toUtf8()),
            created.err);
        return;
    }
    QCOMPARE(created.err, QByteArray());
    QCOMPARE(created.status, 0);
    const ProgramRun generated = run({"generate", folder});
    QVERIFY2(generated.status == 0, generated.err);
    const ProgramRun opened = run({"open", folder, "link0", "--script", "-", "--report", "-"},
                                  "[{\"state\": \"s\"}, {\"cancel\": true}]");
    QCOMPARE(opened.status, 0);
    const QVariantMap state = jsonOf(opened.out).toMap().value("states").toMap().value("s").toMap();
    QMap<QString, QString> wanted; // of several settings of one field the last counts
    const QVariantList steps = preset.value(QStringLiteral("steps")).toList();
    for (const QVariant& step : steps) {
        wanted.insert(step.toMap().value("set").toString(), step.toMap().value("to").toString());
    }
    QVERIFY(wanted.size() >= 5);
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        QVERIFY2(state.contains(it.key()), qPrintable(it.key()));
        QCOMPARE(it.key() + shown(state.value(it.key()).toMap()), it.key() + it.value());
    }
}

void PresetsCommandTest::listed() {
    const ProgramRun text = run({"presets", "--ip", "tiny"});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.out, QByteArray("ip    name   devices       summary\n"
                                  "tiny  Quick  RZ7X-15A 60k  A fast lane.\n"));
    QCOMPARE(namesIn(run({"presets", "--json"})).size(), 11);
    QCOMPARE(namesIn(run({"presets", "--json", "--device", "RZ7X-138"})).size(), 4);
    QCOMPARE(run({"presets", "--ip", "nobody"}).status, 1);
    QCOMPARE(run({"presets", "--device", "nothing"}).status, 1);
}

void PresetsCommandTest::ofAnotherIp() {
    const QString folder = project(QStringLiteral("RZ7X-60B"));
    const ProgramRun made =
        run({"create", folder, "t", "--ip", "tiny", "--preset", "quick", "--report", "-"});
    QCOMPARE(made.status, 0);
    const QVariantMap config = jsonOf(made.out).toMap().value("config").toMap();
    QCOMPARE(config.value("rate"), QVariant("5"));
    QCOMPARE(config.value("lane"), QVariant("Q0 Lane1"));
    QCOMPARE(config.value("lines"), QVariant(3));
}

void PresetsCommandTest::fromAFile() {
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const QString file = m_dir->filePath(QStringLiteral("p.json"));
    writeFile(file, "{\"format\": 1, \"name\": \"F\", \"summary\": \"\", \"devices\": [\"*\"], "
                    "\"steps\": [{\"set\": \"tab1/lineRate\", \"to\": \"3\"}]}");
    const ProgramRun made =
        run({"create", folder, "t", "--ip", "tiny", "--preset", file, "--report", "-"});
    QCOMPARE(made.status, 0);
    QCOMPARE(jsonOf(made.out).toMap().value("config").toMap().value("rate"), QVariant("3"));
}

void PresetsCommandTest::settingsComeBehind() {
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const ProgramRun made = run({"create", folder, "t", "--ip", "tiny", "--set", "tab1/lineRate=2",
                                 "--preset", "Quick", "--report", "-"});
    QCOMPARE(made.status, 0);
    const QVariantMap config = jsonOf(made.out).toMap().value("config").toMap();
    QCOMPARE(config.value("rate"), QVariant("2"));
    QCOMPARE(config.value("lines"), QVariant(3));
}

void PresetsCommandTest::beforeAScript() {
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const ProgramRun made = run({"create", folder, "t", "--ip", "tiny", "--script", "-", "--preset",
                                 "Quick", "--report", "-"},
                                "[{\"state\": \"s\"}, {\"cancel\": true}]");
    QCOMPARE(made.status, 0);
    const QVariantMap state = jsonOf(made.out).toMap().value("states").toMap().value("s").toMap();
    QCOMPARE(state.value("tab1/lineRate").toMap().value("text"), QVariant("5"));
}

/// The user's stand in front of the IP's, each IP's in its own folder.
void PresetsCommandTest::ownPresets() {
    const QString own = m_dir->filePath(QStringLiteral("data/ipgen/presets/tiny"));
    QVERIFY(QDir().mkpath(own));
    writeFile(own + "/x.json",
              "{\"format\": 1, \"name\": \"Quick\", \"summary\": \"\", \"devices\": [\"*\"], "
              "\"steps\": [{\"set\": \"tab1/lineRate\", \"to\": \"4\"}]}");
    QCOMPARE(namesIn(run({"presets", "--ip", "tiny", "--json"})), QStringList({"Quick", "Quick"}));
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const ProgramRun made =
        run({"create", folder, "t", "--ip", "tiny", "--preset", "Quick", "--report", "-"});
    QCOMPARE(jsonOf(made.out).toMap().value("config").toMap().value("rate"), QVariant("4"));
    QCOMPARE(namesIn(run({"presets", "--ip", "customized", "--json"})).size(), 10);
}

/// What a rule or a field refuses is named, and nothing is saved.
void PresetsCommandTest::refusedField() {
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const QByteArray before = contentOf(folder + "/project.json");
    const QString file = m_dir->filePath(QStringLiteral("p.json"));
    writeFile(file, "{\"format\": 1, \"name\": \"F\", \"summary\": \"\", \"devices\": [\"*\"], "
                    "\"steps\": [{\"set\": \"tab1/lineRate\", \"to\": \"3\"},"
                    "{\"set\": \"tab1/comboLane\", \"to\": \"Q7\"},"
                    "{\"set\": \"tab1/gone\", \"to\": true}]}");
    const ProgramRun made = run({"create", folder, "t", "--ip", "tiny", "--preset", file});
    QCOMPARE(made.status, 1);
    QCOMPARE(
        made.err,
        QByteArray("ipgen: t: step 1 (preset F): tab1/comboLane: it has no item \"Q7\"; it "
                   "has \"Q0 Lane0\", \"Q0 Lane1\"; tab1/gone: tab 1 has no object \"gone\"\n"));
    QCOMPARE(contentOf(folder + "/project.json"), before);
}

/// A field that spells what is typed in its own way has taken it; one that makes another value of
/// it has not.
void PresetsCommandTest::fieldsOwnSpelling() {
    const QString folder = project(QStringLiteral("RZ7X-60B"));
    const QString file = m_dir->filePath(QStringLiteral("p.json"));
    const QByteArray bonded =
        "{\"format\": 1, \"name\": \"F\", \"summary\": \"\", \"devices\": [\"*\"], \"steps\": ["
        "{\"set\": \"tab1/q0_l0\", \"to\": true}, {\"set\": \"tab1/q0_l1\", \"to\": true},"
        "{\"set\": \"tab3/comboBoxRXChannelBoding\", \"to\": \"One Word\"},"
        "{\"set\": \"tab3/lineEditPattern0\", \"to\": \"bc\"}";
    writeFile(file, bonded + "]}");
    const ProgramRun made = run({"create", folder, "a", "--ip", "customized", "--preset", file,
                                 "--script", "-", "--report", "-"},
                                "[{\"state\": \"s\"}, {\"cancel\": true}]");
    QCOMPARE(made.err, QByteArray());
    QCOMPARE(made.status, 0);
    const QVariantMap state = jsonOf(made.out).toMap().value("states").toMap().value("s").toMap();
    QCOMPARE(shown(state.value("tab3/lineEditPattern0").toMap()), QStringLiteral("BC"));

    writeFile(file, bonded + ", {\"set\": \"tab1/TXLineRate\", \"to\": \"1.250\"}]}");
    const ProgramRun spelt = run({"create", folder, "a", "--ip", "customized", "--preset", file,
                                  "--script", "-", "--report", "-"},
                                 "[{\"state\": \"s\"}, {\"cancel\": true}]");
    const QVariantMap rates = jsonOf(spelt.out).toMap().value("states").toMap().value("s").toMap();
    QCOMPARE(shown(rates.value("tab1/TXLineRate").toMap()), QStringLiteral("1.250"));

    writeFile(file, bonded + ", {\"set\": \"tab1/TXLineRate\", \"to\": \"99\"}]}");
    const ProgramRun refused = run({"create", folder, "b", "--ip", "customized", "--preset", file});
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.err.contains("tab1/TXLineRate: a rule makes it"), refused.err);
}

void PresetsCommandTest::damagedFiles() {
    const QString own = m_dir->filePath(QStringLiteral("data/ipgen/presets/tiny"));
    QVERIFY(QDir().mkpath(own));
    const QString file = own + "/broken.json";
    writeFile(file, "{\"format\": 1,\n \"nam\": 2}");
    const ProgramRun listed = run({"presets", "--ip", "tiny", "--json"});
    QCOMPARE(listed.status, 3);
    QCOMPARE(namesIn(listed), QStringList{"Quick"});
    QCOMPARE(listed.err, ("ipgen: " + file + ": line 2, column 2: unknown key \"nam\"\n").toUtf8());
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    QCOMPARE(run({"create", folder, "t", "--ip", "tiny", "--preset", "Quick"}).status, 0);
    const ProgramRun direct = run({"create", folder, "u", "--ip", "tiny", "--preset", file});
    QCOMPARE(direct.status, 3);
    QCOMPARE(direct.err, listed.err);
}

void PresetsCommandTest::unknown() {
    const QString folder = project(QStringLiteral("RZ7X-15A"));
    const ProgramRun made = run({"create", folder, "t", "--ip", "tiny", "--preset", "Slow"});
    QCOMPARE(made.status, 1);
    QCOMPARE(made.err, QByteArray("ipgen: preset \"Slow\": there is none of this name; there are "
                                  "\"Quick\"\n"));
    QCOMPARE(run({"create", folder, "t", "--ip", "tiny", "--preset", "/no/such.json"}).status, 3);
}

QTEST_GUILESS_MAIN(PresetsCommandTest)
#include "presets_test.moc"
