#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

// The folder the application is installed in (or built in: the build tree has the
// same shape): bin/vost, lib/vost/ for private libraries, share/vost/ for resources.
class AppBundle
{
public:
    explicit AppBundle(QString rootPath);

    // The bundle the running executable sits in: the parent of its folder.
    static AppBundle main();

    QString rootPath() const { return m_rootPath; }
    // The private library folder, when the bundle has one.
    std::optional<QString> privateLibraryFolder() const;
    // A helper program Vost starts, when it is there and may be run.
    std::optional<QString> helperProgram(const QString &name) const;
    QString resourceFolder() const;
    QString resourcePath(const QString &relativePath) const;
    // Info.json in the resource folder; empty when it is missing or unreadable.
    QVariantMap infoDictionary() const;

private:
    QString m_rootPath;
};
