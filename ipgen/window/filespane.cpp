#include "ipgen/window/filespane.h"

#include "ipgen/report/linediff.h"
#include "ipgen/window/filehistory.h"
#include "ipgen/window/named.h"
#include "ipgen/window/theme.h"
#include "ipgen/window/workbench.h"

#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>

#include <utils/filereplace.h>

#include <QCheckBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTextBlock>
#include <QVBoxLayout>

namespace Window {

namespace {

constexpr int sizeLimit = 4 << 20; // bytes shown; netlists can be larger than anyone reads

QStringList linesOf(const QByteArray& bytes) {
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

} // namespace

FilesPane::FilesPane(Workbench* bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_files(new QListWidget(this))
    , m_text(new QPlainTextEdit(this))
    , m_changes(new QCheckBox(tr("&Changes since the generation before"), this))
    , m_note(new QLabel(this)) {
    named(m_files, "fileList", tr("Generated files"), tr("The files of the chosen instance"));
    named(m_text, "fileText", tr("Text of the file"));
    named(m_changes, "fileChanges", tr("Show the changes since the generation before"),
          tr("Show what the last generation changed instead of the text"));
    auto* folder = named(new QPushButton(tr("Open &folder"), this), "fileFolder",
                         tr("Open the folder"), tr("Show the files in the file manager"));
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabChangesFocus(true);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusProxy(m_files);
    auto* side = new QSplitter(Qt::Horizontal, this);
    side->addWidget(m_files);
    side->addWidget(m_text);
    side->setStretchFactor(0, 1);
    side->setStretchFactor(1, 4);
    side->setChildrenCollapsible(false);
    auto* head = new QHBoxLayout;
    head->addWidget(m_note, 1);
    head->addWidget(m_changes);
    head->addWidget(folder);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(head);
    layout->addWidget(side, 1);
    connect(folder, &QPushButton::clicked, this, &FilesPane::folderRequested);
    connect(m_files, &QListWidget::currentRowChanged, this, &FilesPane::showFile);
    connect(m_changes, &QCheckBox::toggled, this, &FilesPane::showFile);
    connect(bench, &Workbench::projectChanged, this, &FilesPane::refresh);
    connect(bench, &Workbench::instancesChanged, this, &FilesPane::refresh);
    connect(bench, &Workbench::filesGenerated, this, &FilesPane::refresh);
}

FilesPane::~FilesPane() = default;

void FilesPane::setInstance(const QString& name) {
    if (name != m_instance) {
        m_instance = name;
        refresh();
    }
}

void FilesPane::showEvent(QShowEvent* event) {
    if (m_stale) {
        refresh();
    }
    QWidget::showEvent(event);
}

void FilesPane::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && !m_stale) {
        showFile();
    }
    QWidget::changeEvent(event);
}

void FilesPane::refresh() {
    m_stale = !isVisible();
    if (m_stale) {
        return;
    }
    const QString before =
        m_files->currentItem() != nullptr ? m_files->currentItem()->text() : QString();
    const InstanceRow* row = m_bench->hasProject() ? m_bench->row(m_instance) : nullptr;
    const QStringList paths =
        row != nullptr ? generatedFiles(m_bench->project(), row->file) : QStringList();
    m_files->clear();
    int chosen = 0;
    for (const QString& path : paths) {
        auto* item = new QListWidgetItem(QFileInfo(path).fileName(), m_files);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
        // The Verilog is what one looks for first.
        if (before.isEmpty() && chosen == 0 && item->text().endsWith(QLatin1String(".vh"))) {
            chosen = m_files->count() - 1;
        }
        if (item->text() == before) {
            chosen = m_files->count() - 1;
        }
    }
    if (!paths.isEmpty()) {
        m_files->setCurrentRow(chosen);
    } else {
        m_text->clear();
        m_note->setText(m_instance.isEmpty()
                            ? tr("Choose an instance to see its files.")
                            : tr("Nothing is generated for %1 yet (F8).").arg(m_instance));
    }
}

void FilesPane::showFile() {
    const QListWidgetItem* item = m_files->currentItem();
    if (item == nullptr) {
        return;
    }
    const QString path = item->data(Qt::UserRole).toString();
    if (m_changes->isChecked()) {
        showDifference(path);
    } else {
        showText(path);
    }
}

void FilesPane::showText(const QString& path) {
    QByteArray bytes;
    const Utils::FileResult read = Utils::readFile(path, &bytes);
    m_note->setText(read.ok ? tr("%1 lines").arg(linesOf(bytes).size())
                            : tr("%1: %2").arg(read.path, read.reason));
    if (bytes.size() > sizeLimit) {
        m_note->setText(
            tr("The first %1 MB of %2 MB").arg(sizeLimit >> 20).arg(bytes.size() >> 20));
        bytes.truncate(sizeLimit);
    }
    applyColors(path);
    m_text->setPlainText(QString::fromUtf8(bytes));
}

void FilesPane::applyColors(const QString& path) {
    if (!m_repository) {
        m_repository = std::make_unique<KSyntaxHighlighting::Repository>();
        m_colors = new KSyntaxHighlighting::SyntaxHighlighter(m_text->document());
    }
    const QString suffix = QFileInfo(path).suffix();
    const bool verilog = suffix == QLatin1String("v") || suffix == QLatin1String("vh");
    m_colors->setTheme(m_repository->defaultTheme(
        isDark(palette()) ? KSyntaxHighlighting::Repository::DarkTheme
                          : KSyntaxHighlighting::Repository::LightTheme));
    m_colors->setDefinition(verilog ? m_repository->definitionForName(QStringLiteral("Verilog"))
                                    : m_repository->definitionForFileName(path));
}

void FilesPane::showDifference(const QString& path) {
    if (m_colors != nullptr) {
        m_colors->setDefinition(KSyntaxHighlighting::Definition());
    }
    QByteArray now;
    QByteArray former;
    Utils::readFile(path, &now);
    m_text->clear();
    if (!FileHistory::former(path, &former)) {
        m_note->setText(tr("No generation has changed this file yet."));
        return;
    }
    constexpr int context = 3;
    const auto lines = Ipgen::diffLines(linesOf(former), linesOf(now));
    m_note->setText(Ipgen::differs(lines) ? tr("− before, + now") : tr("No difference"));
    const auto shown = Ipgen::condensed(lines, context);
    QTextCursor cursor(m_text->document());
    for (const Ipgen::DiffLine& line : shown) {
        QTextCharFormat format;
        QString mark = QStringLiteral("  ");
        if (line.kind == Ipgen::DiffLine::Kind::Removed) {
            format.setForeground(badColor(palette()));
            mark = QStringLiteral("- ");
        } else if (line.kind == Ipgen::DiffLine::Kind::Added) {
            format.setForeground(goodColor(palette()));
            mark = QStringLiteral("+ ");
        } else if (line.left == 0) {
            mark = QStringLiteral("…");
        }
        cursor.insertText(mark + line.text + QLatin1Char('\n'), format);
    }
    m_text->moveCursor(QTextCursor::Start);
}

} // namespace Window
