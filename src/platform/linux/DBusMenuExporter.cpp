#include "DBusMenuExporter.h"

#include "DBusStructure.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

// Named, not anonymous: QtDBus matches a call's arguments to a slot by the type names
// moc wrote down, which must be the names the types are registered under.
namespace dbusmenu {

// (ia{sv}av): an item, its properties and its children, each child the same
// structure wrapped in a variant.
struct MenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<MenuLayout> children;
};

// (ia{sv})
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};
using MenuItemPropertiesList = QList<MenuItemProperties>;

// (isvu)
struct MenuEvent {
    int id = 0;
    QString eventId;
    // A value, so that the signature QtDBus works out from a default event is (isvu).
    QDBusVariant data{QVariant(0)};
    uint timestamp = 0;
};
using MenuEventList = QList<MenuEvent>;

} // namespace dbusmenu

using namespace dbusmenu;

Q_DECLARE_METATYPE(dbusmenu::MenuLayout)
Q_DECLARE_METATYPE(dbusmenu::MenuItemProperties)
Q_DECLARE_METATYPE(dbusmenu::MenuEvent)

namespace dbusmenu {

QDBusArgument &operator<<(QDBusArgument &argument, const MenuLayout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuLayout &child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MenuLayout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<MenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const MenuItemProperties &item)
{
    return DBusStructure::write(argument, item.id, item.properties);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MenuItemProperties &item)
{
    return DBusStructure::read(argument, item.id, item.properties);
}

QDBusArgument &operator<<(QDBusArgument &argument, const MenuEvent &event)
{
    return DBusStructure::write(argument, event.id, event.eventId, event.data, event.timestamp);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MenuEvent &event)
{
    return DBusStructure::read(argument, event.id, event.eventId, event.data, event.timestamp);
}

void registerMenuTypes()
{
    static const bool registered = [] {
        qDBusRegisterMetaType<MenuLayout>();
        qDBusRegisterMetaType<MenuItemProperties>();
        qDBusRegisterMetaType<MenuItemPropertiesList>();
        qDBusRegisterMetaType<MenuEvent>();
        qDBusRegisterMetaType<MenuEventList>();
        return true;
    }();
    Q_UNUSED(registered);
}

} // namespace dbusmenu

// The object on the bus. QtDBus hands an adaptor's calls' context to the adaptor's
// parent, where the adaptor sends its error replies from.
class DBusMenuObject : public QObject, public QDBusContext
{
    Q_OBJECT

public:
    using QObject::QObject;
};

// The interface as hosts call it; the menu's state lives in the exporter.
class DBusMenuAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    DBusMenuAdaptor(DBusMenuObject *exported, DBusMenuExporter &menu)
        : QDBusAbstractAdaptor(exported)
        , m_object(*exported)
        , m_menu(menu)
    {
        connect(&menu, &DBusMenuExporter::layoutUpdated, this, &DBusMenuAdaptor::LayoutUpdated);
    }

    uint version() const { return 3; }
    QString textDirection() const
    {
        return QGuiApplication::layoutDirection() == Qt::RightToLeft ? u"rtl"_s : u"ltr"_s;
    }
    QString status() const { return u"normal"_s; }
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames, dbusmenu::MenuLayout &layout)
    {
        if (parentId != 0 && !m_menu.isEntry(parentId)) {
            unknownItem(parentId);
            return m_menu.revision();
        }
        layout.id = parentId;
        layout.properties = m_menu.properties(parentId, propertyNames);
        if (parentId == 0 && recursionDepth != 0)
            for (int id = 1; id <= m_menu.labels().size(); ++id)
                layout.children.append({id, m_menu.properties(id, propertyNames), {}});
        return m_menu.revision();
    }

    QList<dbusmenu::MenuItemProperties> GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames)
    {
        MenuItemPropertiesList answer;
        for (const int id : ids)
            if (id == 0 || m_menu.isEntry(id))
                answer.append({id, m_menu.properties(id, propertyNames)});
        return answer;
    }

    QDBusVariant GetProperty(int id, const QString &name)
    {
        if (id != 0 && !m_menu.isEntry(id)) {
            unknownItem(id);
            return QDBusVariant(QVariant(QString()));
        }
        const QVariant value = m_menu.properties(id, {name}).value(name);
        if (!value.isValid())
            m_object.sendErrorReply(QDBusError::InvalidArgs, u"The menu item has no property %1."_s.arg(name));
        return QDBusVariant(value.isValid() ? value : QVariant(QString()));
    }

    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp)
    {
        Q_UNUSED(data);
        Q_UNUSED(timestamp);
        if (!m_menu.handleEvent(id, eventId))
            unknownItem(id);
    }

    QList<int> EventGroup(const QList<dbusmenu::MenuEvent> &events)
    {
        QList<int> idErrors;
        for (const MenuEvent &event : events)
            if (!m_menu.handleEvent(event.id, event.eventId))
                idErrors.append(event.id);
        return idErrors;
    }

    bool AboutToShow(int id)
    {
        if (id == 0)
            Q_EMIT m_menu.aboutToShow();
        else if (!m_menu.isEntry(id))
            unknownItem(id);
        return false;
    }

    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
    {
        for (const int id : ids) {
            if (id == 0)
                Q_EMIT m_menu.aboutToShow();
            else if (!m_menu.isEntry(id))
                idErrors.append(id);
        }
        return {};
    }

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    void unknownItem(int id)
    {
        m_object.sendErrorReply(QDBusError::InvalidArgs, u"No menu item with id %1."_s.arg(id));
    }

    DBusMenuObject &m_object;
    DBusMenuExporter &m_menu;
};

DBusMenuExporter::DBusMenuExporter(QDBusConnection connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
{
    registerMenuTypes();
    auto *exported = new DBusMenuObject(this);
    new DBusMenuAdaptor(exported, *this);
    m_connection.registerObject(QString::fromLatin1(objectPath), exported, QDBusConnection::ExportAdaptors);
}

DBusMenuExporter::~DBusMenuExporter()
{
    m_connection.unregisterObject(QString::fromLatin1(objectPath));
}

void DBusMenuExporter::setLabels(const QStringList &labels)
{
    if (labels == m_labels)
        return;
    m_labels = labels;
    ++m_revision;
    Q_EMIT layoutUpdated(m_revision, 0);
}

QVariantMap DBusMenuExporter::properties(int id, const QStringList &names) const
{
    QVariantMap all;
    if (id == 0) {
        all.insert(u"children-display"_s, u"submenu"_s);
    } else if (m_labels.at(id - 1).isEmpty()) {
        all.insert(u"type"_s, u"separator"_s);
    } else {
        all.insert(u"label"_s, m_labels.at(id - 1));
        all.insert(u"enabled"_s, true);
        all.insert(u"visible"_s, true);
    }
    if (names.isEmpty())
        return all;
    QVariantMap asked;
    for (const QString &name : names)
        if (all.contains(name))
            asked.insert(name, all.value(name));
    return asked;
}

bool DBusMenuExporter::handleEvent(int id, const QString &eventId)
{
    if (id != 0 && !isEntry(id))
        return false;
    if (id == 0 && eventId == "opened"_L1)
        Q_EMIT aboutToShow();
    else if (id != 0 && eventId == "clicked"_L1 && !m_labels.at(id - 1).isEmpty())
        // After the reply: the action may end the process.
        QMetaObject::invokeMethod(
            this, [this, id] { Q_EMIT triggered(id - 1); }, Qt::QueuedConnection);
    return true;
}

#include "DBusMenuExporter.moc"
