#include "FilePanel.h"

#include "AppEvents.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

FilePanel::FilePanel(QObject *parent)
    : QObject(parent)
    , m_lastFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
{
    if (!QFileInfo(m_lastFolder).isDir())
        m_lastFolder = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
}

FilePanel::~FilePanel()
{
    delete m_dialog;
}

void FilePanel::present(QFileDialog *dialog)
{
    if (m_dialog) {
        delete dialog;
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &FilePanel::finish);
    Q_EMIT isOpenChanged();
    Q_EMIT AppEvents::shared().filePanelWillPresent();
    dialog->open();
}

void FilePanel::finish()
{
    if (m_dialog)
        m_lastFolder = m_dialog->directory().absolutePath();
    m_dialog.clear();
    Q_EMIT isOpenChanged();
    Q_EMIT AppEvents::shared().filePanelDidFinish();
}

void FilePanel::chooseAttachments()
{
    auto *dialog = new QFileDialog(nullptr, tr("Attach files"), m_lastFolder);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    // Without the system entries (pipes, sockets, devices) the dialog drops such a
    // name from the selection without a word; let it through to be refused aloud.
    dialog->setFilter(dialog->filter() | QDir::System);
    connect(dialog, &QFileDialog::filesSelected, this, &FilePanel::filesChosen);
    present(dialog);
}

void FilePanel::saveCopy(const QString &sourcePath, const QString &suggestedName)
{
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    auto *dialog = new QFileDialog(
        nullptr, tr("Save"), QDir(QFileInfo(downloads).isDir() ? downloads : m_lastFolder).filePath(suggestedName));
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    connect(dialog, &QFileDialog::fileSelected, this, [this, sourcePath](const QString &target) {
        // A copy replaces what the user chose to overwrite.
        if (QFileInfo::exists(target))
            QFile::remove(target);
        if (QFile::copy(sourcePath, target))
            Q_EMIT saved(target);
        else
            Q_EMIT saveFailed(target);
    });
    present(dialog);
}
