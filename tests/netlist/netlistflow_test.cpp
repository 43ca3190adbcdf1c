// The netlist flow around the synthesis program: what it leaves, what it refuses, and that a
// failure of any kind leaves the former netlist.

#include "fixture.h"

#include <QElapsedTimer>
#include <QTimer>

#include <csignal>

using IPSERDESIP::NetlistRun;

namespace {

const QString golden = QStringLiteral("60k_one_lane");
const QString module = QStringLiteral("Link0");

/// A program that stands in for the synthesis program.
QString fakeProgram(const QTemporaryDir& folder, const QByteArray& body) {
    const QString path = folder.filePath(QStringLiteral("fake"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write("#!/bin/sh\n" + body);
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

/// A case that holds a former netlist, for the failures.
struct WithFormer : NetlistCase {
    WithFormer()
        : NetlistCase(golden) {
        write(QStringLiteral("Link0_netlist.v"), "former\n");
        write(QStringLiteral("Link0_netlist.json"), "former too\n");
    }
    void verifyUntouched() const {
        QCOMPARE(read(QStringLiteral("Link0_netlist.v")), QByteArray("former\n"));
        QCOMPARE(read(QStringLiteral("Link0_netlist.json")), QByteArray("former too\n"));
        // Nothing of the run is left but its log.
        for (const QString& file : files()) {
            QVERIFY2(!file.startsWith(QLatin1Char('.')), qPrintable(file));
        }
    }
};

} // namespace

class NetlistFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesANetlist();
    void optionsBecomeAttributes();
    void strangeOptionIsRefused();
    void hostileModuleName_data();
    void hostileModuleName();
    void hostileFileName_data();
    void hostileFileName();
    void ordinaryNamesPass();
    void missingProgram();
    void failingProgram();
    void killedProgram();
    void cancelled();
    void cancelledBeforeTheStart();
    void timeLimit();
    void truncatedNetlist();
    void fullDisk();
    void missingRtl();
    void secondRunAtOnce();
};

void NetlistFlowTest::leavesANetlist() {
    NetlistCase c(golden);
    NetlistRun run;
    QStringList steps;
    run.progress = [&](const NetlistRun::Progress& p) {
        steps.append(QStringLiteral("%1/%2 %3").arg(p.step).arg(p.steps).arg(p.what));
    };
    QVERIFY2(c.run(module), qPrintable(c.text));
    QCOMPARE(c.text, c.folder() + QStringLiteral("/Link0_netlist.v"));
    QVERIFY(c.read(QStringLiteral("Link0_netlist.v")).contains("module Link0("));
    QVERIFY(c.read(QStringLiteral("Link0_netlist.json")).contains("\"Link0\""));
    QVERIFY(!c.read(QStringLiteral("yosys.log")).isEmpty());
    QCOMPARE(c.files(), QStringList({QStringLiteral("Link0_netlist.json"),
                                     QStringLiteral("Link0_netlist.v"), QStringLiteral("define.vh"),
                                     QStringLiteral("param.v"), QStringLiteral("yosys.log")}));
    QCOMPARE(steps,
             QStringList({QStringLiteral("1/5 read the RTL"), QStringLiteral("2/5 elaborate"),
                          QStringLiteral("3/5 synthesise"), QStringLiteral("4/5 check"),
                          QStringLiteral("5/5 write the netlist")}));
    QCOMPARE(run.failure(), NetlistRun::Failure::None);
    QVERIFY(run.toolTime() > 0);
}

void NetlistFlowTest::optionsBecomeAttributes() {
    NetlistCase c(golden);
    const QStringList options{QStringLiteral("-Link0protocol_module_type customized"),
                              QStringLiteral("-Link0Q0Lane0 true")};
    NetlistRun run;
    run.options = &options;
    QVERIFY2(c.run(module), qPrintable(c.text));
    const QByteArray netlist = c.read(QStringLiteral("Link0_netlist.v"));
    QVERIFY(netlist.contains("(* protocol_module_type = \"customized\" *)"));
    QVERIFY(netlist.contains("(* Q0Lane0 = \"true\" *)"));
}

void NetlistFlowTest::strangeOptionIsRefused() {
    for (const char* line : {"-OtherKey true", "-Link0Key", "-Link0Key true; shell touch owned",
                             "-Link0Key \"x\"", "-Link0K;y true"}) {
        WithFormer c;
        const QStringList options{QLatin1String(line)};
        NetlistRun run;
        run.options = &options;
        QVERIFY(!c.run(module));
        QCOMPARE(run.failure(), NetlistRun::Failure::Refused);
        QVERIFY2(c.text.contains(QLatin1String(line)), qPrintable(c.text));
        c.verifyUntouched();
    }
}

void NetlistFlowTest::hostileModuleName_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* tag, const QString& name, const char* reason) {
        QTest::newRow(tag) << name << QString::fromLatin1(reason);
    };
    const char* const stranger = "is neither a letter, a digit nor \"_\"";
    row("empty", QString(), "the name is empty");
    row("keyword", QStringLiteral("module"), "the name is a keyword of Verilog");
    row("later keyword", QStringLiteral("logic"), "the name is a keyword of Verilog");
    row("blank", QStringLiteral("a b"), stranger);
    row("quote", QStringLiteral("a\"b"), stranger);
    row("semicolon", QStringLiteral("a;shell id"), stranger);
    row("dollar", QStringLiteral("a$b"), stranger);
    row("backtick", QStringLiteral("`MODULE_NAME"), stranger);
    row("newline", QStringLiteral("a\nshell id"), "the character 10 is neither");
    row("escaped", QStringLiteral("\\a "), stranger);
    row("digit first", QStringLiteral("9a"), "the name begins with a digit");
    row("letter of another script", QString(QChar(0xE9)), stranger);
    row("1 MB", QString(1 << 20, QLatin1Char('a')),
        "the name has 1048576 characters, more than 128");
}

void NetlistFlowTest::hostileModuleName() {
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QTemporaryDir tools;
    NetlistCase c(golden);
    NetlistRun run;
    run.program = fakeProgram(tools, "touch '" + tools.path().toLocal8Bit() + "/ran'\n");
    QVERIFY(!c.run(name));
    QCOMPARE(run.failure(), NetlistRun::Failure::Refused);
    QVERIFY2(c.text.startsWith(QStringLiteral("module name \"") + name.left(60)),
             qPrintable(c.text));
    QVERIFY2(c.text.contains(reason), qPrintable(c.text));
    QVERIFY(c.text.size() < 300);
    QVERIFY(!QFile::exists(tools.filePath(QStringLiteral("ran"))));
}

void NetlistFlowTest::hostileFileName_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("parent") << QStringLiteral("..");
    QTest::newRow("separator") << QStringLiteral("a/b");
    QTest::newRow("blank") << QStringLiteral("a b");
    QTest::newRow("option") << QStringLiteral("-rf");
    QTest::newRow("quote") << QStringLiteral("a'b");
    QTest::newRow("semicolon") << QStringLiteral("a;b");
    QTest::newRow("dollar") << QStringLiteral("$HOME");
    QTest::newRow("backtick") << QStringLiteral("`id`");
    QTest::newRow("newline") << QStringLiteral("a\nb");
    QTest::newRow("1 MB") << QString(1 << 20, QLatin1Char('a'));
}

void NetlistFlowTest::hostileFileName() {
    QFETCH(QString, name);
    QTemporaryDir tools;
    NetlistCase c(golden);
    NetlistRun run;
    run.program = fakeProgram(tools, "touch '" + tools.path().toLocal8Bit() + "/ran'\n");
    c.protocol.file = name;
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Refused);
    QVERIFY2(c.text.startsWith(QStringLiteral("file name \"") + name.left(60)), qPrintable(c.text));
    QVERIFY(!QFile::exists(tools.filePath(QStringLiteral("ran"))));
}

void NetlistFlowTest::ordinaryNamesPass() {
    for (const char* name : {"a", "_", "Link0", "Module", "end_", "customized_phy_top"}) {
        QCOMPARE(IPSERDESIP::moduleNameFlaw(QLatin1String(name)), QString());
    }
    for (const char* name : {"a", "7", "link-0.v", "_x"}) {
        QCOMPARE(IPSERDESIP::fileNameFlaw(QLatin1String(name)), QString());
    }
}

void NetlistFlowTest::missingProgram() {
    WithFormer c;
    NetlistRun run;
    run.program = QStringLiteral("/nowhere/yosys");
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Tool);
    QCOMPARE(c.text,
             QStringLiteral(
                 "the synthesis program \"/nowhere/yosys\" is not installed or cannot be run"));
    c.verifyUntouched();
}

// The real program, on RTL that it cannot read.
void NetlistFlowTest::failingProgram() {
    WithFormer c;
    c.write(QStringLiteral("param.v"), "parameter q0_ln0_tx_rate = ;\n");
    NetlistRun run;
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Tool);
    QVERIFY2(c.text.startsWith(QStringLiteral("yosys failed: param.v:1: ERROR: ")),
             qPrintable(c.text));
    QVERIFY(c.text.contains(c.folder() + QStringLiteral("/yosys.log")));
    QVERIFY(c.read(QStringLiteral("yosys.log")).contains("ERROR"));
    c.verifyUntouched();
}

void NetlistFlowTest::killedProgram() {
    QTemporaryDir tools;
    WithFormer c;
    NetlistRun run;
    run.program = fakeProgram(tools, "printf x > netlist.json\nkill -9 $$\n");
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Tool);
    QVERIFY2(c.text.startsWith(QStringLiteral("fake was killed or crashed")), qPrintable(c.text));
    c.verifyUntouched();
}

// A cancel ends what the program has started, too.
void NetlistFlowTest::cancelled() {
    QTemporaryDir tools;
    WithFormer c;
    NetlistRun run;
    const QString pidFile = tools.filePath(QStringLiteral("pid"));
    run.program = fakeProgram(tools, "sleep 60 &\necho $! > '" + pidFile.toLocal8Bit() +
                                         "'\necho 'netlist-step 3'\nwait\n");
    run.progress = [&](const NetlistRun::Progress& p) {
        QCOMPARE(p.step, 3);
        run.cancel();
    };
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!c.run(module));
    QVERIFY(clock.elapsed() < 20000);
    QCOMPARE(run.failure(), NetlistRun::Failure::Cancelled);
    QCOMPARE(c.text, QStringLiteral("the netlist generation was cancelled"));
    QFile file(pidFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const int pid = file.readAll().trimmed().toInt();
    QVERIFY(pid > 1);
    // Gone, or a zombie that nobody has collected yet.
    QTRY_VERIFY([pid] {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        return !stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z ");
    }());
    c.verifyUntouched();
}

void NetlistFlowTest::cancelledBeforeTheStart() {
    WithFormer c;
    NetlistRun run;
    run.cancel();
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Cancelled);
    c.verifyUntouched();
}

void NetlistFlowTest::timeLimit() {
    QTemporaryDir tools;
    WithFormer c;
    NetlistRun run;
    run.program = fakeProgram(tools, "sleep 60\n");
    run.timeLimit = 1;
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Tool);
    QVERIFY2(c.text.startsWith(QStringLiteral("fake took longer than 1 s")), qPrintable(c.text));
    c.verifyUntouched();
}

// The synthesis program ends well even when its files did not reach the disk.
void NetlistFlowTest::truncatedNetlist() {
    QTemporaryDir tools;
    WithFormer c;
    NetlistRun run;
    run.program = fakeProgram(tools, "printf '{\\n}\\n' > netlist.json\n"
                                     "printf 'module Link0();\\n' > netlist.v\n");
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Output);
    QVERIFY2(c.text.contains(QStringLiteral("Link0_netlist.v: the netlist is incomplete")),
             qPrintable(c.text));
    c.verifyUntouched();
}

// The whole flow on a file system that is too small for it.
void NetlistFlowTest::fullDisk() {
    QTemporaryDir disk;
    if (QProcess::execute(QStringLiteral("mount"),
                          {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                           QStringLiteral("size=140k"), QStringLiteral("tmpfs"), disk.path()}) !=
        0) {
        QSKIP("no file system can be mounted here");
    }
    const auto unmount = qScopeGuard([&] {
        QProcess::execute(QStringLiteral("umount"), {QStringLiteral("-l"), disk.path()});
    });
    WithFormer c;
    const QString small = disk.filePath(QStringLiteral("link/temp/CUSTOMIZED"));
    QVERIFY(QDir().mkpath(small));
    for (const QString& name : c.files()) {
        QVERIFY(QFile::copy(c.folder() + QLatin1Char('/') + name, small + QLatin1Char('/') + name));
    }
    IPSERDESIP::serdes::instance()->openProject({}, disk.path(), {});
    NetlistRun run;
    QVERIFY(!c.run(module));
    QVERIFY2(run.failure() != NetlistRun::Failure::None, qPrintable(c.text));
    qInfo("%s", qPrintable(c.text));
    QByteArray bytes;
    QVERIFY(Utils::readFile(small + QStringLiteral("/Link0_netlist.v"), &bytes));
    QCOMPARE(bytes, QByteArray("former\n"));
    QVERIFY(Utils::readFile(small + QStringLiteral("/Link0_netlist.json"), &bytes));
    QCOMPARE(bytes, QByteArray("former too\n"));
}

void NetlistFlowTest::missingRtl() {
    WithFormer c;
    NetlistRun run;
    run.primitives = QStringLiteral("/nowhere");
    QVERIFY(!c.run(module));
    QCOMPARE(run.failure(), NetlistRun::Failure::Refused);
    QCOMPARE(c.text, QStringLiteral("the RTL file /nowhere/xcvr_primitives.v is missing"));
    c.verifyUntouched();
}

// Windows stay alive during a run, so a user could start another.
void NetlistFlowTest::secondRunAtOnce() {
    WithFormer c;
    NetlistRun run;
    bool inner = true;
    QString innerText;
    run.progress = [&](const NetlistRun::Progress& p) {
        if (p.step == 2) {
            NetlistRun second;
            inner = c.run(module);
            innerText = c.text;
        }
    };
    QVERIFY2(c.run(module), qPrintable(c.text));
    QVERIFY(!inner);
    QCOMPARE(innerText, QStringLiteral("another netlist generation is under way"));
}

QTEST_GUILESS_MAIN(NetlistFlowTest)
#include "netlistflow_test.moc"
