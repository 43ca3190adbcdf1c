// The memory that a batch takes does not grow with its length.

#include "programrun.h"

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration): not in every libc's header

namespace {

struct Ended {
    int status = -1;
    long kilobytes = 0; ///< the most that the program or one of its workers held
};

Ended runMeasured(const QStringList& arguments) {
    std::vector<QByteArray> texts = {QFile::encodeName(ipgenProgram())};
    texts.reserve(static_cast<std::size_t>(arguments.size()) + 1);
    for (const QString& argument : arguments) {
        texts.push_back(QFile::encodeName(argument));
    }
    std::vector<char*> pointers;
    for (QByteArray& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t pid = -1;
    const int failed =
        ::posix_spawn(&pid, pointers[0], &actions, nullptr, pointers.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    Ended ended;
    rusage usage{};
    int status = 0;
    if (failed == 0 && ::wait4(pid, &status, 0, &usage) == pid && WIFEXITED(status)) {
        ended.status = WEXITSTATUS(status);
        ended.kilobytes = usage.ru_maxrss;
    }
    return ended;
}

} // namespace

class EmitMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void memoryStaysFlat() {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer keeps freed memory on purpose");
#endif
        const Ended few = emitLines(500);
        QCOMPARE(few.status, 1);
        const Ended many = emitLines(20000);
        QCOMPARE(many.status, 1);
        qInfo("500 lines: %ld kB, 20000 lines: %ld kB", few.kilobytes, many.kilobytes);
        QVERIFY(few.kilobytes > 1000); // it was measured
        QVERIFY2(
            many.kilobytes * 10 <= few.kilobytes * 13,
            qPrintable(QStringLiteral("%1 kB after %2 kB")
                           .arg(QString::number(many.kilobytes), QString::number(few.kilobytes))));
    }

private:
    /// Of ten lines one writes files, one is malformed, and the IP refuses the others: those are
    /// quick and leave reports and messages behind all the same.
    Ended emitLines(int count) {
        const QTemporaryDir dir;
        QByteArray batch;
        for (int i = 0; i < count; ++i) {
            const QByteArray name = QByteArray::number(i);
            batch += i % 10 == 5
                         ? QByteArray("{\"name\":\"x\",}\n")
                         : "{\"name\":\"" + name +
                               "\",\"ip\":\"tiny\",\"device\":\"RZ7X-60B\",\"config\":{"
                               "\"file\":\"f\",\"module\":\"m" +
                               name + "\",\"refuse\":" + (i % 10 != 0 ? "true" : "false") + "}}\n";
        }
        const QString path = dir.filePath(QStringLiteral("batch.jsonl"));
        writeFile(path, batch);
        const QString report = dir.filePath(QStringLiteral("report.jsonl"));
        const Ended ended =
            runMeasured({"--plugin-dir", testPlugins("tiny"), "emit", "--batch", path, "--out",
                         dir.filePath(QStringLiteral("out")), "--report", report});
        const QByteArray lines = contentOf(report);
        return lines.count('\n') == count && lines.count("\"ok\":true") == count / 10 ? ended
                                                                                      : Ended();
    }
};

QTEST_GUILESS_MAIN(EmitMemoryTest)
#include "emit_memory_test.moc"
