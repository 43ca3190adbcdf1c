// Every option of every command stands in the man page and in the completion, and they have no
// others. The program's own help is the list.

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

class OptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void manPage_data() { commands(); }
    void manPage();
    void completion_data() { commands(); }
    void completion();
    void sameCommandsEverywhere();

private:
    void commands();

    QStringList m_commands;
    QString m_man;
    QString m_completion;
};

namespace {

QString helpOf(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(IPGEN), arguments + QStringList{QStringLiteral("--help")});
    process.waitForFinished(60000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString textOf(const char* name) {
    QFile file(QStringLiteral(SOURCE_DIR "/packaging/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

using Options = QSet<QString>;

/// Long options at the start of the help's lines.
Options optionsOfHelp(const QString& help) {
    static const QRegularExpression option(QStringLiteral("^ +(?:-h,)?(--[a-z][a-z-]*)"),
                                           QRegularExpression::MultilineOption);
    Options options;
    auto it = option.globalMatch(help);
    while (it.hasNext()) {
        options.insert(it.next().captured(1));
    }
    return options;
}

/// Those that every command has stand once in the man page, above the commands.
Options ofEveryCommand() {
    return {QStringLiteral("--help"), QStringLiteral("--plugin-dir")};
}

} // namespace

void OptionsTest::initTestCase() {
    static const QRegularExpression command(QStringLiteral("^  ([a-z]+) {2,}"),
                                            QRegularExpression::MultilineOption);
    const QString help = helpOf({}).section(QStringLiteral("Subcommands:"), 1);
    auto it = command.globalMatch(help);
    while (it.hasNext()) {
        m_commands.append(it.next().captured(1));
    }
    QVERIFY2(m_commands.size() >= 12, qPrintable(help));
    m_man = textOf("ipgen.1");
    m_completion = textOf("ipgen.bash");
    QVERIFY(!m_man.isEmpty() && !m_completion.isEmpty());
}

void OptionsTest::commands() {
    QTest::addColumn<QString>("command");
    for (const QString& command : qAsConst(m_commands)) {
        QTest::newRow(qPrintable(command)) << command;
    }
}

void OptionsTest::manPage() {
    QFETCH(QString, command);
    static const QRegularExpression option(QStringLiteral("^\\\\fB(\\\\-\\\\-[a-z\\\\-]+)\\\\fR"),
                                           QRegularExpression::MultilineOption);
    const QString section = m_man.section(QStringLiteral(".SS %1\n").arg(command), 1)
                                .section(QRegularExpression(QStringLiteral("\n\\.S[SH] ")), 0, 0);
    Options found;
    auto it = option.globalMatch(section);
    while (it.hasNext()) {
        found.insert(it.next().captured(1).remove(QLatin1Char('\\')));
    }
    const Options expected = optionsOfHelp(helpOf({command})) - ofEveryCommand();
    QCOMPARE(found, expected);
}

void OptionsTest::completion() {
    QFETCH(QString, command);
    const QRegularExpression row(QStringLiteral("^ +%1\\) options=\"([^\"]*)\"").arg(command),
                                 QRegularExpression::MultilineOption);
    const QStringList words = row.match(m_completion).captured(1).split(QLatin1Char(' '));
    const Options found(words.begin(), words.end());
    QCOMPARE(found, optionsOfHelp(helpOf({command})));
}

void OptionsTest::sameCommandsEverywhere() {
    for (const QString& command : qAsConst(m_commands)) {
        QVERIFY2(m_man.contains(QStringLiteral("\n.SS %1\n").arg(command)), qPrintable(command));
    }
    QCOMPARE(m_man.count(QStringLiteral("\n.SS ")), m_commands.size());
    QVERIFY(
        m_completion.contains(QStringLiteral("-W \"%1\"").arg(m_commands.join(QLatin1Char(' ')))));
    for (const QString& option : ofEveryCommand()) {
        QString escaped = option;
        escaped.replace(QLatin1Char('-'), QLatin1String("\\-"));
        QVERIFY2(m_man.contains(escaped), qPrintable(option));
    }
}

QTEST_MAIN(OptionsTest)
#include "options_test.moc"
