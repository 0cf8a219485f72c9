#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

// A flat menu exported as com.canonical.dbusmenu, for tray hosts that draw an
// item's menu themselves. Entry ids are 1, 2, … in the order of the labels; 0 is
// the root.
class DBusMenuExporter : public QObject
{
    Q_OBJECT

public:
    static constexpr auto objectPath = "/MenuBar";

    explicit DBusMenuExporter(QDBusConnection connection, QObject *parent = nullptr);
    ~DBusMenuExporter() override;

    // An empty label is a separator. Hosts learn of a change by LayoutUpdated.
    void setLabels(const QStringList &labels);
    QStringList labels() const { return m_labels; }
    uint revision() const { return m_revision; }

Q_SIGNALS:
    void aboutToShow();
    void triggered(int index);
    void layoutUpdated(uint revision, int parent);

private:
    friend class DBusMenuAdaptor;

    bool isEntry(int id) const { return id >= 1 && id <= m_labels.size(); }
    QVariantMap properties(int id, const QStringList &names) const;
    // Returns whether id is known.
    bool handleEvent(int id, const QString &eventId);

    QDBusConnection m_connection;
    QStringList m_labels;
    uint m_revision = 1;
};
