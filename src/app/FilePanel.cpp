#include "FilePanel.h"

#include "AppEvents.h"
#include "platform/FileChooser.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

FilePanel::FilePanel(QObject *parent)
    : QObject(parent)
    , m_chooser(makeSystemFileChooser())
    , m_lastFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
{
    if (!QFileInfo(m_lastFolder).isDir())
        m_lastFolder = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    if (!m_chooser)
        return;
    connect(m_chooser.get(), &FileChooser::chosen, this, [this](const QStringList &paths) {
        const auto onChosen = m_onChosen;
        if (onChosen)
            onChosen(paths);
        finishAskingDesktop();
    });
    connect(m_chooser.get(), &FileChooser::cancelled, this, &FilePanel::finishAskingDesktop);
    connect(m_chooser.get(), &FileChooser::failed, this, [this] {
        // Still stepped aside: Qt's dialog takes over without the popover coming back between.
        m_askingDesktop = false;
        const auto ownDialog = std::exchange(m_ownDialog, {});
        m_onChosen = {};
        if (ownDialog)
            ownDialog();
    });
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

void FilePanel::askDesktop(std::function<void(const QStringList &)> onChosen, std::function<void()> ownDialog)
{
    m_askingDesktop = true;
    m_onChosen = std::move(onChosen);
    m_ownDialog = std::move(ownDialog);
    Q_EMIT isOpenChanged();
    Q_EMIT AppEvents::shared().filePanelWillPresent();
}

void FilePanel::finishAskingDesktop()
{
    if (!m_askingDesktop)
        return;
    m_askingDesktop = false;
    m_onChosen = {};
    m_ownDialog = {};
    Q_EMIT isOpenChanged();
    Q_EMIT AppEvents::shared().filePanelDidFinish();
}

void FilePanel::chooseAttachments()
{
    if (m_askingDesktop)
        return;
    if (!m_dialog && m_chooser && m_chooser->isAvailable()) {
        askDesktop(
            [this](const QStringList &paths) {
                m_lastFolder = QFileInfo(paths.first()).absolutePath();
                Q_EMIT filesChosen(paths);
            },
            [this] { chooseAttachmentsInOwnDialog(); });
        m_chooser->openFiles(tr("Attach files"), m_lastFolder);
        return;
    }
    chooseAttachmentsInOwnDialog();
}

void FilePanel::chooseAttachmentsInOwnDialog()
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

QString FilePanel::saveFolder() const
{
    // Copies go to the downloads folder where there is one, else where the last file came from.
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return QFileInfo(downloads).isDir() ? downloads : m_lastFolder;
}

void FilePanel::saveCopy(const QString &sourcePath, const QString &suggestedName)
{
    if (m_askingDesktop)
        return;
    if (!m_dialog && m_chooser && m_chooser->isAvailable()) {
        askDesktop([this, sourcePath](const QStringList &paths) { writeCopy(sourcePath, paths.first()); },
                   [this, sourcePath, suggestedName] { saveCopyInOwnDialog(sourcePath, suggestedName); });
        m_chooser->saveFile(tr("Save"), saveFolder(), suggestedName);
        return;
    }
    saveCopyInOwnDialog(sourcePath, suggestedName);
}

void FilePanel::saveCopyInOwnDialog(const QString &sourcePath, const QString &suggestedName)
{
    auto *dialog = new QFileDialog(nullptr, tr("Save"), QDir(saveFolder()).filePath(suggestedName));
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, sourcePath](const QString &target) { writeCopy(sourcePath, target); });
    present(dialog);
}

void FilePanel::writeCopy(const QString &sourcePath, const QString &target)
{
    // A copy replaces what the user chose to overwrite (the chooser asked first).
    if (QFileInfo::exists(target))
        QFile::remove(target);
    if (QFile::copy(sourcePath, target))
        Q_EMIT saved(target);
    else
        Q_EMIT saveFailed(target);
}
