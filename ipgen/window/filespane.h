#pragma once

#include <QWidget>

#include <memory>

class QCheckBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace KSyntaxHighlighting {
class Repository;
class SyntaxHighlighter;
} // namespace KSyntaxHighlighting

namespace Window {

class Workbench;

/// The generated files of the chosen instance: their text in colours, or what the last generation
/// changed in them.
class FilesPane : public QWidget {
    Q_OBJECT

public:
    explicit FilesPane(Workbench* bench, QWidget* parent = nullptr);
    ~FilesPane() override;
    void setInstance(const QString& name);

Q_SIGNALS:
    void folderRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void showFile();
    void showText(const QString& path);
    void showDifference(const QString& path);
    void applyColors(const QString& path);

    Workbench* m_bench;
    QString m_instance;
    QListWidget* m_files;
    QPlainTextEdit* m_text;
    QCheckBox* m_changes;
    QLabel* m_note;
    std::unique_ptr<KSyntaxHighlighting::Repository> m_repository; ///< made at first need: slow
    KSyntaxHighlighting::SyntaxHighlighter* m_colors = nullptr;
    bool m_stale = true;
};

} // namespace Window
