#include "bundle/AppBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

AppBundle::AppBundle(QString rootPath)
    : m_rootPath(QDir::cleanPath(std::move(rootPath)))
{}

AppBundle AppBundle::main()
{
    return AppBundle(QCoreApplication::applicationDirPath() + "/.."_L1);
}

std::optional<QString> AppBundle::privateLibraryFolder() const
{
    const QString folder = m_rootPath + "/lib/vost"_L1;
    if (!QFileInfo(folder).isDir())
        return std::nullopt;
    return folder;
}

std::optional<QString> AppBundle::helperProgram(const QString &name) const
{
    // Helpers live beside the private libraries.
    const std::optional<QString> folder = privateLibraryFolder();
    if (!folder)
        return std::nullopt;
    const QString program = *folder + u'/' + name;
    if (!QFileInfo(program).isExecutable())
        return std::nullopt;
    return program;
}

QString AppBundle::resourceFolder() const
{
    return m_rootPath + "/share/vost"_L1;
}

QString AppBundle::resourcePath(const QString &relativePath) const
{
    return resourceFolder() + u'/' + relativePath;
}

QVariantMap AppBundle::infoDictionary() const
{
    QFile file(resourcePath(u"Info.json"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(file.read(1 << 20));
    return document.object().toVariantMap();
}
