#pragma once

#include <QFileDialog>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

class FileChooser;

// The desktop's file dialogs (through the desktop portal where one runs, else Qt's
// own): picking
// files to attach and saving a copy of a file. Around each it posts
// "VostFilePanelWillPresent" and "VostFilePanelDidFinish", so that the popover
// steps aside while the dialog is open and comes back after it.
class FilePanel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    explicit FilePanel(QObject *parent = nullptr);
    ~FilePanel() override;

    bool isOpen() const { return m_dialog != nullptr || m_askingDesktop; }

    // Asks for files to attach; filesChosen() follows unless the user cancels.
    Q_INVOKABLE void chooseAttachments();
    // Asks where to save a copy of sourcePath under suggestedName; saved() or
    // saveFailed() follows unless the user cancels.
    Q_INVOKABLE void saveCopy(const QString &sourcePath, const QString &suggestedName);

Q_SIGNALS:
    void filesChosen(const QStringList &paths);
    void saved(const QString &path);
    void saveFailed(const QString &path);
    void isOpenChanged();

private:
    QString saveFolder() const;
    void chooseAttachmentsInOwnDialog();
    void saveCopyInOwnDialog(const QString &sourcePath, const QString &suggestedName);
    void writeCopy(const QString &sourcePath, const QString &target);
    void present(QFileDialog *dialog);
    void finish();
    // The desktop's chooser is asked; onChosen gets its answer, ownDialog runs when
    // it showed none.
    void askDesktop(std::function<void(const QStringList &)> onChosen, std::function<void()> ownDialog);
    void finishAskingDesktop();

    std::unique_ptr<FileChooser> m_chooser;
    QPointer<QFileDialog> m_dialog;
    bool m_askingDesktop = false;
    std::function<void(const QStringList &)> m_onChosen;
    std::function<void()> m_ownDialog;
    QString m_lastFolder;
};
