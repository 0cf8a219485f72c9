#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

// The desktop's own file chooser, where the desktop lends one to programs (on
// Linux the XDG desktop portal's FileChooser). One question at a time.
class FileChooser : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Whether the desktop's chooser answered when it was looked for (at creation);
    // false until then.
    virtual bool isAvailable() const = 0;
    // Files to open, several at once, starting in folder.
    virtual void openFiles(const QString &title, const QString &folder) = 0;
    // One file to write, starting in folder with name filled in.
    virtual void saveFile(const QString &title, const QString &folder, const QString &name) = 0;

Q_SIGNALS:
    void availableChanged();
    void chosen(const QStringList &paths);
    void cancelled();
    // The desktop showed no chooser: the program asks with its own dialog.
    void failed();
};

// The platform's chooser, or none where the desktop has no such service.
std::unique_ptr<FileChooser> makeSystemFileChooser();
